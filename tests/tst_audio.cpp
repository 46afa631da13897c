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
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

using namespace audiocommands;

static const char headset[] = "00:1A:7D:10:00:01";
static const char card[] = "bluez_card.00_1A_7D_10_00_01";
static const char a2dpLine[] =
    "\t\ta2dp_sink: High Fidelity Playback (A2DP Sink) (sinks: 1, sources: 0, priority: 40, available: yes)";

class TestAudio : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void readsProfileLine_data();
    void readsProfileLine();
    void readsCards_data();
    void readsCards();
    void readsCutText();
    void leavesPlainKeys();
    void guardsKeys_data();
    void guardsKeys();
    void plays_data();
    void plays();
    void switchesProfile();
    void reportsRefusal();
    void recordsAndPlays();
    void survivesMissingThings();
    void guardsDeviceName();
    void opensFromMenu_data();
    void opensFromMenu();
    void offersTopmostRow();

private:
    std::unique_ptr<TestBus> m_bus;
    QTemporaryDir m_folder; // the current one, too
    const Aside m_sample{ paths::audioSample };
    QStringList m_seen; // boxes, menus and audio tests that have opened
    std::function<void()> m_whileMenuOpen = [] {};
    bool m_choose = false; // from a menu, rather than dismissing it

    void watch();
    TestBus &bus();
    QStringList soundCalls();
    /** Lets PipeWire run, which lists this; a sink's line and a source's are alike. */
    void runPipeWire(const QByteArray &cards, const QByteArray &line = QByteArray());
};

void TestAudio::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
    qputenv("PATH", m_folder.filePath("bin").toUtf8() + ':' + qgetenv("PATH"));
    const auto putTool = [](const QString &file, const QByteArray &line) {
        QVERIFY(put(file, "#!/bin/sh\n" + line + '\n'));
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner));
    };
    // The machine's own sound server is none of the tests' business.
    putTool("bin/ps", "echo 2 grep -q pipewire; cat \"$PAIRDESK_DEMO_STATE/ps\" 2>/dev/null");
    // These note their arguments, exactly.
    const QByteArray grep = QStandardPaths::findExecutable("grep").toUtf8();
    putTool("exact/grep", "printf '%s\\0' \"$@\" >grepped; exec " + grep + " \"$@\"");
    putTool("exact/pactl", "cat listing");
    putTool("exact/parecord", "printf '%s\\0' \"$@\" >recorded");
    auto *look = new QTimer(this);
    connect(look, &QTimer::timeout, this, &TestAudio::watch);
    look->start(5);
}

void TestAudio::cleanup()
{
    m_bus.reset();
    m_seen.clear();
    QVERIFY(!QFile::exists("owned"));
    QVERIFY(!QApplication::overrideCursor());
}

void TestAudio::watch()
{
    if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
        for (const QAction *action : menu->actions())
            m_seen.append("menu: " + action->text());
        m_whileMenuOpen();
        if (m_choose)
            QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, m_choose ? Qt::Key_Return : Qt::Key_Escape);
    } else if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        QCOMPARE(box->textFormat(), Qt::PlainText);
        m_seen.append(box->windowTitle() + ": " + box->text());
        box->accept();
    } else if (auto *dialog = qobject_cast<audiotest *>(QApplication::activeModalWidget())) {
        m_seen.append(dialog->windowTitle() + ": " + dialog->findChild<QComboBox *>()->currentText());
        press(dialog, "close");
    }
}

/** On the current cell, or where that would be. */
static void rightClick(const QTableWidget *table)
{
    const QPoint place = table->visualItemRect(table->currentItem()).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, table->viewport()->mapToGlobal(place));
    QApplication::sendEvent(table->viewport(), &event);
}

TestBus &TestAudio::bus()
{
    if (!m_bus)
        m_bus = std::make_unique<TestBus>();
    return *m_bus;
}

QStringList TestAudio::soundCalls()
{
    return bus().toolCalls().filter(QRegularExpression("^(amixer|killall|pactl|parecord|pw-play)"));
}

