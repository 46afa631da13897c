// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own main(), run by this binary as a second process, whose user does what standard input says.
#include "app/paths.h"
#include "tests/support/hand.h"
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

/** Says when the main window is there. */
static void bringUser()
{
    auto *look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, look, [look] {
        if (Hand::front()->objectName() != "pairdesk")
            return;
        look->stop();
        std::cout << "shown" << std::endl;
        auto *told = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, look);
        QObject::connect(told, &QSocketNotifier::activated, look, [] {
            std::string deed;
            std::getline(std::cin, deed);
            Hand().does(QString::fromStdString(deed));
        });
    });
    look->start(5);
}

/** The program in a process of its own, once it has shown its window or said something else. */
struct Program : QProcess {
    /** The arguments are further ones of env: variables, or a command to run the program with. */
    explicit Program(const QStringList &arguments = {})
    {
        const QStringList fixed = { "PAIRDESK_TEST_USER=1", "ASAN_OPTIONS=exitcode=99" }; // 1 is its own
        start("env", fixed + arguments + QStringList(QCoreApplication::applicationFilePath()));
        while (!canReadLine() && waitForReadyRead()) { }
        said = readAllStandardOutput().trimmed();
    }
    /** Gives the exit status; -1 for a crash or when there was no window. */
    int leave(const char *deed)
    {
        write(QByteArray(deed) + '\n');
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
            put(pidFile, content);
            Program program;
            program.waitForFinished();
            QVERIFY(program.said == "Another instance is running. Exit." && program.exitCode() == 0);
            QCOMPARE(contentOf(pidFile), content);
        }
        const QString linked = m_bus.path("linked");
        put(linked, own);
        for (const bool link : { false, true }) {
            init();
            QCOMPARE(link ? symlink(qPrintable(linked), paths::pidFile) : mkfifo(paths::pidFile, 0600), 0);
            QCOMPARE(Program().leave("press ok"), 0);
            QVERIFY(!QFile::exists(pidFile) && contentOf(linked) == own);
        }
    }

    void startsBesideOtherUser()
    {
        // Nobody may still look into a build folder that is closed to others.
        QStringList asNobody = QString("setpriv --reuid=65534 --regid=65534 --clear-groups "
                                       "--inh-caps=+dac_override --ambient-caps=+dac_override")
                                   .split(' ');
        put(pidFile, "1");
        if (geteuid() == 0)
            QCOMPARE(chown(paths::pidFile, 65534, 65534), 0);
        else
            asNobody.clear(); // the first process is another user's anyway
        Program program(asNobody); // nor is the bus for nobody
        QCOMPARE(contentOf(pidFile), QByteArray::number(program.processId()));
        QCOMPARE(program.leave("press close"), 1);
    }

    void leaves()
    {
        // A crash of the shell, which would turn one of systemctl into an exit code.
        put(m_bus.path("bin/sh"), "#!/bin/sh\nkill -9 $$\n");
        chmod(qPrintable(m_bus.path("bin/sh")), 0755);
        const QString crash = "PATH=" + m_bus.path("bin:") + qgetenv("PATH");
        // variable, status of the service, deed, exit status, "enabled" in the settings
        const std::tuple<QString, int, const char *, int, QByteArray> ways[] = {
            { "A=", 0, "press close", 1, {} },
            { "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/", 0, "press close", 1, {} },
            { "A=", 0, "close pairdesk", 1, {} },
            { "A=", 0, "press ok", 0, "true" },
            { "A=", 3, "press ok", 0, "false" },
            { crash, 0, "press ok", 0, "false" },
        };
        for (const auto &[variable, service, deed, status, enabled] : ways) {
            if (status == 0)
                put(pidFile, "4194305"); // no process ever has this one
            QFile::remove(TestBus::store());
            m_bus.scriptTool("systemctl", {}, service);
            Program program({ variable });
            QCOMPARE(contentOf(pidFile), QByteArray::number(program.processId()));
            QCOMPARE(program.leave(deed), status);
            const QByteArray rest = "debug=false\nenabled=" + enabled + "\nshowtrayicon=false\n";
            QCOMPARE(contentOf(TestBus::store()), status == 0 ? "[General]\naudioprofile=\n" + rest : "");
            QVERIFY(!QFile::exists(pidFile));
        }
        m_bus.kill();
        Program daemonless;
        m_bus.start();
        QCOMPARE(daemonless.leave("press ok"), 0);
    }

    void writesLog()
    {
        put(TestBus::store(), "[General]\ndebug=true\n");
        put(paths::debugLogFile, "an earlier run\n");
        m_bus.sim("SetDevice", { "00:1A:7D:10:00:01", QVariantMap{ { "Alias", QString(5000, 'x') } } });
        Program program;
        QCOMPARE(program.said, QByteArray("shown"));
        QCOMPARE(kill(pid_t(program.processId()), SIGHUP), 0);
        TRY(contentOf(paths::debugLogFile).count("- btagent::hupSignalHandler\n") == 1);
        QCOMPARE(program.leave("press ok"), 0);
        const QList<QByteArray> lines = contentOf(paths::debugLogFile).split('\n');
        QVERIFY(lines[0] == "an earlier run" && lines[1].endsWith(")- pairdesk::pairdesk in"));
        QVERIFY(
            contentOf(paths::debugLogFile).contains("dev: " + QByteArray(1000, 'x') + ", type: headset\n"));

        const QString linked = m_bus.path("log");
        QVERIFY(QFile::remove(paths::debugLogFile) && symlink(qPrintable(linked), paths::debugLogFile) == 0);
        QCOMPARE(Program().leave("press ok"), 0);
        QVERIFY(!QFile::exists(linked));
    }

    void scansOnceOrTwice()
    {
        for (const int status : { 0, 1, 2 }) {
            m_bus.scriptTool("hcitool", {}, status);
            m_bus.takeCalls();
            Program program;
            QStringList scans;
            TRY((scans += m_bus.takeCalls().filter("hcitool lescan"), !scans.isEmpty()));
            QCOMPARE(program.leave("press close"), 1); // sees the click only after its scan
            QCOMPARE((scans + m_bus.takeCalls().filter("hcitool lescan")).size(), status == 1 ? 2 : 1);
        }
    }

private:
    TestBus m_bus;
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("PAIRDESK_TEST_USER")) {
        qAddPreRoutine(bringUser);
        return programMain(argc, argv);
    }
    QCoreApplication application(argc, argv);
    TestProgram test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_program.moc"
