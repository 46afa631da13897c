// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "app/language.h"
#include "app/look.h"
#include "app/paths.h"
#include "app/text.h"
#include "tests/support/testbus.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestApp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void logsLines()
    {
        const QString log = path("log");
        put(log, "earlier\n");
        debugLogOpen(qPrintable(log), 2);
        debugLogOpen(qPrintable(path("other")), 3);
        debugLogOpen(qPrintable(path("other")), 0); // changes nothing
        const QTime before = QTime::currentTime();
        debugLog(3, "name: %s, %d", "Kopfhörer", 7);
        debugLog(2, "lower");
        debugLog(3, "%s", QByteArray(4068, 'x').constData());
        if (fork() == 0) {
            signal(SIGABRT, SIG_DFL);
            debugLog(3, "%s", QByteArray(4072, 'x').constData());
            _exit(0);
        }
        int status = 0;
        QVERIFY(wait(&status) > 0 && WTERMSIG(status) == SIGABRT);
        debugLogClose();
        debugLogOpen(qPrintable(log), 3);
        debugLog(3, "never again");
        const QString format = "^earlier\n(..:..:..)\\.0\\d{3} -\\(%1\\)- name: Kopfhörer, 7\n.*- x{4068}\n$";
        const QRegularExpression lines(format.arg(getpid(), 5, 10, QChar('0')));
        const QTime time = QTime::fromString(lines.match(contentOf(log)).captured(1));
        QVERIFY2(time.isValid() && (before.secsTo(time) + 86401) % 86400 < 10, contentOf(log));
        QVERIFY(!QFile::exists(path("other")));
    }

    void keepsSettings()
    {
        qputenv("XDG_CONFIG_HOME", path("config").toUtf8());
        const QString store = path("config/Zemra/pairdesk.conf");
        AppSettings settings;
        QCOMPARE(settings.audioProfile, "A2DP");
        settings.enabled = settings.showTrayIcon = settings.debug = true;
        for (const QByteArray rubbish :
             { "", "[General]\naudioprofile=@Variant(\\xff)\n", "\xff[]\n=\x80\n" }) {
            put(store, rubbish);
            settings.load();
            const bool on = settings.enabled || settings.showTrayIcon || settings.debug;
            QVERIFY(!on && settings.audioProfile.isEmpty());
        }
        for (const QByteArray stored : { "HSP/HFP\ndebug=true\nenabled=false\nshowtrayicon=true\n",
                                         "x\ndebug=false\nenabled=true\nshowtrayicon=false\n" }) {
            put(store, "[General]\naudioprofile=" + stored);
            settings.load();
            QFile::remove(store);
            settings.save();
            QCOMPARE(contentOf(store), "[General]\naudioprofile=" + stored);
        }
    }

    void choosesLanguage()
    {
        for (const char *chosen : { "de-AT=de", "de,de-DE,de-Latn-DE=de", "nl-NL,fr-CA,en=fr",
                                    "an-ES,es,en=es", "pt-PT=pt_BR", "zh-CN=zh_CN", "zh-Hans-SG=zh_CN",
                                    "zh-TW,ja=ja", "zh-Hant-TW,zh=", "en-GB,de=", "C,de=", "nl=", "=" }) {
            const QString languages = QString(chosen).section('=', 0, 0);
            QCOMPARE(languages + '=' + catalogueFor(languages.split(',')), chosen);
        }
    }

    void runsCommands()
    {
        const auto outcome = [](const CommandResult &run) {
            const char *end = run.crashed ? " crashed" : run.finished ? "" : " unfinished";
            return run.standardOutput + '|' + run.standardError + QString("|%1%2").arg(run.exitCode).arg(end);
        };
        qputenv("LC_ALL", "de_DE.UTF-8");
        qputenv("LANGUAGE", "de");
        const QString language = "printf $LC_ALL,$LANGUAGE; printf no >&2; exit 7";
        QCOMPARE(outcome(runShell(language, 30000)), "de_DE.UTF-8,de|no|7");
        QCOMPARE(outcome(runShell(language, 30000, Messages::Untranslated)), "C.UTF-8,|no|7");
        QCOMPARE(outcome(runShell("printf hi; kill -9 $$", 30000)), "hi||9 crashed");
        QCOMPARE(outcome(runCommand(path("missing"), {}, 30000)), "||255");
        const CommandResult late = runShell("printf $$; exec sleep 60", 1000);
        QCOMPARE(outcome(late), QString(late.standardOutput) + "||0 unfinished");
        QVERIFY(late.standardOutput.toInt() > 0 && kill(late.standardOutput.toInt(), 0) == -1);
    }

    void readsTexts()
    {
        const QString rule = "QPushButton:disabled { background-color:#3f3f3f; }";
        QCOMPARE(windowStyleSheet(), rule);
        put(paths::styleSheet, QByteArray("/* \xe4 */\n\0cut", 12));
        QCOMPARE(windowStyleSheet(), "/* ä */\n" + rule);
        if (chown(paths::styleSheet, 65534, 65534) == 0) // only root can
            QCOMPARE(windowStyleSheet(), rule);
        QVERIFY(QFile::remove(paths::styleSheet) && mkfifo(paths::styleSheet, 0600) == 0);
        QCOMPARE(windowStyleSheet(), rule);
        QVERIFY(QFile::remove(paths::styleSheet));

        QCOMPARE(utf8Text(QByteArray("\xc3\xa4\0\xff\n", 5)), "ä");
        QCOMPARE(clippedUtf8(QString(1000, 'x')), QByteArray(1000, 'x'));
        QCOMPARE(clippedUtf8('x' + QString(5000, 0xe4)), QString('x' + QString(499, 0xe4)).toUtf8());
    }

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestApp)
#include "tst_app.moc"
