// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own main(), run by this binary as a second process that takes its clicks from standard input.
#include "app/paths.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <QtTest>

#include <csignal>
#include <functional>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

int programMain(int argc, char **argv);

static const auto pidFile = QLatin1String(paths::pidFile);
static const auto logFile = QLatin1String(paths::debugLog);

/** Says when the main window is there, and from then on presses its button "ok" or "close", or closes it. */
static void installClicker()
{
    auto *look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, [look] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (!qobject_cast<pairdesk *>(window) || !window->isVisible())
                continue;
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
        }
    });
    look->start(5);
}

/** For a start without the daemon: the library never frees the call that it then returns. */
static const QMap<QString, QString> leaky = { { "ASAN_OPTIONS", "exitcode=99:detect_leaks=0" } };

/** The program in a process of its own. */
struct Program : QProcess {
    explicit Program(const QMap<QString, QString> &variables = {}, const QStringList &wrapper = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PAIRDESK_TEST_CLICKER", "1");
        environment.insert("ASAN_OPTIONS", "exitcode=99"); // 1 is one of the program's own
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        setProcessEnvironment(environment);
        const QStringList command = wrapper + QStringList(QCoreApplication::applicationFilePath());
        start(command.first(), command.mid(1));
    }
    ~Program() override
    {
        kill();
        waitForFinished();
    }
    /** Waits for the window; "shown" then, or what the program said instead. */
    QByteArray said()
    {
        while (!canReadLine() && waitForReadyRead()) { }
        return readAllStandardOutput().trimmed();
    }
    /** Clicks there, and gives the exit status. */
    int leave(const char *click)
    {
        write(click);
        write("\n");
        waitForFinished();
        return exitStatus() == NormalExit ? exitCode() : -1;
    }
};

class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void refusesSecondInstance();
    void startsAnywhereElse();
    void startsBesideOtherUser();
    void leaves_data();
    void leaves();
    void writesLog();
    void startsWithoutDaemon();
    void takesCrashForOff();
    void scansOnceOrTwice();
    void survivesStyleSheets();

private:
    QString store() const { return m_bus.path("config/Zemra/pairdesk.conf"); }
    Aside m_pidFile{ paths::pidFile };
    Aside m_log{ paths::debugLog };
    Aside m_styleSheet{ paths::styleSheet };
    TestBus m_bus;
};

void TestProgram::init()
{
    for (const char *path : { paths::pidFile, paths::debugLog, paths::styleSheet })
        std::remove(path);
    QFile::remove(store());
}

void TestProgram::refusesSecondInstance()
{
    const QByteArray own = QByteArray::number(getpid());
    for (const QByteArray &content :
         { own, own + '\0' + "letters", QByteArray(), QByteArray("letters"), QByteArray("-1"),
           QByteArray("\xff\0x", 3), QByteArray("99999999999999999999"), QByteArray(10 << 20, '9') }) {
        QVERIFY(put(pidFile, content));
        Program program;
        QCOMPARE(program.said(), QByteArray("Another instance is running. Exit."));
        QCOMPARE(program.leave(""), 0);
        QVERIFY2(contentOf(pidFile) == content, content.left(80));
    }
}

void TestProgram::startsAnywhereElse()
{
    const QString linked = m_bus.path("linked");
    const QByteArray own = QByteArray::number(getpid());
    QVERIFY(put(linked, own));
    const std::function<bool()> places[] = {
        [] { return true; },
        [] { return put(pidFile, "4194305"); }, // no process ever has this one
        [] { return mkfifo(paths::pidFile, 0600) == 0; },
        [] { return mkdir(paths::pidFile, 0700) == 0; },
        [&] { return symlink(qPrintable(linked), paths::pidFile) == 0; },
    };
    int written = 0;
    for (const std::function<bool()> &prepare : places) {
        init();
        QVERIFY(prepare());
        Program program;
        QCOMPARE(program.said(), QByteArray("shown"));
        const QFileInfo info(pidFile);
        const bool directory = info.isDir();
        if (info.isFile() && !info.isSymLink() && ++written)
            QCOMPARE(contentOf(pidFile), QByteArray::number(program.processId()));
        QCOMPARE(program.leave("ok"), 0);
        QCOMPARE(QFileInfo(pidFile).exists() || QFileInfo(pidFile).isSymLink(), directory);
    }
    QCOMPARE(written, 2);
    QCOMPARE(contentOf(linked), own);
}

void TestProgram::startsBesideOtherUser()
{
    QStringList asNobody;
    QVERIFY(put(pidFile, "1"));
    if (getuid() == 0) {
        asNobody = QStringList({ "setpriv", "--reuid=65534", "--regid=65534", "--clear-groups" });
        const QStringList reach = { "test", "-x", QCoreApplication::applicationFilePath() };
        if (QProcess::execute("setpriv", asNobody.mid(1) + reach) != 0)
            QSKIP("the user nobody cannot run this test");
        QCOMPARE(chown(paths::pidFile, 65534, 65534), 0);
    }
    Program program(leaky, asNobody); // nor is the bus for nobody
    QCOMPARE(program.said(), QByteArray("shown"));
    QCOMPARE(contentOf(pidFile), QByteArray::number(program.processId()));
    QCOMPARE(program.leave("close"), 1);
    QVERIFY(!QFile::exists(pidFile));
}

