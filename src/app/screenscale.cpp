// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/screenscale.h"

#include <X11/Xlib.h>
#include <cstdlib>

bool desktopScales()
{
    if (std::getenv("WAYLAND_DISPLAY") || std::getenv("QT_FONT_DPI") || std::getenv("QT_USE_PHYSICAL_DPI"))
        return true;
    Display *display = XOpenDisplay(nullptr);
    if (!display)
        return false;
    const char *wanted = XGetDefault(display, "Xft", "dpi");
    double dpi = wanted ? std::atof(wanted) : 0;
    const int screen = XDefaultScreen(display);
    if (dpi <= 0 && XDisplayWidthMM(display, screen) > 0)
        dpi = 25.4 * XDisplayWidth(display, screen) / XDisplayWidthMM(display, screen);
    XCloseDisplay(display);
    return dpi >= 108;
}
