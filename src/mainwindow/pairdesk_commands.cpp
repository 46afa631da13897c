// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that the window runs: for the switch, and a short low-energy scan.
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "app/text.h"
#include "mainwindow/pairdesk.h"

#include <QDebug>
#include <QProcess>

bool pairdesk::executeCommand(const QString &command)
{
    debugLog(3, "pairdesk::executeCommand %s", logPrintable(command));
    qDebug() << "executeCommand:" << command;
    const CommandResult result = runShell(command, 30000);
    m_stdout = utf8Text(result.standardOutput);
    m_stderr = utf8Text(result.standardError);
    qDebug() << "stdout:" << m_stdout;
    qDebug() << "stderr:" << m_stderr;
    if (result.crashed) {
        qDebug() << "crash";
        debugLog(3, "pairdesk::executeCommand out1");
        return false; // intentionally keeps the exit code of an earlier command
    }
    m_exitCode = result.exitCode;
    qDebug() << "exitCode:" << m_exitCode;
    if (m_exitCode != 0) {
        debugLog(3, "pairdesk::executeCommand out2");
        return false;
    }
    debugLog(3, "pairdesk::executeCommand out3");
    return true;
}

void pairdesk::hcitoollescan()
{
    debugLog(3, "btagent::hcitoollescan"); // the agent's prefix is intentional
    const QString program = QStringLiteral("hcitool");
    const QStringList arguments = { QStringLiteral("lescan") };
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(3000);
    process.terminate();
    debugLog(3, "btagent::hcitoollescan exitCode: %d", process.exitCode());
    if (process.exitCode() == 1) {
        process.start(program, arguments);
        process.waitForFinished(2000);
        process.terminate();
    }
}
