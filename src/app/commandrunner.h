// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** The result of a command, or its state when the wait for it timed out. */
struct CommandResult {
    bool finished; ///< false when the wait timed out
    bool crashed;
    int exitCode; ///< 0 after a time-out, 255 when it could not be started
    QByteArray standardOutput;
    QByteArray standardError;
};

/** The language of a command's output: the user's, or none where the output is parsed. */
enum class Messages { AsUser, Untranslated };

/**
 * Runs a program and blocks until it ends, for at most the given time (ms). A program that has not finished
 * by then is killed; what it has written so far is returned.
 */
CommandResult runCommand(const QString &program, const QStringList &arguments, int timeoutMs,
                         Messages messages = Messages::AsUser);

/** Runs a shell command line with runCommand(). */
CommandResult runShell(const QString &line, int timeoutMs, Messages messages = Messages::AsUser);

/** Runs a shell command line and blocks until it ends, without a time-out; its result is ignored. */
void runShellIgnoringResult(const char *line);
