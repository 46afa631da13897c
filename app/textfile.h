// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/** The bytes up to the first NUL, read as UTF-8; a null string for no bytes at all. */
QString utf8Text(const QByteArray &bytes);

/** The bytes up to the first NUL, read as Latin-1. */
QString latin1Text(const QByteArray &bytes);

/** Who may own a file for its content to be read. */
enum class Owner { Anyone, UserOrRoot };

/**
 * Reads a regular file whole into *bytes. Returns false and leaves *bytes alone when the file cannot be
 * opened, is not a regular file (a pipe would block for ever) or belongs to somebody else than allowed.
 */
bool readFile(const char *path, QByteArray *bytes, Owner owner = Owner::Anyone);

/** The user's own style sheet, empty when there is none, followed by the rule for disabled buttons. */
QString styleSheetText();
