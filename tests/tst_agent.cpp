// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"
#include "app/debuglog.h"
#include "bluetooth/btagent.h"
#include "bluetooth/eventloops.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <QDBusPendingReply>
#include <QtTest>

static const QString headset = QStringLiteral("00:1A:7D:10:00:01");
static const QString keyboard = QStringLiteral("00:1A:7D:10:00:02");
static const QString nobody = QStringLiteral("00:00:00:00:00:00");
using Operation = void (btagent::*)(const QString &);
Q_DECLARE_METATYPE(Operation)

/** The daemon and the agent. */
struct Desk : TestBus {
    explicit Desk(const QString &scene = QString())
        : TestBus(scene)
        , agent(manager(), &settings, nullptr)
    {
        manager()->registerAgent(&agent)->waitForFinished();
        manager()->requestDefaultAgent(&agent)->waitForFinished();
    }
    /** Lets the daemon change a device, or add one to its first adapter. */
    void set(const QString &address, const QVariantMap &properties)
    {
        sim("SetDevice", { address, properties });
    }
    void add(const QString &address, const char *name)
    {
        sim("AddDevice", { "hci0", QVariantMap{ { "Address", address }, { "Name", name } } });
    }
    AppSettings settings;
    btagent agent;
};

class TestAgent : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { debugLogOpen(qPrintable(m_folder.filePath("log")), 3); }
    void init() { traced(); }
    void answersRequests();
    void waitsForAdapter();
    void scans();
    void operates_data();
    void operates();
    void passesConnectErrorsOn();
    void survivesNothing();
    void keepsSenders();

private:
    QStringList traced();
    QTemporaryDir m_folder;
    int m_read = 0;
};

/** The lines that the log has gained since the last look, without their prefixes and the agent's name. */
QStringList TestAgent::traced()
{
    const QByteArray gained = contentOf(m_folder.filePath("log")).mid(m_read);
    m_read += gained.size();
    static const QRegularExpression prefix("^.*?- btagent::", QRegularExpression::MultilineOption);
    return QString::fromUtf8(gained).remove(prefix).split('\n', Qt::SkipEmptyParts);
}

void TestAgent::answersRequests()
{
    Desk desk;
    const btagent &agent = desk.agent;
    QCOMPARE(desk.takeCalls(),
             QStringList({ "RegisterAgent /kvagent DisplayYesNo", "RequestDefaultAgent /kvagent" }));
    QCOMPARE(traced(), QStringList({ "btagent", "objectPath", "objectPath", "objectPath" }));

    QString told;
    connect(&agent, &btagent::displayPinCodeSlot, this, [&told](const QString &pin) { told = pin; });
    connect(&agent, &btagent::cancelSignal, this, [&told] { told = "cancelled"; });
    // What the daemon is answered, what the dialogs are told, and the trace.
    const auto ask = [&](const char *method, const QStringList &arguments = {}) {
        told.clear();
        const QDBusPendingReply<QString> reply = desk.simLater("CallAgent", { method, arguments });
        if (!QTest::qWaitFor([&reply] { return reply.isFinished(); }) || reply.isError())
            return QStringLiteral("error");
        return reply.value() + '|' + told + '|'
               + traced().join(" / ").replace("Office Headset, address: " + headset, "HEADSET");
    };
    QCOMPARE(ask("RequestConfirmation", { nobody, "7" }), "error");
    QVERIFY(!agent.device && !agent.pinCodeRequested && !agent.passkeyRequested);
    QCOMPARE(ask("RequestPinCode", { headset }),
             "||requestPinCode in / requestPinCode dev: HEADSET / requestPinCode out");
    QVERIFY(agent.pinCodeRequested && !agent.passkeyRequested && agent.device->address() == headset);
    QCOMPARE(ask("RequestPasskey", { headset }),
             "0||requestPasskey in / requestPasskey dev: HEADSET / requestPasskey out");
    QVERIFY(agent.passkeyRequested && agent.pinCode.isEmpty() && agent.confirmationPasskey.isEmpty());
    QCOMPARE(ask("DisplayPinCode", { headset, "0042" }),
             "|0042|displayPinCode in / displayPinCode dev: HEADSET, pin: 0042 / displayPinCode out");
    QCOMPARE(agent.pinCode + '|' + agent.passkey, "0042|");
    QCOMPARE(ask("DisplayPasskey", { headset, "42", "3" }),
             "|000042|displayPasskey dev: HEADSET, passkey: 000042, enterd: 3");
    QCOMPARE(agent.pinCode + '|' + agent.passkey + '|' + agent.enteredPasskey, "000042|000042|3");
    QCOMPARE(ask("RequestConfirmation", { keyboard, "7" }).section('/', 1, 1),
             " requestConfirmation dev: Desk Keyboard, address: " + keyboard + ", passkey: 000007 ");
    QVERIFY(agent.confirmationPasskey == "000007" && agent.device->address() == keyboard);
    QCOMPARE(ask("RequestAuthorization", { headset }),
             "||requestAuthorization in / requestAuthorization dev: HEADSET / requestAuthorization out");
    QCOMPARE(ask("AuthorizeService", { headset, "0000110b-00" }),
             "||authorizeService in / requestAuthorization dev: HEADSET, uuid: 0000110B-00 / "
             "authorizeService out");
    QVERIFY(agent.serviceUuid == "0000110B-00" && !agent.cancelled && agent.device->address() == headset);
    QCOMPARE(ask("Cancel"), "|cancelled|cancel in / cancel out");
    QVERIFY(agent.cancelled && !agent.released);
    QCOMPARE(ask("Release"), "||release in / release out");
    QVERIFY(agent.released);
}

