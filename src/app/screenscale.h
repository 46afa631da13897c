// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/**
 * Whether the user's desktop wants everything drawn larger: on an X server, when it asks for 108 dpi or more
 * (a server that nobody has told the screen's size reports 100). True without asking where Qt's own
 * variables or a Wayland compositor decide; false without an X server. To be called before Qt starts.
 */
bool desktopScales();
