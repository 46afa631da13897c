// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own main(), run by this binary as a second process, with a user whose steps are in
// PAIRDESK_TEST_STEPS.
#include "app/application.h"
#include "app/debuglog.h"
#include "app/paths.h"
#include "tests/support/testbus.h"
#include "tests/support/user.h"

#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

/** Performs the steps as soon as there is a main window. */
static void startUser()
{
    auto *poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll] {
        if (User::front()->objectName() != "pairdesk")
            return;
        poll->stop();
        QTextStream(stdout) << "shown ";
        User user;
        user.verb("owns",
                  [](const QString &) { return contentOf(paths::pidFile) == QByteArray::number(getpid()); });
        user.verb("hang", [](const QString &) { raise(SIGHUP); });
        user.verb("overflow", [](const QString &) { debugLog(3, "%s", QByteArray(4072, 'x').constData()); });
        user.perform(qEnvironmentVariable("PAIRDESK_TEST_STEPS"));
    });
    poll->start(5);
}

/** What the program says and its exit status; env takes variables, or a command to run it with. */
static QString outcome(const QString &steps, const QStringList &arguments = {})
{
    QProcess program;
    const QStringList fixed = { "PAIRDESK_TEST_STEPS=" + steps, "ASAN_OPTIONS=exitcode=99" }; // 1 is its own
    program.start("env", fixed + arguments + QStringList(QCoreApplication::applicationFilePath()));
    const bool hasLeft = program.waitForFinished() && program.exitStatus() == QProcess::NormalExit;
    return program.readAllStandardOutput() + (hasLeft ? QString::number(program.exitCode()) : "crashed");
}

class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksForOthers()
    {
        for (const QByteArray &content : QByteArrayList{ QByteArray::number(getpid()), "", "9999999999" }) {
            put(paths::pidFile, content);
            QCOMPARE(outcome("click ok"), "Another instance is running. Exit.\n0");
            QCOMPARE(contentOf(paths::pidFile), content);
        }
        put(paths::pidFile, "1"); // another user's; nobody may still look into a closed build folder
        const QString nobody = "setpriv --reuid=65534 --inh-caps=+dac_override --ambient-caps=+dac_override";
        QCOMPARE(outcome("owns, click close", geteuid() == 0 ? nobody.split(' ') : QStringList()), "shown 1");
    }

    void leaves()
    {
        // A crash of the shell, which would turn one of systemctl into an exit code.
        put(m_bus.path("bin/sh"), "#!/bin/sh\nkill -9 $$\n");
        chmod(qPrintable(m_bus.path("bin/sh")), 0755);
        // variable, status of the service, step, outcome with a line of the settings
        const std::tuple<QString, int, QString, QString> ways[] = {
            { "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/", 0, "close pairdesk", "shown 1 " },
            { "A=", 3, "click ok", "shown 0 enabled=false" },
            { "A=", 0, "click ok", "shown 0 enabled=true" },
            { "PATH=" + m_bus.path("bin:") + qgetenv("PATH"), 0, "click ok", "shown 0 enabled=false" },
        };
        for (const auto &[variable, service, step, expected] : ways) {
            put(paths::pidFile, QByteArray("4194305\0x", 9)); // no process ever has this one
            put(m_bus.path("tools/systemctl.status"), QByteArray::number(service));
            const QString found = outcome("owns, " + step, { variable });
            QCOMPARE(found + ' ' + contentOf(TestBus::store).split('\n').value(3), expected);
            QVERIFY(!QFile::exists(paths::pidFile));
        }
        m_bus.kill();
        QCOMPARE(outcome("click ok"), "shown 0");
        m_bus.start();
    }

    void writesFiles()
    {
        put(TestBus::store, "[General]\ndebug=true\n");
        QCOMPARE(outcome("overflow, click close"), "shown crashed");
        put(paths::debugLogFile, "an earlier run\n");
        m_bus.sim("name " + QString(5000, 'x'));
        QCOMPARE(outcome("owns, hang, click ok"), "shown 0");
        const QRegularExpression log("^an earlier run\n.*\\)- pairdesk::pairdesk in\n(.*\n)*"
                                     ".*dev: x{1000}, type: headset\n(.*\n)*.*- btagent::hupSignalHandler\n");
        QVERIFY2(log.match(contentOf(paths::debugLogFile)).hasMatch(), contentOf(paths::debugLogFile));

        // The options open and close the log at once.
        QFile::remove(paths::debugLogFile);
        QFile::remove(TestBus::store);
        QCOMPARE(outcome("click options, click debug, click cancel, click options, click tray, click cancel, "
                         "click options, click debug, click debug, click ok, click ok"),
                 "shown 0");
        const QList<QByteArray> lines = contentOf(paths::debugLogFile).trimmed().split('\n');
        QVERIFY(lines.first().endsWith("- pairdesk::on_options_clicked out")
                && lines.last().endsWith("- pairdesk::on_debug_clicked 0"));

        // Neither a link is followed nor a pipe waited for.
        const QByteArray linked = m_bus.path("linked").toUtf8();
        put(linked, "4194305");
        QVERIFY(QFile::remove(paths::debugLogFile) && symlink(linked, paths::debugLogFile) == 0);
        QCOMPARE(symlink(linked, paths::pidFile), 0);
        QCOMPARE(outcome("click ok"), "shown 0");
        QCOMPARE(mkfifo(paths::pidFile, 0600), 0); // the link is gone
        QCOMPARE(outcome("click ok"), "shown 0");
        QCOMPARE(contentOf(linked), "4194305");
    }

private:
    TestBus m_bus;
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("PAIRDESK_TEST_STEPS")) {
        qAddPreRoutine(startUser);
        return runApplication(argc, argv);
    }
    QCoreApplication application(argc, argv);
    TestProgram test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_program.moc"