void TestAudio::runPipeWire(const QByteArray &cards, const QByteArray &line)
{
    QVERIFY(put(bus().path("ps"), "3 pipewire"));
    bus().scriptTool("pactl-list-cards", cards);
    bus().scriptTool("pactl-list-sinks-short", line);
    bus().scriptTool("pactl-list-sources-short", line);
}

static QPushButton *button(const audiotest &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(name);
}

/** The chosen profile, the groups that are enabled and the playback buttons that are shown. */
static QString state(const audiotest &dialog)
{
    QStringList words{ dialog.findChild<QComboBox *>("profiles")->currentText() };
    for (const char *name : { "output", "input" })
        words += QStringList(name).mid(dialog.findChild<QGroupBox *>(name)->isEnabled() ? 0 : 1);
    for (const char *name : { "leftbt", "monobt", "rightbt" })
        words += QStringList(name).mid(button(dialog, name)->isHidden() ? 1 : 0);
    return words.join('|');
}

void TestAudio::readsProfileLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("a2dp_sink|High Fidelity Playback (A2DP Sink)|1|0") << a2dpLine;
    QTest::newRow("off|Off|0|0") << "\toff: Off (sinks: 0, sources: 0, priority: 0, available: yes)";
    QTest::newRow("a|B & C (x: y)|1|2") << "a: B & C (x: y) (sinks: 1, sources: 2)";
    QTest::newRow("tabs|Off|3|0") << "t\tabs:\t Off\t (sinks:\t 3)";
    QTest::newRow("many|Y|1|3") << "many: Y (sinks: 12, sources: 34)";
    QTest::newRow("no digits|Y|0|0") << "no digits: Y (sinks: -1, sources: n)";
    QTest::newRow("no 123456 colon||0|0") << "no 123456 colon";
    QTest::newRow("no sinks|Y (sources: 2)|0|2") << "no sinks: Y (sources: 2)";
    QTest::newRow("no description||1|0") << "no description:(sinks: 1";
    QTest::newRow("||0|0") << "";
}

void TestAudio::readsProfileLine()
{
    QFETCH(QString, line);
    const AudioProfile profile(line);
    const QString fields = profile.name + '|' + profile.description + '|';
    QCOMPARE(fields + QString("%1|%2").arg(profile.sinks).arg(profile.sources), QTest::currentDataTag());
}

static QString recorded(const char *server)
{
    return contentOf(QString(TEST_DATA "/pactl/%1-cards.txt").arg(server));
}

void TestAudio::readsCards_data()
{
    const QString pulseAudio = recorded("pulseaudio"), pipeWire = recorded("pipewire");
    const QString address = "bluez_card.00_AA_01_01_00_01";
    QTest::addColumn<QString>("listing");
    QTest::addColumn<QString>("key");
    // The tags: how many profiles, the last one, the active one.
    QTest::newRow("3 off a2dp_sink") << pulseAudio << address;
    QTest::newRow("3 headset-head-unit audio-gateway") << pipeWire << "VHeadset";
    QTest::newRow("15 headset-head-unit-msbc audio-gateway") << pipeWire << "VBox";
    QTest::newRow("18 headset-head-unit-msbc audio-gateway") << pipeWire << "bluez_card.";
    QTest::newRow("0  (none) of another case") << pipeWire << "vheadset";
    QTest::newRow("0  (none) without a card") << QString(pulseAudio).replace("Card #", "Card ") << address;
    QTest::newRow("2 b (none) active") << QString("Card #1 x\nProfiles:\n\t\ta: A\n\t\tb: B") << "x";
    QTest::newRow("0  (none) listed") << QString("Card #1 x\n\tActive Profile: a\n") << "x";
    QTest::newRow("900 off a2dp_sink") << pulseAudio.repeated(300) << address;
}