void TestAgent::waitsForAdapter()
{
    Desk desk("--no-adapter");
    desk.takeCalls();
    traced();
    QTest::ignoreMessage(
        QtDebugMsg,
        "!!! No bluetooth adapters were found. Waiting for bluetooth adapters. Ctrl + C to cancel...");
    desk.agent.scanDevices();
    QCOMPARE(traced(), QStringList("scanDevices in"));
    QCOMPARE(desk.takeCalls(), QStringList());
    desk.sim("AddAdapter", { "hci0", true });
    QTRY_VERIFY(desk.sim("Calls").toStringList().contains("StartDiscovery"));
    QCOMPARE(traced(),
             QStringList({ "adapterAdded in", "adapterAdded adapter: desk, address: 00:1A:7D:00:00:00",
                           "scanDevices in", "scanDevices out", "adapterAdded out" }));
}

void TestAgent::scans()
{
    Desk desk("--unpowered");
    QSignalSpy added(&desk.agent, &btagent::deviceAdded);
    QSignalSpy changed(&desk.agent, &btagent::agentDeviceChanged);
    desk.takeCalls();
    desk.agent.scanDevices();
    QCOMPARE(desk.takeCalls(), QStringList({ "Set Powered true", "StartDiscovery" }));
    desk.add(keyboard, "Keys");
    QTRY_COMPARE(added.count(), 1);
    desk.agent.scanDevices();
    QCOMPARE(desk.takeCalls(), QStringList("StartDiscovery"));
    traced();
    desk.add(headset, "Lamp");
    QTRY_COMPARE(added.count(), 3); // each scan has added connections of its own
    QCOMPARE(desk.agent.device->address(), headset);
    const QStringList found = { "onDeviceFound in", "onDeviceFound dev: Lamp, address: " + headset,
                                "onDeviceFound out" };
    QCOMPARE(traced(), found + found);
    desk.set(keyboard, { { "Alias", "Keyä" } });
    QTRY_COMPARE(changed.count(), 2);
    const QString dev = "onDevicePropertyChanged dev: Keyä, address: " + keyboard + ", type: headset";
    const QStringList change = { "onDevicePropertyChanged in", dev, "onDevicePropertyChanged out" };
    QCOMPARE(traced(), change + change);
    QCOMPARE(desk.agent.device->address(), keyboard);

    desk.sim("AddAdapter", { "hci1", true });
    QTRY_COMPARE(desk.manager()->adapters().size(), 2);
    desk.agent.stopScan();
    QCOMPARE(desk.takeCalls(), QStringList({ "StopDiscovery", "StopDiscovery" }));
    QCOMPARE(traced(), QStringList({ "stopScan in", "stopScan in" }));
}

void TestAgent::operates_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QStringList>("end"); // of the trace, with what the agent tells on
    QTest::newRow("pairDevice") << &btagent::pairDevice << QStringList("Pair " + headset)
                                << QStringList(
                                       { "onPairedChanged paired: 1", "> paired 1", "onPairedChanged out" });
    QTest::newRow("connectDevice") << &btagent::connectDevice << QStringList("Connect " + headset)
                                   << QStringList({ "onConnectedChanged connected: 1", "> connected 1",
                                                    "onConnectedChanged out", "onCallFinished in",
                                                    "> connect: ", "onCallFinished out" });
    QTest::newRow("disconnectDevice")
        << &btagent::disconnectDevice << QStringList("Disconnect " + headset)
        << QStringList({ "onConnectedChanged connected: 0", "> connected 0", "onConnectedChanged out" });
    QTest::newRow("removeDevice") << &btagent::removeDevice
                                  << QStringList({ "Set Powered true", "RemoveDevice " + headset })
                                  << QStringList({ "onDeviceRemoved in",
                                                   "onDeviceRemoved dev: Lamp, address: " + headset });
}

