// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/screenscale.h"

#include <QByteArray>
#include <QList>

#ifdef PAIRDESK_X11
#include <X11/Xlib.h>

static void *connectToServer() { return XOpenDisplay(nullptr); }

static void disconnectFromServer(void *display) { XCloseDisplay(static_cast<Display *>(display)); }

/** The server's resource Xft.dpi, read as Qt reads it; 0 when it is missing or not an integer. */
static int resourceDpi(Display *display)
{
    const QList<QByteArray> resources = QByteArray(XResourceManagerString(display)).split('\n');
    for (const QByteArray &resource : resources) {
        if (resource.startsWith("Xft.dpi:"))
            return resource.mid(8).trimmed().toInt();
    }
    return 0;
}

static double serverDpi(void *connection)
{
    auto *display = static_cast<Display *>(connection);
    if (const int resource = resourceDpi(display); resource > 0)
        return resource;
    const int screen = XDefaultScreen(display);
    const int millimetres = XDisplayWidthMM(display, screen);
    return millimetres > 0 ? 25.4 * XDisplayWidth(display, screen) / millimetres : 0;
}
#else
static void *connectToServer() { return nullptr; }

static void disconnectFromServer(void * /*display*/) { }

static double serverDpi(void * /*connection*/) { return 0; }
#endif

ScreenScale::ScreenScale()
    : m_display(connectToServer())
{
}

ScreenScale::~ScreenScale()
{
    if (m_display)
        disconnectFromServer(m_display);
}

bool ScreenScale::isLarge() const
{
    double dpi = qEnvironmentVariableIntValue("QT_FONT_DPI");
    if (dpi <= 0 && m_display)
        dpi = serverDpi(m_display);
    return dpi >= 108;
}
