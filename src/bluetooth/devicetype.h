// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Device>

/**
 * Returns the name of a device type in the user's language, for display. In English, and for a type without a
 * translation, it is the library's own word, which the log uses in every language.
 */
QString deviceTypeText(BluezQt::Device::Type type);