void TestAudio::readsCards()
{
    QFETCH(QString, listing);
    QFETCH(QString, key);
    const CardProfiles found = parseCards(listing, key);
    const QString last = AudioProfile(found.lines.value(found.lines.size() - 1)).name;
    const QString active = found.active.isNull() ? "(none)" : found.active;
    const QString told = QString("%1 %2 %3").arg(QString::number(found.lines.size()), last, active);
    QVERIFY2(QString(QTest::currentDataTag()).startsWith(told), qPrintable(told));
}

void TestAudio::readsCutText()
{
    const QString line = a2dpLine;
    for (int length = 0; length <= line.size(); ++length) {
        const AudioProfile cut(line.left(length));
        QVERIFY(QString("a2dp_sink").startsWith(cut.name) && line.contains(cut.description));
        QVERIFY(cut.sources == 0 && cut.sinks == (length >= line.indexOf("1,") + 1 ? 1 : 0));
    }

    const QString listing = recorded("pulseaudio");
    const CardProfiles whole = parseCards(listing, "VBox");
    for (int length = 0; length <= listing.size(); ++length) {
        const CardProfiles cut = parseCards(listing.left(length), "VBox");
        QVERIFY(whole.active.startsWith(cut.active));
        const QStringList sure = cut.lines.mid(0, cut.active.isNull() ? cut.lines.size() - 1 : -1);
        QCOMPARE(sure, whole.lines.mid(0, sure.size()));
    }
}

void TestAudio::leavesPlainKeys()
{
    QCOMPARE(listSinks(sinkKey(headset, "a2dp_sink")),
             QString("pactl list sinks short | grep bluez_sink.00_1A_7D_10_00_01.a2dp_sink"));
    QCOMPARE(listSources(sourceKey(headset, "")),
             QString("pactl list sources short | grep bluez_source.00_1A_7D_10_00_01. | grep -v monitor"));
    QCOMPARE(listSinks(" My  Mk-2 "), QString("pactl list sinks short | grep  My  Mk-2 "));
    QCOMPARE(listSinks(""), QString("pactl list sinks short | grep "));
    QCOMPARE(record("Mk-2 x:y"), QString("parecord --channels=1 --device=Mk-2 x:y /tmp/sample.wav"));
    QCOMPARE(setCardProfile("My  Headset ", "off"),
             QStringList({ "set-card-profile", "My", "Headset", "off" }));
}

void TestAudio::guardsKeys_data()
{
    QTest::addColumn<QString>("key");
    const char keys[] =
        "x\"; touch owned; \" @ x'; touch owned; ' @ $(touch owned) @ `touch owned` @ x | touch owned"
        " @ x\ntouch owned\n @ x & touch owned @ x > owned @ > owned @ -re . @ -s host x @ --help"
        " @ a -v b @ Anna's \"Ohr\" @ ~root @ * @ ex?ct @ Kopfhörer @ \\ @ \t @ ${PATH} @ #x @ {a,b}";
    const QStringList list = QString(keys).split(" @ ");
    for (const QString &key : list)
        QTest::newRow(qPrintable(key)) << key;
}

void TestAudio::guardsKeys()
{
    QFETCH(QString, key);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", m_folder.filePath("exact").toUtf8() + ':' + path);
    QVERIFY(put("listing", "4\t" + key.toUtf8() + "\tPipeWire\n"));
    const QByteArray listed = runShell(listSinks(key), 30000, Messages::Untranslated).standardOutput;
    runShell(record(key), 30000);
    qputenv("PATH", path);

    const QByteArray bytes = key.toUtf8(), nul(1, 0);
    QCOMPARE(contentOf("grepped"), (key.startsWith('-') ? "[-]" + bytes.mid(1) : bytes) + nul);
    QCOMPARE(contentOf("recorded"),
             "--channels=1" + nul + "--device=" + bytes + nul + paths::audioSample + nul);
    if (key != "\\") // no regular expression
        QVERIFY(listed.contains(bytes));
    QCOMPARE(listSources(key), listSinks(key).replace("sinks", "sources") + " | grep -v monitor");
    QCOMPARE(setCardProfile(key, "off"), QStringList({ "--", "set-card-profile", key, "off" }));
    QCOMPARE(setCardProfile("x", key), QStringList({ "--", "set-card-profile", "x", key }));
}

