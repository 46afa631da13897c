// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/** The catalogue for a user who reads these languages, best first; empty where the texts stay as they are. */
QString catalogueFor(const QStringList &languages);

/**
 * Makes the program and its library speak the user's language, if there is a catalogue for it; in English
 * nothing is loaded. To be called once, before there is a window.
 */
void speakUsersLanguage();
