// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandrunner.h"
#include "app/paths.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audiotest.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <QtTest>
#include <QtWidgets>

using namespace audiocommands;

static const char headset[] = "00:1A:7D:10:00:01";
static const char card[] = "bluez_card.00_1A_7D_10_00_01";

class TestAudio : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void readsProfileLines();
    void readsCards();
    void writesCommands();
    void usesPulseAudio();
    void usesPipeWire();
    void opensFromMenu();

private:
    QTemporaryDir m_folder; // the current one, too
    const Aside m_sample{ paths::audioSample };
};

/** The machine's own sound server is none of the tests' business. */
void TestAudio::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
    qputenv("PATH", m_folder.path().toUtf8() + ':' + qgetenv("PATH"));
    QVERIFY(put("ps", "#!/bin/sh\necho 2 grep -q pipewire; cat \"$PAIRDESK_DEMO_STATE/ps\" 2>/dev/null"));
    QVERIFY(QFile::setPermissions("ps", QFile::ReadOwner | QFile::ExeOwner));
}

void TestAudio::cleanup() { QVERIFY(!QFile::exists("owned") && !QApplication::overrideCursor()); }

static QStringList soundCalls(const TestBus &bus)
{
    return bus.toolCalls().filter(QRegularExpression("^(amixer|killall|pactl|parecord|pw-play)"));
}

static void click(const audiotest &dialog, const QStringList &buttons)
{
    for (const QString &button : buttons)
        dialog.findChild<QPushButton *>(button)->click();
}

/** The chosen profile, what is enabled and the playback buttons that are shown. */
static QString state(const audiotest &dialog)
{
    QStringList words{ dialog.findChild<QComboBox *>("profiles")->currentText() };
    for (const char *name : { "output", "input", "record", "play" })
        words += QStringList(name).mid(dialog.findChild<QWidget *>(name)->isEnabled() ? 0 : 1);
    for (const char *name : { "leftbt", "monobt", "rightbt" })
        words += QStringList(name).mid(dialog.findChild<QWidget *>(name)->isHidden() ? 1 : 0);
    return words.join('|');
}

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
        const CardProfiles whole = parseCards(listing, key, headset);
        const QString last = AudioProfile(whole.lines.value(whole.lines.size() - 1)).name;
        const QString active = whole.active.value_or("(none)");
        QCOMPARE(QString("%1 %2 %3").arg(QString::number(whole.lines.size()), last, active), QString(told));
    }
    const CardProfiles whole = parseCards(pulseAudio, "VBox", headset);
    for (int length = 0; length <= pulseAudio.size(); ++length) {
        const CardProfiles cut = parseCards(pulseAudio.left(length), "VBox", headset);
        QVERIFY(whole.active->startsWith(cut.active.value_or(QString())));
        const QStringList sure = cut.lines.mid(0, cut.active ? -1 : cut.lines.size() - 1);
        QCOMPARE(sure, whole.lines.mid(0, sure.size()));
    }
}