void TestProgram::leaves_data()
{
    QTest::addColumn<int>("service");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("stored");
    const QByteArray off = "[General]\naudioprofile=\ndebug=false\nenabled=false\nshowtrayicon=false\n";
    QTest::newRow("ok") << 0 << 0 << QByteArray(off).replace("enabled=false", "enabled=true");
    QTest::newRow("ok ") << 3 << 0 << off;
    QTest::newRow("close") << 0 << 1 << QByteArray();
    QTest::newRow("window") << 0 << 1 << QByteArray();
}

void TestProgram::leaves()
{
    QFETCH(int, service);
    m_bus.scriptTool("systemctl", {}, service);
    Program program;
    QTEST(program.leave(QTest::currentDataTag()), "status");
    QTEST(contentOf(store()), "stored");
    QVERIFY(!QFile::exists(pidFile));
}

void TestProgram::writesLog()
{
    QVERIFY(put(store(), "[General]\ndebug=true\n") && put(logFile, "an earlier run\n"));
    Program program;
    QCOMPARE(program.said(), QByteArray("shown"));
    QCOMPARE(kill(static_cast<pid_t>(program.processId()), SIGHUP), 0);
    QTRY_COMPARE(contentOf(logFile).count("- btagent::hupSignalHandler\n"), 1);
    QCOMPARE(program.leave("ok"), 0);
    QCOMPARE(contentOf(logFile).count("hupSignalHandler"), 1);
    const QList<QByteArray> lines = contentOf(logFile).split('\n');
    QCOMPARE(lines.first(), QByteArray("an earlier run"));
    QVERIFY2(lines.value(1).endsWith(")- pairdesk::pairdesk in"), lines.value(1));
    QVERIFY2(lines.value(lines.size() - 2).endsWith(")- pairdesk::on_ok_clicked out"),
             lines.value(lines.size() - 2));
}

void TestProgram::startsWithoutDaemon()
{
    QMap<QString, QString> variables = leaky;
    variables.insert("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + m_bus.path("nothing"));
    Program busless(variables);
    QCOMPARE(busless.said(), QByteArray("shown"));
    QCOMPARE(busless.leave("close"), 1);
    m_bus.kill();
    Program daemonless(leaky);
    QCOMPARE(daemonless.said(), QByteArray("shown"));
    m_bus.start();
    QCOMPARE(daemonless.leave("ok"), 0);
}

void TestProgram::takesCrashForOff()
{
    // The shell, which would turn a crash of systemctl into an exit code.
    QVERIFY(put(store(), "[General]\nenabled=true\n")
            && put(m_bus.path("bin/sh"), "#!/bin/sh\nkill -9 $$\n"));
    QCOMPARE(chmod(qPrintable(m_bus.path("bin/sh")), 0755), 0);
    Program program({ { "PATH", m_bus.path("bin:") + qgetenv("PATH") } });
    QCOMPARE(program.said(), QByteArray("shown"));
    QCOMPARE(program.leave("ok"), 0);
    QVERIFY2(contentOf(store()).contains("enabled=false"), contentOf(store()));
}

void TestProgram::scansOnceOrTwice()
{
    for (const int status : { 0, 1, 2 }) {
        m_bus.scriptTool("hcitool", {}, status);
        const int before = m_bus.toolCalls().count("hcitool lescan");
        Program program;
        QTRY_VERIFY(m_bus.toolCalls().count("hcitool lescan") > before);
        // Does not see the click before its scan is over.
        QCOMPARE(program.leave("close"), 1);
        QCOMPARE(m_bus.toolCalls().count("hcitool lescan"), before + (status == 1 ? 2 : 1));
    }
}

void TestProgram::survivesStyleSheets()
{
    const auto styleSheet = QLatin1String(paths::styleSheet);
    const std::function<bool()> sheets[] = {
        [=] { return put(styleSheet, QByteArray("QPushButton { \0\xff", 16)); },
        [=] { return put(styleSheet, "}}{{ * { image: url(/dev/zero) \xff\n" + QByteArray(1 << 20, '{')); },
        [] { return mkfifo(paths::styleSheet, 0600) == 0; },
        [] { return mkdir(paths::styleSheet, 0700) == 0; },
    };
    for (const std::function<bool()> &prepare : sheets) {
        init();
        QVERIFY(prepare());
        Program program;
        QCOMPARE(program.said(), QByteArray("shown"));
        QCOMPARE(program.leave("ok"), 0);
    }
}

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
