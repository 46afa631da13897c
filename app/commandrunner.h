// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** What is known of a command once the wait for it is over. */
struct CommandResult {
    QByteArray standardOutput;
    QByteArray standardError;
    int exitCode; ///< 0 for a command that did not finish in time, 255 for one that could not be started
    bool crashed;
};

/**
 * Runs a program and waits for it, blocking, for at most the given time (ms). A program that has not
 * finished by then is killed; what it has written so far is kept.
 */
CommandResult runCommand(const QString &program, const QStringList &arguments, int timeoutMs);
