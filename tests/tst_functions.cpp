// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "app/language.h"
#include "app/paths.h"
#include "app/text.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"
#include "tests/support/files.h"
#include "widgets/stylesheet.h"

#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace audiocommands;

class TestFunctions : public QObject {
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
        put(paths::styleSheet, QByteArray(2 * 1024 * 1024, ' '));
        QVERIFY(windowStyleSheet().size() == 1024 * 1024 + rule.size());
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

    void readsProfileLines()
    {
        const std::pair<const char *, const char *> table[] = {
            { "\t\ta2dp_sink: High Fidelity Playback (A2DP Sink) (sinks: 1, sources: 0, priority: 40)",
              "a2dp_sink|High Fidelity Playback (A2DP Sink)|1|0" },
            { "\toff: Off (sinks: 0, sources: 0, priority: 0, available: yes)", "off|Off|0|0" },
            { "many: B & C (x: y) (sinks: 12, sources: 34)", "many|B & C (x: y)|1|3" },
            { "no 123456 colon", "no 123456 colon||0|0" },
            { "no sinks: Y (sources: 2)", "no sinks|Y (sources: 2)|0|2" },
            { "no description:(sinks: 1", "no description||1|0" },
        };
        for (const auto &[line, fields] : table) {
            const AudioProfile read(line);
            const QString numbers = QString("|%1|%2").arg(read.sinks).arg(read.sources);
            QCOMPARE(read.name + '|' + read.description + numbers, QString(fields));
        }
    }

    /** Of each listing and key: how many profiles, the last one, the active one. */
    void readsCards()
    {
        const QString pulseAudio = contentOf(TEST_DATA "/pactl/pulseaudio-cards.txt");
        const QString pipeWire = contentOf(TEST_DATA "/pactl/pipewire-cards.txt");
        const std::tuple<QString, const char *, const char *> table[] = {
            { pulseAudio, "bluez_card.00_AA_01_01_00_01", "3 off a2dp_sink" },
            { pipeWire, "VHeadset", "3 headset-head-unit audio-gateway" },
            { pipeWire, "bluez_card.", "18 headset-head-unit-msbc audio-gateway" },
            { pipeWire, "vheadset", "0  (none)" },
            { "Card #1 x\nProfiles:\n\t\ta: A\n\t\tb: B", "x", "2 b (none)" },
            { "Card #1 x\nProfiles:\n\t\ta: A\n\tActive Profile:\n", "x", "1 a " },
        };
        for (const auto &[listing, key, told] : table) {
            const CardProfiles whole = parseCards(listing, key, "00:1A:7D:10:00:01");
            const QString last = AudioProfile(whole.lines.value(whole.lines.size() - 1)).name;
            const QString active = whole.active.value_or("(none)");
            QCOMPARE(QString("%1 %2 %3").arg(QString::number(whole.lines.size()), last, active),
                     QString(told));
        }
    }

    void writesCommands()
    {
        QCOMPARE(record(" Mk-2  x:y "),
                 QString("parecord --channels=1 --device= Mk-2  x:y  /tmp/sample.wav"));
        QCOMPARE(listSinks("Hörer 耳機2"), QString("pactl list sinks short | grep Hörer 耳機2"));
        const std::pair<const char *, const char *> arguments[] = {
            { "My  Headset ", "set-card-profile|My|Headset|off" },
            { "Kopfhörer", "set-card-profile|Kopfhörer|off" },
            { "Anna's AirPods", "set-card-profile|Anna's|AirPods|off" },
            { "\"A  B\"", "set-card-profile|A  B|off" },
            { "", "set-card-profile|off" },
            { "a -v b", "--|set-card-profile|a|-v|b|off" },
            { "\"-\"-help", "--|set-card-profile|--help|off" },
        };
        for (const auto &[key, words] : arguments)
            QCOMPARE(setCardProfileByKey(key, "off").join('|'), QString(words));
        QCOMPARE(setCardProfileByName("a b", "off").join('|'), QString("set-card-profile|a b|off"));
        QCOMPARE(setCardProfileByName("a", "-b").join('|'), QString("--|set-card-profile|a|-b"));

        const QString note =
            "pactl() { :; }; grep() { printf '<%s>' \"$@\"; }; parecord() { grep \"$@\"; }; ";
        const QString keys =
            "x\"; touch owned; \" @ x'; touch owned; ' @ $(touch owned) @ `touch owned` @ x\n"
            "touch owned\n @ x | touch owned @ x & touch owned @ > owned @ -re . @ --help"
            " @ a -v b @ ~root @ * @ p? @ Kopfhörer @ \\ @ \t @ ${PATH} @ #x @ {a,b}";
        const QStringList hostile = keys.split(" @ ");
        for (const QString &key : hostile) {
            const QString pattern = key.startsWith('-') ? "[-]" + key.mid(1) : key;
            const QString listed = runShell(note + listSinks(key), 30000).standardOutput;
            QCOMPARE(listed, '<' + pattern + '>');
            const QString recorded = runShell(note + record(key), 30000).standardOutput;
            QCOMPARE(recorded, "<--channels=1><--device=" + key + "></tmp/sample.wav>");
            QCOMPARE(listSources(key), listSinks(key).replace("sinks", "sources") + " | grep -v monitor");
        }
    }
};

QTEST_GUILESS_MAIN(TestFunctions)
#include "tst_functions.moc"
