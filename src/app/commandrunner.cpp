// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"

#include <QProcess>

#include <cstdlib>

CommandResult runCommand(const QString &program, const QStringList &arguments, int timeoutMs,
                         Messages messages)
{
    QProcess process;
    if (messages == Messages::Untranslated) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.remove(QStringLiteral("LANGUAGE"));
        process.setProcessEnvironment(environment);
    }
    process.start(program, arguments);
    process.waitForFinished(timeoutMs);
    return { process.state() == QProcess::NotRunning, process.exitStatus() == QProcess::CrashExit,
             process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError() };
}

CommandResult runShell(const QString &line, int timeoutMs, Messages messages)
{
    return runCommand(QStringLiteral("sh"), { QStringLiteral("-c"), line }, timeoutMs, messages);
}

void runShellIgnoringResult(const char *line)
{
    const int status = std::system(line);
    static_cast<void>(status);
}
