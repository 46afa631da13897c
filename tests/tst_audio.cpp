// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"
#include "dialogs/audiotest.h"
#include "tests/support/desk.h"

#include <QtTest>
#include <QtWidgets>

using namespace audiocommands;

static const char address[] = "00:1A:7D:10:00:01";

class TestAudio : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsProfileLines();
    void readsCards();
    void writesCommands();
    void works_data();
    void works();
    void triesPipeWiresNames();
};

void TestAudio::readsProfileLines()
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
void TestAudio::readsCards()
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
        QCOMPARE(QString("%1 %2 %3").arg(QString::number(whole.lines.size()), last, active), QString(told));
    }
    const CardProfiles whole = parseCards(pulseAudio, "VBox", address);
    for (int length = 0; length <= pulseAudio.size(); ++length) {
        const CardProfiles cut = parseCards(pulseAudio.left(length), "VBox", address);
        QVERIFY(whole.active->startsWith(cut.active.value_or(QString())));
        const QStringList sure = cut.lines.mid(0, cut.active ? -1 : cut.lines.size() - 1);
        QCOMPARE(sure, whole.lines.mid(0, sure.size()));
    }
}

void TestAudio::writesCommands()
{
    QCOMPARE(listSinks(sinkKey(address, "a2dp_sink")),
             QString("pactl list sinks short | grep bluez_sink.00_1A_7D_10_00_01.a2dp_sink"));
    QCOMPARE(listSources(sourceKey(address, "")),
             QString("pactl list sources short | grep bluez_source.00_1A_7D_10_00_01. | grep -v monitor"));
    QCOMPARE(record(" Mk-2  x:y "), QString("parecord --channels=1 --device= Mk-2  x:y  /tmp/sample.wav"));
    QCOMPARE(setCardProfile("My  Headset ", "off").join('|'), QString("set-card-profile|My|Headset|off"));

    const QString note = "pactl() { :; }; grep() { printf '<%s>' \"$@\"; }; parecord() { grep \"$@\"; }; ";
    const QString keys = "x\"; touch owned; \" @ x'; touch owned; ' @ $(touch owned) @ `touch owned` @ x\n"
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
        QCOMPARE(setCardProfile(key, "x"), QStringList({ "--", "set-card-profile", key, "x" }));
        QCOMPARE(setCardProfile("x", key), QStringList({ "--", "set-card-profile", "x", key }));
    }
}

/** The dialog itself writes no log. */
void TestAudio::works_data()
{
    QTest::addColumn<bool>("log");
    QTest::newRow("log open") << true;
}

/** With PulseAudio, and with PipeWire, where what the device is called is the key to everything. */
void TestAudio::works()
{
    Desk desk("audio", "");
    QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    put("/tmp/sample.wav", "of an earlier run");
    put(desk.path("bluez_card.00_1A_7D_10_00_03"), "off"); // another headset, which must not matter
    const QString name = "-x\"; touch owned; \"$(touch owned)`touch owned`' | touch owned; '";
    desk.verb("silence",
              [&](const QString &) { put("/tmp/sample.wav", ""), desk.scriptTool("parecord", "", 1); });
    desk.verb("refuse", [&](const QString &) {
        const QString off = desk.path("tools/pactl-set-card-profile-bluez_card.00_1A_7D_10_00_01-off.");
        put(off + "err", "<b>Failure</b>: Kein Gerät\n"), put(off + "status", "1");
    });
    desk.verb("sources", [&](const QString &) {
        desk.scriptTool("pactl-list-sources-short", "1\tbluez_source.00_1A_7D_10_00_03.handsfree_head_unit");
    });
    desk.verb("shorten", [&](const QString &) {
        desk.scriptTool("pactl-list-cards",
                        "Card #0 bluez_card.00_1A_7D_10_00_01\n Profiles:\n\ta2dp_sink: A");
    });
    desk.verb("pipewire", [&](const QString &) {
        desk.sim("SetDevice", { "00:1A:7D:10:00:01", QVariantMap{ { "Alias", name } } });
        desk.scriptTool("ps", "2 grep -q pipewire\n3 pipewire");
        desk.scriptTool("pactl-list-cards", "Card #1 " + name.toUtf8()
                                                + "\nProfiles:\n\ta: A (sinks: 1, sources: 1)\n"
                                                  "\tb;touch owned: B (sinks: 0)\n\tActive Profile: a\n");
        for (const char *tool : { "pactl-list-sinks-short", "pactl-list-sources-short" })
            desk.scriptTool(tool, name.toUtf8() + "\ts16le 1ch 16000Hz\n");
        QVERIFY(QFile::remove(desk.path("tools/parecord.out"))
                && QFile::remove(desk.path("tools/parecord.status")));
    });
    desk.does(QString(R"(
        open, set 00:1A:7D:10:00:01 Connected, set 00:1A:7D:10:00:02 Connected, menu Desk Keyboard
        menu Desk Keyboard@2, key Esc, menu Office Headset, key Esc, menu Office Headset, key Down, key Return, look
        press leftbt, press rightbt, choose 2, choose 1, look, press monobt, press record, press play
        silence, press record, close QMessageBox, sources, press record, close QMessageBox
        refuse, choose 2, close QMessageBox, close QMessageBox, shorten, choose 0, close QMessageBox, choose 2, press close
        menu Office Headset, lose 00:1A:7D:10:00:02, key Esc
        pipewire, menu %1, key Down, key Return, press monobt, press record, press play, choose 1, close QMessageBox
        press close, press close)")
                  .arg(name));
    QVERIFY(!QFile::exists("owned"));
    QDir::setCurrent("/"); // the folder goes
}

