// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/** Returns the process ID in the text of a PID file; 0 when it is not a number. */
int pidFromText(const QByteArray &text);

/**
 * Whether the PID file names a process that this user may signal. A PID file without a valid number counts
 * as process 0, the caller's own group, and so always as a running instance.
 */
bool anotherInstanceRuns();

/** Writes the own process ID into the PID file; does nothing when the file cannot be opened. */
void writePidFile();