void TestAudio::plays_data()
{
    QTest::addColumn<bool>("pipeWire");
    QTest::addColumn<QString>("upload");
    QTest::addColumn<QString>("play");
    const QString sound = "/usr/share/sounds/freedesktop/stereo/audio-channel-front-%1.oga";
    QTest::newRow("PulseAudio") << false << "pactl upload-sample " + sound + " %1"
                                << QString("pactl play-sample %1");
    QTest::newRow("PipeWire") << true << QString() << "pw-play " + sound;
}

void TestAudio::plays()
{
    QFETCH(bool, pipeWire);
    QFETCH(QString, upload);
    QFETCH(QString, play);
    if (pipeWire)
        runPipeWire("Card #1\n Office Headset\nProfiles:\n\t\ta: A (sinks: 1)\n\tActive Profile: a\n");
    audiotest dialog(bus().manager(), headset, nullptr);
    QStringList listed{ "pactl list cards", "pactl list sinks short", "pactl list sources short" };
    if (!pipeWire)
        listed = QStringList{ upload.arg("left"), upload.arg("right"), upload.arg("center") } + listed;
    QCOMPARE(soundCalls(), listed);
    const int before = soundCalls().size();
    for (const char *name : { "leftbt", "monobt", "rightbt" })
        button(dialog, name)->click();
    const QString balance = "amixer -D pulse set Master ";
    const QStringList played{ balance + "100%,0%", play.arg("left"),    balance + "100%,100%",
                              play.arg("center"),  balance + "0%,100%", play.arg("right") };
    QCOMPARE(soundCalls().mid(before), played);
    const QStringList reset{ balance + "100%,100%", balance + "100%,100%" };
    QTRY_COMPARE(soundCalls().mid(before), played + reset);
}

/** The other headset is in another state, which must not show. */
void TestAudio::switchesProfile()
{
    QVERIFY(put(bus().path("bluez_card.00_1A_7D_10_00_03"), "handsfree_head_unit"));
    audiotest dialog(bus().manager(), headset, nullptr);
    QCOMPARE(QList<QSize>({ dialog.minimumSize(), dialog.maximumSize() }),
             QList<QSize>({ { 363, 347 }, { 363, 347 } }));
    QCOMPARE(state(dialog), QString("High Fidelity Playback (A2DP Sink)|output|leftbt|rightbt"));
    const int before = soundCalls().size();
    auto *profiles = dialog.findChild<QComboBox *>("profiles");
    profiles->setCurrentIndex(1);
    QCOMPARE(state(dialog), QString("Handsfree Head Unit (HFP)|output|input|monobt"));
    const QStringList calls{ QString("pactl set-card-profile %1 handsfree_head_unit").arg(card),
                             "pactl list cards", "pactl list sinks short" };
    QCOMPARE(soundCalls().mid(before), calls);
    profiles->setCurrentIndex(2);
    QCOMPARE(state(dialog), QString("Off|leftbt|rightbt"));
    QVERIFY(m_seen.isEmpty());
}

/** The second time, the card has lost profiles meanwhile and does not tell which is active. */
void TestAudio::reportsRefusal()
{
    QVERIFY(put(bus().path(card), "handsfree_head_unit"));
    audiotest dialog(bus().manager(), headset, nullptr);
    auto *profiles = dialog.findChild<QComboBox *>("profiles");
    const QString script = bus().path(QString("tools/pactl-set-card-profile-%1-off.").arg(card));
    QVERIFY(put(script + "err", "<b>Failure</b>: Kein Gerät\n") && put(script + "status", "1"));
    const auto boxes = [this](int count) {
        const QStringList two{ "Bluetooth Audio Profile: <b>Failure</b>: Kein Gerät\n",
                               "Bluetooth Audio Profile: An error occure while changing profile" };
        QCOMPARE(m_seen, count == 2 ? two : two + two);
        QCOMPARE(soundCalls().filter("set-card-profile").size(), count / 2);
    };
    profiles->setCurrentIndex(2);
    boxes(2);
    QCOMPARE(state(dialog), QString("Handsfree Head Unit (HFP)|output|input|monobt"));

    bus().scriptTool("pactl-list-cards",
                     QByteArray("Card #0 ") + card + "\n Profiles:\n\thandsfree_head_unit: H");
    profiles->setCurrentIndex(2);
    boxes(4);
    QCOMPARE(profiles->currentIndex(), 0);
    profiles->setCurrentIndex(2); // no longer there
    boxes(4);
}