/** What PipeWire calls the headset is tried only where a click by the headset's own name has come to nothing.
 */
void TestAudio::triesPipeWiresNames()
{
    TestBus bus;
    QByteArray cards = contentOf(TEST_DATA "/pactl/pipewire-cards.txt");
    cards.replace("VHeadset", "Office Headset").replace("00_AA_01_01_00_01", "00_1A_7D_10_00_01");
    bus.scriptTool("ps", "3 pipewire");
    bus.scriptTool("pactl-list-cards", cards);
    audiotest dialog(bus.manager(), address, nullptr);
    QStringList boxes;
    QTimer look;
    connect(&look, &QTimer::timeout, &dialog, [&boxes] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            boxes += box->text(), box->accept();
    });
    look.start(5);
    const auto calls = [&bus] { return bus.takeCalls().filter(QRegularExpression("^pa")).join('|'); };
    const QString listing = "pactl list cards|pactl list sinks short";
    QCOMPARE(calls(), listing + "|pactl list sources short");

    for (const char *refused : { "Office-Headset-headset-head-unit", "bluez_card.00_1A_7D_10_00_01-off" }) {
        put(bus.path("tools/pactl-set-card-profile-Office-Headset-off.err"), "no such entity");
        bus.scriptTool("pactl-set-card-profile-Office-Headset-off", {}, 1);
        bus.scriptTool(QString("pactl-set-card-profile-") + refused, {}, 1);
        const QString profile = QString(refused).contains("unit") ? "headset-head-unit" : "off";
        cards.replace("Active Profile: audio-gateway", "Active Profile: headset-head-unit");
        bus.scriptTool("pactl-list-cards", cards);
        dialog.findChild<QComboBox *>()->setCurrentIndex(profile == "off" ? 0 : 2);
        const QString set = "pactl set-card-profile %1 " + profile + '|';
        QCOMPARE(calls(), set.arg("Office Headset") + set.arg("bluez_card.00_1A_7D_10_00_01") + listing);
    }
    QCOMPARE(boxes, QStringList({ "no such entity", "An error occure while changing profile" }));

    const std::pair<const char *, const char *> sources[] = {
        { "1\tbluez_input.00_1A_7D_10_00_02.0\n2\tbluez_output.00_1A_7D_10_00_01.1.monitor\n", "" },
        { "1\talsa_input.pci\n2\tbluez_input.00:1a:7d:10:00:01\n", "bluez_input.00:1a:7d:10:00:01" },
    };
    for (const auto &[listed, found] : sources) {
        bus.scriptTool("pactl-list-sources-short", listed);
        dialog.findChild<QPushButton *>("record")->click();
        const QString recording = QString("|parecord --channels=1 --device=%1 /tmp/sample.wav").arg(found);
        QCOMPARE(calls(), "pactl list sources short|pactl list sources short" + (*found ? recording : ""));
    }
    QCOMPARE(boxes.mid(2), QStringList("An error occurred while getting the audio source name."));
}

QTEST_MAIN(TestAudio)
#include "tst_audio.moc"
