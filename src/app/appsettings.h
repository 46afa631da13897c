// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** The user's settings: a plain record that is loaded from and saved to a QSettings store. */
class AppSettings {
public:
    /** Reads all fields; a missing key gives false or an empty text, not the default. Always returns 0. */
    int load();

    /** Writes all fields; failures are not reported. Always returns 0. */
    int save();

    bool enabled = false; ///< whether Bluetooth was on when the main window was last left with OK
    bool showTrayIcon = false; ///< for the separate tray program; nothing here acts on it
    bool debug = false; ///< whether the debug log is written
    QString audioProfile = QStringLiteral("A2DP"); ///< "A2DP" or "HSP/HFP"
};
