// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/** The bytes up to the first NUL, read as UTF-8; a null string for no bytes at all. */
QString utf8Text(const QByteArray &bytes);

/** The bytes up to the first NUL, read as Latin-1. */
QString latin1Text(const QByteArray &bytes);

/**
 * Opens a file with the flags of open(2) (a new one for all to read and write, less the umask) and returns
 * its descriptor; -1 when that fails or it is no regular file: a pipe would block for ever.
 */
int openRegularFile(const char *path, int flags);

/** Reads a file whole that belongs to the user or root. False, with *bytes left alone, for any other. */
bool readTrustedFile(const char *path, QByteArray *bytes);

/** The user's own style sheet, empty when there is none. */
QString userStyleSheet();

/** Goes behind the user's style sheet. */
extern const char disabledButtonRule[];
