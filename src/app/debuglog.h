// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/**
 * The trace log: one line per call, appended to a text file. Closed until debugLogOpen(), and opened at
 * most once per process. For the GUI thread.
 */

/**
 * Sets the level whose lines are written and, the first time, opens the file (path in the file system's
 * encoding). Level 0 changes nothing. A file that cannot be opened, or that is a link or no regular file,
 * leaves the log closed for good.
 */
void debugLogOpen(const char *path, int level);

/** Closes the log; a later debugLogOpen() does not open it again. */
void debugLogClose();

/**
 * Writes one line, printf-style with UTF-8 strings, when the log is open at exactly this level. A line longer
 * than 4095 bytes aborts the process: texts from outside are passed through logPrintable().
 */
void debugLog(int level, const char *format, ...) __attribute__((format(printf, 2, 3)));
