// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/**
 * Opens a file with the flags of open(2) (a new one for all to read and write, less the umask) and returns
 * its descriptor, which child processes do not inherit; -1 when that fails or it is no regular file: a pipe
 * would block for ever.
 */
int openRegularFile(const char *path, int flags);
