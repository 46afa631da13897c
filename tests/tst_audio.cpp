// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"
#include "tests/support/testbus.h"

#include <QtTest>

using namespace audiocommands;

static const char address[] = "00:1A:7D:10:00:01";

class TestAudio : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
            const CardProfiles whole = parseCards(listing, key, address);
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
        QCOMPARE(listSinks("Kopfhörer 耳機2"), QString("pactl list sinks short | grep Kopfhörer 耳機2"));
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

QTEST_GUILESS_MAIN(TestAudio)
#include "tst_audio.moc"
