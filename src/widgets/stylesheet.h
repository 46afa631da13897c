// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/**
 * Returns the style sheet of the windows that list devices: the user's own file, if it belongs to the user or
 * root, followed by the rule for disabled buttons.
 */
QString windowStyleSheet();