void TestAudio::recordsAndPlays()
{
    QVERIFY(put(paths::audioSample, "of an earlier run"));
    QVERIFY(put(bus().path(card), "handsfree_head_unit"));
    audiotest dialog(bus().manager(), headset, nullptr);
    QPushButton *record = button(dialog, "record"), *play = button(dialog, "play");
    QVERIFY(!QFile::exists(paths::audioSample) && record->isEnabled() && !play->isEnabled());
    const int before = soundCalls().size();
    int blocked = 0;
    for (QPushButton *pressed : { record, play }) {
        QTimer::singleShot(0, &dialog, [&] {
            blocked += QApplication::overrideCursor()->shape() == Qt::WaitCursor;
            blocked += !record->isEnabled() && !play->isEnabled();
        });
        pressed->click();
        QVERIFY(record->isEnabled() && play->isEnabled());
        QVERIFY(QFileInfo(paths::audioSample).size() > 44);
    }
    QCOMPARE(blocked, 4);
    QVERIFY(QFile::remove(paths::audioSample));
    play->click();
    const QString source = "bluez_source.00_1A_7D_10_00_01.handsfree_head_unit";
    const QStringList calls{ "pactl list sources short",
                             "parecord --channels=1 --device=" + source + " /tmp/sample.wav",
                             "killall parecord", "parecord -p /tmp/sample.wav" };
    QCOMPARE(soundCalls().mid(before), calls);

    QVERIFY(put(paths::audioSample, "stale"));
    bus().scriptTool("parecord", "", 1);
    record->click();
    QVERIFY(record->isEnabled() && !play->isEnabled());
    bus().scriptTool("pactl-list-sources-short", QByteArray(source.toUtf8()).replace("_01.", "_03."));
    record->click();
    QCOMPARE(m_seen.value(0),
             "Sample Record: An error occurred while reconding the audio sample.\nThe file is empty");
    QCOMPARE(m_seen.mid(1).join('|'),
             "Audio source name: An error occurred while getting the audio source name.");
}

void TestAudio::survivesMissingThings()
{
    bus().manager();
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    audiotest dialog(bus().manager(), headset, nullptr);
    for (const char *name : { "leftbt", "monobt", "rightbt", "record", "play" })
        button(dialog, name)->click();
    qputenv("PATH", path);
    QCOMPARE(m_seen.size(), 1);

    bus().scriptTool("pactl-list-cards", QByteArray("Card #0 ") + card + "\nProfiles:\na: A", 1);
    QCOMPARE(state(audiotest(bus().manager(), headset, nullptr)),
             QString("|output|input|leftbt|monobt|rightbt"));
    runPipeWire("Card #1\nProfiles:\n\ta: A (sinks: 0)\n\tActive Profile: a\n", " 1ch ");
    const audiotest nobody(bus().manager(), "00:00:00:00:00:00", nullptr);
    QCOMPARE(state(nobody), QString("A|leftbt|rightbt"));
}

