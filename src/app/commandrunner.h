// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** What is known of a command once the wait for it is over. */
struct CommandResult {
    bool finished; ///< false when it was given up
    bool crashed;
    int exitCode; ///< 0 for a command that was given up, 255 for one that could not be started
    QByteArray standardOutput;
    QByteArray standardError;
};

/** In what language a command speaks: the user's, or untranslated for output that is to be parsed. */
enum class Messages { AsUser, Untranslated };

/**
 * Runs a program and waits for it, blocking, for at most the given time (ms). A program that has not
 * finished by then is killed; what it has written so far is kept.
 */
CommandResult runCommand(const QString &program, const QStringList &arguments, int timeoutMs,
                         Messages messages = Messages::AsUser);

/** Runs a shell line with runCommand(). */
CommandResult runShell(const QString &line, int timeoutMs, Messages messages = Messages::AsUser);

/** Runs a shell line and waits until it ends, however long that takes. Output and result are not looked at.
 */
void runShellBlindly(const char *line);
