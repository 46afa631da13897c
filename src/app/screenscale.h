// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/**
 * Asks the X server, before Qt has started, whether the user's desktop wants everything drawn larger. The
 * connection lasts as long as the object, which has to outlive the construction of QApplication: a server
 * without clients resets, and a client that connects meanwhile is dropped.
 */
class ScreenScale {
public:
    ScreenScale();
    ~ScreenScale();
    ScreenScale(const ScreenScale &) = delete;
    ScreenScale &operator=(const ScreenScale &) = delete;

    /**
     * Whether Qt's resolution for texts is 108 dpi or more: the first of QT_FONT_DPI, the server's resource
     * Xft.dpi and the server's own figure, which is 100 on an X server without a known screen size. False
     * where none of them is known.
     */
    bool isLarge() const;

private:
    void *m_display; ///< the X library's Display; null without an X server
};