/** Under PipeWire, the name of the device is the key to everything. */
void TestAudio::guardsDeviceName()
{
    const QString name = "-x\"; touch owned; \"$(touch owned)`touch owned`' | touch owned; '";
    bus().sim("SetDevice", { headset, QVariantMap{ { "Alias", name } } });
    QTRY_VERIFY(bus().device(name));
    const QByteArray profiles = "\t\ta: A (sinks: 1, sources: 1)\n\t\tb;touch owned: B (sinks: 0)\n";
    runPipeWire("Card #1 " + name.toUtf8() + "\n\tProfiles:\n" + profiles + "\tActive Profile: a\n",
                "3\t" + name.toUtf8() + "\ts16le 1ch 16000Hz\n");
    audiotest dialog(bus().manager(), headset, nullptr);
    QCOMPARE(state(dialog), QString("A|output|input|monobt"));
    button(dialog, "record")->click();
    dialog.findChild<QComboBox *>("profiles")->setCurrentIndex(1);
    const QStringList calls = soundCalls();
    QVERIFY(calls.contains("parecord --channels=1 --device=" + name + " /tmp/sample.wav"));
    QVERIFY(calls.contains("pactl -- set-card-profile " + name + " b;touch owned"));
}

void TestAudio::opensFromMenu_data()
{
    QTest::addColumn<QString>("result"); // what opened, and the buttons that are enabled then
    const QString menu = "menu: Audio test";
    const QString opened = menu + "|Bluetooth Audio Test: Handsfree Head Unit (HFP)";
    QTest::newRow("Headset, dismissed") << menu + "|disconnect|remove";
    QTest::newRow("Headset, chosen") << opened;
    QTest::newRow("Headset, refilled, dismissed") << menu + "|disconnect|remove";
    QTest::newRow("Headset, refilled, chosen") << opened;
    QTest::newRow("Headset, removed, dismissed") << menu;
    QTest::newRow("Headset, removed, chosen") << opened;
    QTest::newRow("Headset, disconnected") << QString("connect|remove");
    QTest::newRow("Keyboard") << QString("disconnect|remove");
}

void TestAudio::opensFromMenu()
{
    const QString story = QTest::currentDataTag();
    const bool connected = !story.contains("disconnected");
    const QString name = story.startsWith("Keyboard") ? "Desk Keyboard" : "Office Headset";
    QVERIFY(put(bus().path(card), "handsfree_head_unit"));
    pairdesk window(bus().manager(), nullptr);
    window.show();
    auto *table = window.findChild<QTableWidget *>("devices");
    const QString address = bus().device(name)->address();
    bus().sim("SetDevice", { address, QVariantMap{ { "Connected", connected } } });
    QTRY_COMPARE(rows(table).filter(name).value(0).endsWith("|Connected"), connected);
    m_choose = story.contains("chosen");
    m_whileMenuOpen = [&] {
        if (story.contains("removed")) {
            bus().sim("RemoveDevice", { address });
            QTRY_VERIFY(!bus().device(name));
        }
        if (story.contains("re"))
            QMetaObject::invokeMethod(&window, "onPopupateTable");
    };
    table->setCurrentItem(table->findItems(name, Qt::MatchExactly).first());
    rightClick(table);
    for (const char *button : { "connect", "disconnect", "remove" }) {
        if (window.findChild<QPushButton *>(button)->isEnabled())
            m_seen.append(button);
    }
    m_whileMenuOpen = [] {};
    QTEST(m_seen.join('|'), "result");
}

/** A current cell beside the first column stands for the row at the table's top. */
void TestAudio::offersTopmostRow()
{
    pairdesk window(bus().manager(), nullptr);
    window.show();
    auto *table = window.findChild<QTableWidget *>("devices");
    const QString top = table->item(0, 0)->data(Qt::UserRole).toString();
    bus().sim("SetDevice", { top, QVariantMap{ { "Connected", true }, { "Class", 0x240404 } } });
    QTRY_VERIFY(rows(table).first().endsWith("|headset|Connected"));
    rightClick(table);
    QVERIFY(m_seen.isEmpty());
    table->setCurrentCell(1, 2);
    rightClick(table);
    QCOMPARE(m_seen, QStringList{ "menu: Audio test" });
}

QTEST_MAIN(TestAudio)
#include "tst_audio.moc"
