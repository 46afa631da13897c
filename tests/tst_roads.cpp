// SPDX-License-Identifier: GPL-3.0-or-later
// Roads through the program, told deed by deed in roads/*.log, and what has no single right record.
#include "app/paths.h"
#include "bluetooth/btagent.h"
#include "dialogs/pin.h"
#include "tests/support/desk.h"

#include <BluezQt/Device>
#include <BluezQt/PendingCall>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

class TestRoads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void walks_data();
    void walks();
    void fits_data();
    void fits();
    void keepsTheManagersOrder();
    void tellsOnce();
    void keepsCalls();
};

/** What can be seen must not depend on whether the log is open. It is opened only once in a process. */
void TestRoads::walks_data()
{
    QTest::addColumn<bool>("withLog");
    const QStringList roads = QDir(TEST_DATA "/roads").entryList({ "*.log" });
    for (const QString &road : roads) {
        QTest::newRow(qPrintable(road.section('.', 0, 0))) << false;
        QTest::newRow(qPrintable(road.section('.', 0, 0) + " with log")) << true;
    }
}

void TestRoads::walks()
{
    QFETCH(bool, withLog);
    if (!withLog && qEnvironmentVariableIsSet("PAIRDESK_RECORD"))
        return;
    Desk desk;
    btagent *&agent = desk.agent;
    const QMap<QString, void (btagent::*)(const QString &)> operations = {
        { "pair", &btagent::pairDevice },
        { "connect", &btagent::connectDevice },
        { "disconnect", &btagent::disconnectDevice },
        { "remove", &btagent::removeDevice },
    };
    desk.verb("call", [&](const QString &object) {
        const BluezQt::DevicePtr device = desk.device(object.section(' ', 1));
        (agent->*operations[object.section(' ', 0, 0)])(device ? device->address() : object);
    });
    desk.verb("scan", [&](const QString &) { agent->scanDevices(); });
    desk.verb("stop", [&](const QString &) { agent->stopScan(); });
    desk.verb("finish", [&](const QString &) { agent->onCallFinished(nullptr); });
    desk.verb("forget", [&](const QString &) { agent->onAdapterRemoved(); });
    desk.verb("paired", [&](const QString &name) { return desk.device(name)->isPaired(); });
    desk.verb("drop", [&](const QString &name) { desk.device(name)->disconnectFromDevice(); });
    // Somebody else listens, whom an operation cuts off.
    desk.verb("listen", [&](const QString &name) {
        connect(desk.device(name).data(), &BluezQt::Device::pairedChanged, this,
                [] { qDebug("another connection"); });
    });
    // One answer is there while the program tells of the other.
    QTimer between;
    connect(&between, &QTimer::timeout, &desk, [&] {
        if (!desk.device("Cans")->isConnected())
            return;
        between.stop();
        desk.sim("Do", { "goon Cans" });
        desk.waitForDaemon();
    });
    desk.verb("between", [&](const QString &) { between.start(0); });
    desk.verb("accept", [](const QString &) {
        Hand::front()->findChildren<Pin *>().first()->findChild<QPushButton *>("pushButton")->click();
    });
    desk.verb("mouse", [&](const QString &what) { // in the first row
        const QPointF place = desk.table->visualRect(desk.table->model()->index(0, 0)).center();
        const auto type = what == "press"     ? QEvent::MouseButtonPress
                          : what == "release" ? QEvent::MouseButtonRelease
                                              : QEvent::MouseButtonDblClick;
        QMouseEvent event(type, place, place, Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(desk.table->viewport(), &event);
    });
    desk.verb("block", [&](const QString &on) { emit desk.manager()->bluetoothBlockedChanged(on == "on"); });
    desk.verb("refill",
              [&](const QString &) { QMetaObject::invokeMethod(desk.window.get(), "onPopupateTable"); });
    desk.verb("settings", [&](const QString &lines) {
        put(Desk::store(), "[General]\n" + lines.toUtf8().replace("\\n", "\n"));
    });
    desk.verb("sample", [](const QString &content) { put("/tmp/sample.wav", content.toUtf8()); });
    desk.verb("cards", [&](const QString &active) {
        const QByteArray cards = contentOf(TEST_DATA "/pactl/pipewire-cards.txt");
        put(desk.path("tools/pactl-list-cards.out"),
            QByteArray(cards).replace("Active Profile: audio-gateway", "Active Profile: " + active.toUtf8()));
    });

    QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    desk.walk(QString(QTest::currentDataTag()).section(' ', 0, 0), withLog);
    QVERIFY(QDir(folder.path()).isEmpty()); // no name was run by a shell
    QDir::setCurrent("/"); // the folder goes
    const QList<QByteArray> lines = contentOf(paths::debugLogFile).trimmed().split('\n');
    if (QByteArray(QTest::currentDataTag()) == "options") // which have opened the log, and closed it
        QVERIFY(lines.first().endsWith("- pairdesk::on_options_clicked out")
                && lines.last().endsWith("- pairdesk::on_debug_clicked 0"));
}

void TestRoads::fits_data()
{
    QTest::addColumn<QString>("catalogue");
    const QStringList catalogues = QDir(":/translations").entryList();
    for (const QString &catalogue : catalogues)
        QTest::newRow(qPrintable(catalogue)) << ":/translations/" + catalogue;
}

/** Windows do not grow: every language has to fit. */
void TestRoads::fits()
{
    QFETCH(QString, catalogue);
    QTranslator translator;
    QVERIFY(translator.load(catalogue) && QApplication::installTranslator(&translator));
    Desk desk;
    QStringList seen;
    desk.verb("look", [&](const QString &) { seen += Desk::view(true).join('\n'); });
    desk.scriptTool(
        "pactl-list-cards",
        "Card #1 bluez_card.00_1A_7D_30_00_01\nProfiles:\n\ta: A (sources: 1)\nActive Profile: a");
    desk.does(R"(
        device Cans Paired Connected, device Mouse Class=0x2580 Paired, device Keys Class=0x2540 / Pin=1 PairTime=60000
        devices 3, open, look, menu Cans, look, key Down, key Return, see audiotest, look, close audiotest
        press options, look, close options, press add, look, row Keys, press pairconnect, see Pin, look, leave)");
    QCOMPARE(seen.size(), 6);
    const QStringList lines = seen.join('\n').split('\n');
    // The line above the PIN is higher than its place, on purpose.
    const QRegularExpression fault("TOO WIDE|OVERLAPS|SCROLLS|^(?!  label 80,20 271x17 ).*TOO HIGH");
    QCOMPARE(lines.filter(fault).join('\n'), QString());
}

/** Which is that of a hash table; strangers make it grow. */
void TestRoads::keepsTheManagersOrder()
{
#if QT_VERSION_MAJOR == 5
    qSetGlobalQHashSeed(-1);
#endif
    Desk desk;
    desk.does(R"(
        device A Paired, device B Paired, device C Paired, device D Paired, device E Paired, devices 5, open
        strangers 40, devices 45, gone 40, devices 5, set A RSSI=-40)");
    QStringList expected;
    const QList<BluezQt::DevicePtr> devices = desk.manager()->devices();
    for (const BluezQt::DevicePtr &device : devices)
        expected += device->name() + "|headset|Disconnected";
    TRY(rows(desk.table) == expected);
}

/** Both answers are there before the program looks again, which may take either first. */
void TestRoads::tellsOnce()
{
    Desk desk;
    desk.verb("connect", [&](const QString &) {
        Hand::front()->findChild<QPushButton *>("pairconnect")->click();
        desk.waitForDaemon();
    });
    desk.does(
        "device Cans / ReplyDelay=0, open, press add, row Cans, set Cans Paired, connect, close QMessageBox");
}

/** The library works with a call once its slot returns: it must not go with its device meanwhile. */
void TestRoads::keepsCalls()
{
    TestBus bus;
    btagent agent(bus.manager(), nullptr, nullptr);
    const QWeakPointer<BluezQt::Device> device = bus.device("Office Headset");
    QPointer<BluezQt::PendingCall> call;
    bool isKept = false;
    connect(&agent, &btagent::callFinished, this, [&] {
        bus.sim("RemoveAdapter", { "hci0" });
        TRY(bus.manager()->adapters().isEmpty());
        agent.device.clear();
        TRY(!device);
        isKept = call;
    });
    agent.connectDevice("00:1A:7D:10:00:01");
    call = device.lock()->findChild<BluezQt::PendingCall *>();
    TRY(isKept && !call);
}

QTEST_MAIN(TestRoads)
#include "tst_roads.moc"