void TestAgent::operates()
{
    QFETCH(Operation, operation);
    QFETCH(QStringList, calls);
    QFETCH(QStringList, end);
    const QString name = QTest::currentDataTag();
    Desk desk(name == "removeDevice" ? "--unpowered" : "--empty");
    btagent &agent = desk.agent;
    desk.add(headset, "Lamp");
    desk.set(headset, { { "Connected", name == "disconnectDevice" }, { "Paired", name != "pairDevice" } });
    desk.sim("SetBehaviour",
             { headset, QVariantMap{ { "ReplyDelay", 300 } } }); // the change is seen well before
    QTRY_VERIFY(desk.device("Lamp"));
    const QWeakPointer<BluezQt::Device> device = desk.device("Lamp");
    QTRY_COMPARE(device.lock()->isConnected(), name == "disconnectDevice");
    QTRY_COMPARE(device.lock()->isPaired(), name != "pairDevice");
    desk.takeCalls();
    traced();
    (agent.*operation)(nobody);
    QCOMPARE(traced(), QStringList({ name + " address: " + nobody, name + " out" }));
    QVERIFY(desk.takeCalls().isEmpty() && !agent.device);

    QStringList lines;
    connect(&agent, &btagent::pairedChanged, this,
            [&](bool paired) { lines << traced() << QString("> paired %1").arg(paired); });
    connect(&agent, &btagent::connectedChanged, this,
            [&](bool connected) { lines << traced() << QString("> connected %1").arg(connected); });
    connect(&agent, &btagent::callFinished, this, [&](const QString &action, const QString &error) {
        lines << traced() << "> " + action + ": " + error;
    });
    const auto cut = [&] { lines << "another connection"; };
    connect(device.lock().data(), &BluezQt::Device::pairedChanged, this, cut);
    connect(device.lock().data(), &BluezQt::Device::connectedChanged, this, cut);
    (agent.*operation)(headset);
    QCOMPARE(traced(), QStringList({ name + " address: " + headset, name + " dev: Lamp", name + " out" }));
    QCOMPARE(desk.takeCalls().mid(0, calls.size()), calls);
    QCOMPARE(agent.device.isNull(), name == "removeDevice");
    QTRY_COMPARE((lines << traced()).mid(lines.size() - end.size()), end);
    QCOMPARE(lines.filter("> "), end.filter("> "));
    QVERIFY(!lines.contains("another connection"));
    QCOMPARE(device.isNull(), name == "removeDevice");
}

void TestAgent::passesConnectErrorsOn()
{
    Desk desk;
    QSignalSpy finished(&desk.agent, &btagent::callFinished);
    desk.sim("FailNext", { "Connect", "org.bluez.Error.Failed", "br-connection-page-timeout" });
    desk.agent.connectDevice(headset);
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.takeFirst(), QVariantList({ "connect", "br-connection-page-timeout" }));
    for (const char *method : { "Disconnect", "Pair" }) // whose errors nobody hears of
        desk.sim("FailNext", { method, "org.bluez.Error.Failed", "no" });
    desk.agent.disconnectDevice(headset);
    desk.agent.pairDevice(headset);
    desk.agent.connectDevice(headset);
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first(), QVariantList({ "connect", "" }));
}

void TestAgent::survivesNothing()
{
    btagent agent(nullptr, nullptr, nullptr);
    QSignalSpy finished(&agent, &btagent::callFinished);
    agent.scanDevices();
    agent.connectDevice(headset);
    agent.onCallFinished(nullptr);
    agent.onAdapterRemoved();
    QCOMPARE(traced(), QStringList({ "btagent", "scanDevices in", "connectDevice address: " + headset,
                                     "connectDevice out", "onCallFinished in", "onCallFinished out",
                                     "onAdapterRemoved" }));
    QCOMPARE(finished.count(), 0);
}

/** Takes the adapter and its devices away while a slot with a loop in it handles a signal of one of them. */
void TestAgent::keepsSenders()
{
    for (const int kind : { 0, 1, 2, 3 }) {
        TestBus bus;
        QWeakPointer<QObject> sender;
        bool kept = false;
        const auto handle = [&](BluezQt::PendingCall *call) {
            keepSender(kind % 2 ? call : call->parent());
            QEventLoop nested;
            connect(bus.manager(), &BluezQt::Manager::adapterRemoved, &nested, &QEventLoop::quit);
            bus.simLater("RemoveAdapter", { "hci0" });
            nested.exec();
            QCoreApplication::processEvents();
            kept = sender && bus.manager()->devices().isEmpty();
        };
        {
            const BluezQt::DevicePtr device = bus.device("Office Headset");
            const BluezQt::AdapterPtr adapter = bus.manager()->adapters().first();
            sender = kind < 2 ? device.staticCast<QObject>() : adapter.staticCast<QObject>();
            connect(kind < 2 ? device->setName("x") : adapter->setName("x"), &BluezQt::PendingCall::finished,
                    this, handle);
        }
        QTRY_VERIFY2(kept, qPrintable(QString::number(kind)));
        QTRY_VERIFY(!sender);
    }
}

QTEST_GUILESS_MAIN(TestAgent)
#include "tst_agent.moc"
