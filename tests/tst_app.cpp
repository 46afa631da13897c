// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "app/language.h"
#include "app/paths.h"
#include "app/text.h"
#include "tests/support/testbus.h"
#include "widgets/stylesheet.h"

#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

class TestApp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void logsLines()
    {
        debugLogOpen(paths::debugLogFile, 2);
        debugLogOpen(paths::audioSample, 3); // only sets the level
        debugLogOpen(paths::audioSample, 0); // not even that
        debugLog(3, "name: %s, %d", "Kopfhörer", 7);
        debugLog(2, "lower");
        debugLog(3, "%s", QByteArray(4068, 'x').constData());
        debugLogClose();
        debugLogOpen(paths::debugLogFile, 3);
        debugLog(3, "never again");
        const QString format = "^(..:..:..)\\.0\\d{3} -\\(%1\\)- name: Kopfhörer, 7\n.*- x{4068}\n$";
        const QRegularExpression lines(format.arg(getpid(), 5, 10, QChar('0')));
        const QByteArray log = contentOf(paths::debugLogFile);
        const QTime time = QTime::fromString(lines.match(log).captured(1));
        QVERIFY2(time.isValid() && (time.secsTo(QTime::currentTime()) + 86400) % 86400 < 10, log);
    }

    void choosesLanguage()
    {
        // What Qt makes of LANG and LANGUAGE. It appends "zh-CN" to "zh", and "C" to a language that it does
        // not know.
        const std::pair<const char *, const char *> languages[] = {
            { "de-AT,de-Latn-AT,de,de-DE,de-Latn-DE", "de" },
            { "nb,nb-NO,nb-Latn-NO,fr-CA,fr-Latn-CA,en", "fr" },
            { "pt-PT,pt-Latn-PT,pt", "pt_BR" },
            { "en-GB,en-Latn-GB,en,de,de-DE,de-Latn-DE", "" },
            { "zh-CN,zh,zh-Hans-CN", "zh_CN" },
            { "zh-SG,zh-Hans-SG", "zh_CN" },
            { "zh,zh-CN,zh-Hans-CN", "zh_CN" },
            { "zh-TW,zh-Hant-TW,zh,zh-CN,zh-Hans-CN", "" },
            { "zh-HK,zh-Hant-HK,zh,zh-Hans-CN,zh-CN,de,de-DE", "de" },
            { "lij,C,it,it-IT,it-Latn-IT", "it" },
            { "csb,pl,pl-Latn-PL,pl-PL,C", "pl" },
            { "vec,C", "" },
            { "ar-EG,ar,ar-Arab-EG", "" },
            { "C", "" },
        };
        for (const auto &[tags, catalogue] : languages)
            QCOMPARE(QString("%1: %2").arg(tags, catalogueFor(QString(tags).split(','))),
                     QString("%1: %2").arg(tags, catalogue));
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
        QCOMPARE(outcome(runShell("kill -9 $$", 30000)), "||9 crashed");
        QCOMPARE(outcome(runCommand("/missing", {}, 30000)), "||255");
        const CommandResult late = runShell("printf $$; exec sleep 60", 1000);
        QCOMPARE(outcome(late), QString(late.standardOutput) + "||0 unfinished");
        QCOMPARE(kill(late.standardOutput.toInt(), 0), -1);
    }

    void readsTexts()
    {
        const QString rule = "QPushButton:disabled { background-color:#3f3f3f; }";
        put(paths::styleSheet, QByteArray("/* \xe4 */\n\0cut", 12));
        QCOMPARE(windowStyleSheet(), "/* ä */\n" + rule);
        if (chown(paths::styleSheet, 65534, 65534) == 0) // only root can
            QCOMPARE(windowStyleSheet(), rule);
        put("/tmp/linked.css", "/* elsewhere */");
        QVERIFY(QFile::remove(paths::styleSheet) && symlink("/tmp/linked.css", paths::styleSheet) == 0);
        QCOMPARE(windowStyleSheet(), rule);
        QVERIFY(QFile::remove(paths::styleSheet) && mkfifo(paths::styleSheet, 0600) == 0);
        QCOMPARE(windowStyleSheet(), rule);

        QCOMPARE(utf8Text(QByteArray("\xc3\xa4\0\xff\n", 5)), "ä");
        QCOMPARE(clippedUtf8('x' + QString(5000, QChar(0xe4))), 'x' + QByteArray("ä").repeated(499));
    }
};

QTEST_GUILESS_MAIN(TestApp)
#include "tst_app.moc"
