// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own main(), run by this binary as a second process that takes its clicks from standard input.
#include "app/paths.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QtTest>

#include <csignal>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

int programMain(int argc, char **argv);

static const auto pidFile = QLatin1String(paths::pidFile);

/** Says when the main window is there, and from then on presses its button "ok" or "close", or closes it. */
static void installClicker()
{
    auto *look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, [look] {
        auto *window = qobject_cast<pairdesk *>(QApplication::activeWindow());
        if (!window)
            return;
        look->stop();
        std::cout << "shown" << std::endl;
        auto *told = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, window);
        QObject::connect(told, &QSocketNotifier::activated, window, [window] {
            std::string click;
            std::cin >> click;
            if (click == "window")
                window->close();
            else
                press(window, click.c_str());
        });
    });
    look->start(5);
}

/** The program in a process of its own, once it has shown its window or said something else. */
struct Program : QProcess {
    /** The arguments are further ones of env: variables, or a command to run the program with. */
    explicit Program(const QStringList &arguments = {})
    {
        const QStringList fixed = { "PAIRDESK_TEST_CLICKER=1", "ASAN_OPTIONS=exitcode=99" }; // 1 is its own
        start("env", fixed + arguments + QStringList(QCoreApplication::applicationFilePath()));
        while (!canReadLine() && waitForReadyRead()) { }
        said = readAllStandardOutput().trimmed();
    }
    /** Clicks there, and gives the exit status; -1 for a crash or when there was no window. */
    int leave(const char *click)
    {
        write(QByteArray(click) + '\n');
        waitForFinished();
        return said == "shown" && exitStatus() == NormalExit ? exitCode() : -1;
    }
    QByteArray said;
};

class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { std::remove(paths::pidFile); }
    void looksForOthers()
    {
        const QByteArray own = QByteArray::number(getpid());
        for (const QByteArray &content : { own, own + '\0' + "letters", QByteArray(), QByteArray("letters"),
                                           QByteArray("\xff\0x", 3), QByteArray("99999999999999999999") }) {
            QVERIFY(put(pidFile, content));
            Program program;
            program.waitForFinished();
            QVERIFY(program.said == "Another instance is running. Exit." && program.exitCode() == 0);
            QCOMPARE(contentOf(pidFile), content);
        }
        const QString linked = m_bus.path("linked");
        QVERIFY(put(linked, own));
        for (const bool link : { false, true }) {
            init();
            QCOMPARE(link ? symlink(qPrintable(linked), paths::pidFile) : mkfifo(paths::pidFile, 0600), 0);
            QCOMPARE(Program().leave("ok"), 0);
            QVERIFY(!QFile::exists(pidFile) && contentOf(linked) == own);
        }
    }

    void startsBesideOtherUser()
    {
        // Nobody may still look into a build folder that is closed to others.
        QStringList asNobody = QString("setpriv --reuid=65534 --regid=65534 --clear-groups "
                                       "--inh-caps=+dac_override --ambient-caps=+dac_override")
                                   .split(' ');
        QVERIFY(put(pidFile, "1"));
        if (geteuid() == 0)
            QCOMPARE(chown(paths::pidFile, 65534, 65534), 0);
        else
            asNobody.clear(); // the first process is another user's anyway
        Program program(asNobody); // nor is the bus for nobody
        QCOMPARE(contentOf(pidFile), QByteArray::number(program.processId()));
        QCOMPARE(program.leave("close"), 1);
    }

    void leaves()
    {
        // A crash of the shell, which would turn one of systemctl into an exit code.
        QVERIFY(put(m_bus.path("bin/sh"), "#!/bin/sh\nkill -9 $$\n"));
        chmod(qPrintable(m_bus.path("bin/sh")), 0755);
        const QString crash = "PATH=" + m_bus.path("bin:") + qgetenv("PATH");
        const QString noBus = "DBUS_SYSTEM_BUS_ADDRESS=unix:path=" + m_bus.path("nothing");
        const QByteArray off = "[General]\naudioprofile=\ndebug=false\nenabled=false\nshowtrayicon=false\n";
        const QByteArray on = QByteArray(off).replace("enabled=false", "enabled=true");
        const struct {
            QString variable;
            int service;
            const char *click;
            int status;
            QByteArray stored;
        } ways[] = {
            { "A=", 0, "close", 1, {} }, { noBus, 0, "close", 1, {} }, { "A=", 0, "window", 1, {} },
            { "A=", 0, "ok", 0, on },    { "A=", 3, "ok", 0, off },    { crash, 0, "ok", 0, off },
        };
        for (const auto &[variable, service, click, status, stored] : ways) {
            QVERIFY(status == 1 || put(pidFile, "4194305")); // no process ever has this one
            QFile::remove(m_store);
            m_bus.scriptTool("systemctl", {}, service);
            Program program({ variable });
            QCOMPARE(contentOf(pidFile), QByteArray::number(program.processId()));
            QCOMPARE(program.leave(click), status);
            QCOMPARE(contentOf(m_store), stored);
            QVERIFY(!QFile::exists(pidFile));
        }
        m_bus.kill();
        Program daemonless;
        m_bus.start();
        QCOMPARE(daemonless.leave("ok"), 0);
    }

    void writesLog()
    {
        const auto log = QLatin1String(paths::debugLogFile);
        QVERIFY(put(m_store, "[General]\ndebug=true\n") && put(log, "an earlier run\n"));
        Program program;
        QCOMPARE(kill(static_cast<pid_t>(program.processId()), SIGHUP), 0);
        QTRY_COMPARE(contentOf(log).count("- btagent::hupSignalHandler\n"), 1);
        QCOMPARE(program.leave("ok"), 0);
        const QList<QByteArray> lines = contentOf(log).split('\n');
        QVERIFY(lines[0] == "an earlier run" && lines[1].endsWith(")- pairdesk::pairdesk in"));
    }

    void scansOnceOrTwice()
    {
        for (const int status : { 0, 1, 2 }) {
            m_bus.scriptTool("hcitool", {}, status);
            const int before = m_bus.toolCalls().count("hcitool lescan");
            Program program;
            QTRY_VERIFY(m_bus.toolCalls().count("hcitool lescan") > before);
            QCOMPARE(program.leave("close"), 1); // sees the click only after its scan
            QCOMPARE(m_bus.toolCalls().count("hcitool lescan"), before + (status == 1 ? 2 : 1));
        }
    }

private:
    Aside m_pidFile{ paths::pidFile };
    Aside m_log{ paths::debugLogFile };
    TestBus m_bus;
    QString m_store = m_bus.path("config/Zemra/pairdesk.conf");
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("PAIRDESK_TEST_CLICKER")) {
        qAddPreRoutine(installClicker);
        return programMain(argc, argv);
    }
    QCoreApplication application(argc, argv);
    TestProgram test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_program.moc"
