// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>

#include <sys/types.h>

class QFile;

/**
 * Opens a file with the flags of open(2) (a new one for all to read and write, less the umask) and returns
 * its descriptor, which child processes do not inherit; -1 when that fails, when it is no regular file (a
 * pipe would block for ever) or when it is a symbolic link, which anybody can put into /tmp.
 */
int openRegularFile(const char *path, int flags);

/** Who owns the open file; of a descriptor that is not open, a user ID that nobody has. */
uid_t ownerOf(int descriptor);

/** Opens a QFile without a name in the same way; it closes the descriptor. False when that fails. */
bool openRegularFile(QFile *file, const char *path, int flags, QIODevice::OpenMode mode);