void TestAudio::writesCommands()
{
    QCOMPARE(listSinks(sinkKey(headset, "a2dp_sink")),
             QString("pactl list sinks short | grep bluez_sink.00_1A_7D_10_00_01.a2dp_sink"));
    QCOMPARE(listSources(sourceKey(headset, "")),
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

static const char balance[] = "amixer -D pulse set Master ";

/** The calls for left, mono and right, the balance's return coming later. */
static QStringList playCalls(const QString &play)
{
    return { balance + QString("100%,0%"),   play.arg("left"),
             balance + QString("100%,100%"), play.arg("center"),
             balance + QString("0%,100%"),   play.arg("right"),
             balance + QString("100%,100%"), balance + QString("100%,100%") };
}

/** The other headset is in another state, which must not show. */
void TestAudio::usesPulseAudio()
{
    TestBus bus;
    QVERIFY(put(bus.path("bluez_card.00_1A_7D_10_00_03"), "off"));
    QVERIFY(put(paths::audioSample, "of an earlier run"));
    audiotest dialog(bus.manager(), headset, nullptr);
    QVERIFY(!QFile::exists(paths::audioSample));
    QCOMPARE(state(dialog), QString("High Fidelity Playback (A2DP Sink)|output|leftbt|rightbt"));
    const QString upload =
        "pactl upload-sample /usr/share/sounds/freedesktop/stereo/audio-channel-front-%1.oga %1";
    QStringList calls{ upload.arg("left"), upload.arg("right"),      upload.arg("center"),
                       "pactl list cards", "pactl list sinks short", "pactl list sources short" };
    click(dialog, { "leftbt", "monobt", "rightbt" });
    calls += playCalls("pactl play-sample %1");
    QTRY_COMPARE(soundCalls(bus), calls);

    auto *profiles = dialog.findChild<QComboBox *>("profiles");
    profiles->setCurrentIndex(2);
    QCOMPARE(state(dialog), QString("Off|leftbt|rightbt"));
    profiles->setCurrentIndex(1);
    QCOMPARE(state(dialog), QString("Handsfree Head Unit (HFP)|output|input|record|monobt"));
    QString blocked;
    QTimer::singleShot(0, &dialog, [&] {
        blocked = state(dialog) + QString::number(QApplication::overrideCursor()->shape());
    });
    click(dialog, { "record" });
    QCOMPARE(blocked, QString("Handsfree Head Unit (HFP)|output|input|monobt3"));
    QCOMPARE(state(dialog), QString("Handsfree Head Unit (HFP)|output|input|record|play|monobt"));

    QVERIFY(put(paths::audioSample, ""));
    bus.scriptTool("parecord", "", 1);
    QStringList seen;
    closeBox(&seen);
    click(dialog, { "record" });
    QCOMPARE(state(dialog), QString("Handsfree Head Unit (HFP)|output|input|record|monobt"));
    bus.scriptTool("pactl-list-sources-short", "1\tbluez_source.00_1A_7D_10_00_03.handsfree_head_unit");
    closeBox(&seen);
    click(dialog, { "record" });

    const QString script = bus.path(QString("tools/pactl-set-card-profile-%1-off.").arg(card));
    QVERIFY(put(script + "err", "<b>Failure</b>: Kein Gerät\n") && put(script + "status", "1"));
    closeBox(&seen);
    closeBox(&seen);
    profiles->setCurrentIndex(2);
    QCOMPARE(state(dialog), QString("Handsfree Head Unit (HFP)|output|input|record|monobt"));
    QCOMPARE(
        seen.join('|'),
        QString(
            "Sample Record: An error occurred while reconding the audio sample.\nThe file is empty|Audio "
            "source name: An error occurred while getting the audio source name.|Bluetooth Audio Profile: "
            "<b>Failure</b>: Kein Gerät\n|Bluetooth Audio Profile: An error occure while changing profile"));
    bus.scriptTool("pactl-list-cards", QByteArray("Card #0 ") + card + "\n Profiles:\n\ta2dp_sink: A");
    closeBox(&seen);
    profiles->setCurrentIndex(0);
    profiles->setCurrentIndex(2); // no longer there
    QCOMPARE(soundCalls(bus).filter("set-card-profile").size(), 4);
}

/** The name of the device is the key to everything. */
void TestAudio::usesPipeWire()
{
    TestBus bus;
    const QString name = "-x\"; touch owned; \"$(touch owned)`touch owned`' | touch owned; '";
    bus.sim("SetDevice", { headset, QVariantMap{ { "Alias", name } } });
    QTRY_VERIFY(bus.device(name));
    QVERIFY(put(bus.path("ps"), "3 pipewire"));
    bus.scriptTool("pactl-list-cards", "Card #1 " + name.toUtf8()
                                           + "\nProfiles:\n\ta: A (sinks: 1, sources: 1)\n\tb;touch owned: B "
                                             "(sinks: 0)\n\tActive Profile: a\n");
    for (const char *tool : { "pactl-list-sinks-short", "pactl-list-sources-short" })
        bus.scriptTool(tool, name.toUtf8() + "\ts16le 1ch 16000Hz\n");
    audiotest dialog(bus.manager(), headset, nullptr);
    QCOMPARE(state(dialog), QString("A|output|input|record|monobt"));
    QStringList calls{ "pactl list cards", "pactl list sinks short", "pactl list sources short" };
    click(dialog, { "leftbt", "monobt", "rightbt" });
    calls += playCalls("pw-play /usr/share/sounds/freedesktop/stereo/audio-channel-front-%1.oga");
    QTRY_COMPARE(soundCalls(bus), calls);
    click(dialog, { "record", "play" });
    QStringList seen;
    closeBox(&seen);
    dialog.findChild<QComboBox *>("profiles")->setCurrentIndex(1);
    calls << "pactl list sources short"
          << "parecord --channels=1 --device=" + name + " /tmp/sample.wav";
    calls << "killall parecord"
          << "parecord -p /tmp/sample.wav";
    calls << "pactl -- set-card-profile " + name + " b;touch owned" << calls.mid(0, 2);
    QCOMPARE(soundCalls(bus), calls);
    bus.scriptTool("pactl-list-cards", "Card #1\nProfiles:\n\ta: A (sinks: 0)\n\tActive Profile: a\n");
    QCOMPARE(state(audiotest(bus.manager(), "00:00:00:00:00:00", nullptr)), QString("A|leftbt|rightbt"));
}

/** Of each story: the menu, and the buttons that are enabled or the dialog that opened. */
void TestAudio::opensFromMenu()
{
    const std::pair<const char *, const char *> table[] = {
        { "Office Headset:dismissed", "Audio test|disconnect|remove" },
        { "Office Headset:chosen", "Audio test|Bluetooth Audio Test" },
        { "Office Headset:removed", "Audio test" },
        { "Office Headset:removed, chosen", "Audio test|Bluetooth Audio Test" },
        { "Desk Keyboard:", "disconnect|remove" },
        { "Desk Keyboard:topmost", "Audio test" },
    };
    for (const auto &row : table) {
        const QString name = QString(row.first).section(':', 0, 0),
                      story = QString(row.first).section(':', 1);
        TestBus bus;
        pairdesk window(bus.manager(), nullptr);
        window.show();
        auto *devices = window.findChild<QTableWidget *>("devices");
        for (const char *address : { headset, "00:1A:7D:10:00:02" })
            bus.sim("SetDevice", { address, QVariantMap{ { "Connected", true } } });
        QTRY_COMPARE(rows(devices).filter("|Connected").size(), 2);
        QStringList seen;
        QTimer::singleShot(0, &window, [&] {
            QWidget *menu = QApplication::activePopupWidget();
            if (!menu)
                return;
            for (const QAction *action : menu->actions())
                seen += action->text();
            if (story.contains("removed"))
                bus.sim("RemoveDevice", { headset });
            QTRY_COMPARE(bus.device(name).isNull(), story.contains("removed"));
            QMetaObject::invokeMethod(&window, "onPopupateTable");
            if (story.contains("chosen")) {
                whenModal([&seen](QWidget *dialog) {
                    seen += dialog->windowTitle();
                    press(dialog, "close");
                });
                QTest::keyClick(menu, Qt::Key_Down);
            }
            QTest::keyClick(menu, story.contains("chosen") ? Qt::Key_Return : Qt::Key_Escape);
        });
        const int current = devices->findItems(name, Qt::MatchExactly).first()->row();
        // Beside the first column, the row at the table's top is meant.
        devices->setCurrentCell(current, story == "topmost" ? 2 : 0);
        const QPoint place = devices->visualItemRect(devices->currentItem()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, devices->viewport()->mapToGlobal(place));
        QApplication::sendEvent(devices->viewport(), &event);
        for (const char *button : { "connect", "disconnect", "remove" }) {
            if (story != "topmost" && window.findChild<QPushButton *>(button)->isEnabled())
                seen += button;
        }
        QCOMPARE(seen.join('|'), QString(row.second));
    }
}

QTEST_MAIN(TestAudio)
#include "tst_audio.moc"
