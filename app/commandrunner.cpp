// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"

#include <QProcess>

CommandResult runCommand(const QString &program, const QStringList &arguments, int timeoutMs)
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadWrite);
    process.waitForFinished(timeoutMs);
    return { process.readAllStandardOutput(), process.readAllStandardError(), process.exitCode(),
             process.exitStatus() == QProcess::CrashExit };
}
