// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "app/paths.h"
#include "app/textfile.h"
#include "tests/support/files.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

class TestApp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", path("config").toUtf8()); }
    void logsLines();
    void logsInChild();
    void keepsSettings();
    void runsCommands();
    void readsFiles();
    void readsStyleSheet();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QTemporaryDir m_folder;
};

void TestApp::logsLines()
{
    const QString log = path("log");
    QVERIFY(put(log, "an earlier run\n"));
    debugLog(3, "too early");
    debugLogOpen(qPrintable(path("other")), 0);
    debugLogOpen(qPrintable(log), 3);
    const QTime before = QTime::currentTime();
    debugLog(3, "name: %s, %d", "Kopfhörer", 7);
    debugLog(2, "lower");
    debugLog(4, "higher");
    debugLogOpen(qPrintable(path("other")), 0);
    debugLog(3, "level 0 changes nothing");
    debugLogOpen(qPrintable(path("other")), 2);
    debugLog(3, "no longer the level");
    debugLog(2, "now it is");
    debugLogClose();
    debugLogOpen(qPrintable(log), 2);
    debugLog(2, "never again");

    QStringList lines = QString::fromUtf8(contentOf(log)).split('\n');
    for (QString &line : lines) {
        const QRegularExpression prefix(
            QString("^(..:..:..)\\.0\\d{3} -\\(%1\\)- ").arg(getpid(), 5, 10, QChar('0')));
        const QTime time = QTime::fromString(prefix.match(line).captured(1));
        if (time.isValid() && (before.secsTo(time) + 86401) % 86400 < 10)
            line.remove(prefix);
    }
    QCOMPARE(lines, QStringList({ "an earlier run", "name: Kopfhörer, 7", "level 0 changes nothing",
                                  "now it is", "" }));
    QVERIFY(!QFile::exists(path("other")));
}

void TestApp::logsInChild()
{
    // The last one is a second try, after a file that cannot be opened.
    const QVector<QPair<const char *, int>> cases = {
        { "short", 4000 }, { "long", 5000 }, { "longer", 4080 }, { "missing/log", 10 }
    };
    for (const auto &[name, length] : cases) {
        qputenv("PAIRDESK_TEST_LOG", path(name).toUtf8());
        qputenv("PAIRDESK_TEST_LENGTH", QByteArray::number(length));
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), QStringList());
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), length > 4000 ? QProcess::CrashExit : QProcess::NormalExit);
        QCOMPARE(contentOf(path(name)).count('x'), length == 4000 ? length : 0);
        QVERIFY(!QFile::exists(path(name) + '2'));
    }
}

void TestApp::keepsSettings()
{
    const QString store = path("config/Zemra/pairdesk.conf");
    AppSettings settings;
    QVERIFY(!settings.enabled && !settings.showTrayIcon && !settings.debug);
    QCOMPARE(settings.audioProfile, "A2DP");
    settings.enabled = settings.showTrayIcon = settings.debug = true;
    QCOMPARE(settings.load(), 0);
    QVERIFY(!settings.enabled && !settings.showTrayIcon && !settings.debug
            && settings.audioProfile.isEmpty());
    settings.enabled = settings.debug = true;
    settings.audioProfile = "HSP/HFP";
    QCOMPARE(settings.save(), 0);
    QCOMPARE(contentOf(store),
             QByteArray("[General]\naudioprofile=HSP/HFP\ndebug=true\nenabled=true\nshowtrayicon=false\n"));
    AppSettings again;
    again.load();
    QVERIFY(again.enabled && !again.showTrayIcon && again.debug
            && again.audioProfile == settings.audioProfile);

    for (const QByteArray &content :
         { QByteArray("[General]\ndebug=maybe\nenabled=-\nshowtrayicon=@Rect(1 2)\n"),
           QByteArray("[General]\naudioprofile=@Variant(\\0\\0\\x7f\\xff)\n"),
           QByteArray("\0\xff[]\n@Variant(\0=\x80\xfe\0\n\\x\n", 22), QByteArray(1 << 20, 'y') }) {
        QVERIFY(put(store, content));
        again.load();
        QCOMPARE(again.audioProfile, QString());
        again.save();
    }
}

void TestApp::runsCommands()
{
    const auto outcome = [](const CommandResult &result) {
        return QString("%1|%2|%3%4%5")
            .arg(QString(result.standardOutput), QString(result.standardError),
                 QString::number(result.exitCode), result.crashed ? " crashed" : "",
                 result.finished ? "" : " unfinished");
    };
    const QString language = "printf $LC_ALL,$LANGUAGE";
    qputenv("LC_ALL", "de_DE.UTF-8");
    qputenv("LANGUAGE", "de");
    QCOMPARE(outcome(runShell("true", 30000)), "||0");
    QCOMPARE(outcome(runShell("printf hi; printf no >&2; exit 7", 30000)), "hi|no|7");
    QCOMPARE(outcome(runShell("printf hi; kill -9 $$", 30000)), "hi||9 crashed");
    QCOMPARE(outcome(runCommand(path("missing"), {}, 30000)), "||255");
    QCOMPARE(outcome(runShell(language, 30000)), "de_DE.UTF-8,de||0");
    QCOMPARE(outcome(runShell(language, 30000, Messages::Untranslated)), "C.UTF-8,||0");
    const CommandResult late = runShell("printf $$; exec sleep 60", 1000);
    QCOMPARE(outcome(late), late.standardOutput + "||0 unfinished");
    QVERIFY(late.standardOutput.toInt() > 0 && kill(late.standardOutput.toInt(), 0) == -1);
}

void TestApp::readsFiles()
{
    QByteArray bytes("untouched");
    QCOMPARE(mkfifo(qPrintable(path("fifo")), 0600), 0);
    for (const char *name : { "missing", "fifo", "." })
        QVERIFY2(!readTrustedFile(qPrintable(path(name)), &bytes), name);
    QCOMPARE(bytes, QByteArray("untouched"));
    const QByteArray binary("\xc3\xa4\0\xff\n", 5);
    QVERIFY(put(path("binary"), binary));
    QVERIFY(readTrustedFile(qPrintable(path("binary")), &bytes));
    QCOMPARE(bytes, binary);
    QCOMPARE(utf8Text(bytes), "ä");
    QCOMPARE(latin1Text(bytes), "Ã¤");
    QVERIFY(utf8Text({}).isNull() && readTrustedFile("/etc/passwd", &bytes));
    if (chown(qPrintable(path("binary")), 65534, 65534) != 0)
        QSKIP("only root can give a file away");
    QVERIFY(!readTrustedFile(qPrintable(path("binary")), &bytes));
}

void TestApp::readsStyleSheet()
{
    const Aside aside(paths::styleSheet);
    QVERIFY(userStyleSheet().isEmpty());
    QVERIFY(put(QLatin1String(paths::styleSheet), QByteArray("/* \xe4 */\n\0cut", 12)));
    QCOMPARE(userStyleSheet(), "/* ä */\n");
}

int main(int argc, char **argv)
{
    const QByteArray log = qgetenv("PAIRDESK_TEST_LOG");
    QCoreApplication application(argc, argv);
    TestApp test;
    if (log.isEmpty())
        return QTest::qExec(&test, argc, argv);
    // A process opens its log but once: this is a second one.
    debugLogOpen(log.constData(), 3);
    debugLogOpen((log + '2').constData(), 3);
    debugLog(3, "%s", QByteArray(qEnvironmentVariableIntValue("PAIRDESK_TEST_LENGTH"), 'x').constData());
    return 0;
}

#include "tst_app.moc"
