// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/**
 * Returns the name of the catalogue for the user's languages, the preferred one first, as
 * QLocale::uiLanguages() lists them; empty when the texts stay English.
 */
QString catalogueFor(const QStringList &languages);

/**
 * Installs the translators of the program and of Qt for the user's language, if there is a catalogue for it;
 * in English nothing is loaded. To be called once, before the first window is made.
 */
void installTranslators();
