// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/**
 * The style sheet of the windows that list devices: the user's own, where there is one that belongs to the
 * user or root, and behind it the rule that tells disabled buttons apart.
 */
QString windowStyleSheet();
