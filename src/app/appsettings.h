// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** The user's settings: a plain record, filled from and written to the program's QSettings store. */
class AppSettings {
public:
    AppSettings();

    /** Reads all fields; a missing key gives false or an empty text, not the default. Always returns 0. */
    int load();

    /** Writes all fields; failures go unnoticed. Always returns 0. */
    int save();

    bool enabled; ///< whether Bluetooth was on when the main window was last left with OK
    bool showTrayIcon; ///< for the separate tray program; nothing here acts on it
    bool debug; ///< whether the debug log is written
    QString audioProfile; ///< "A2DP" or "HSP/HFP"
};
