// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debuglog.h"
#include "bluetooth/btagent.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <BluezQt/PendingCall>
#include <QDBusPendingReply>
#include <QtTest>

class TestAgent : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { debugLogOpen(qPrintable(m_log), 3); }
    void answersRequests()
    {
        TestBus desk("--empty");
        btagent agent(desk.manager(), nullptr, nullptr);
        desk.manager()->registerAgent(&agent)->waitForFinished();
        desk.manager()->requestDefaultAgent(&agent)->waitForFinished();
        QVERIFY(!agent.pinCodeRequested && !agent.passkeyRequested && !agent.cancelled && !agent.released);
        const QString cans = desk.addDevice("Cans");
        QString told;
        connect(&agent, &btagent::displayPinCodeSlot, this, [&told](const QString &pin) { told = pin; });
        connect(&agent, &btagent::cancelSignal, this, [&told] { told = "cancelled"; });
        // The request; the answer, what the agent tells on and its PIN code; the trace.
        const QString requests[][3] = {
            { "RequestPinCode @", "||", "in / requestPinCode dev: @ / out" },
            { "RequestPasskey @", "0||", "in / requestPasskey dev: @ / out" },
            { "DisplayPinCode @ 0042", "|0042|0042", "in / displayPinCode dev: @, pin: 0042 / out" },
            { "DisplayPasskey @ 5 3", "|000005|000005", "displayPasskey dev: @, passkey: 000005, enterd: 3" },
            { "RequestConfirmation @ 7", "||000005",
              "in / requestConfirmation dev: @, passkey: 000007 / out" },
            { "RequestAuthorization @", "||000005", "in / requestAuthorization dev: @ / out" },
            { "AuthorizeService @ 0b", "||000005", "in / requestAuthorization dev: @, uuid: 0B / out" },
            { "Cancel", "|cancelled|000005", "in / out" },
            { "Release", "||000005", "in / out" },
        };
        for (const auto &[request, outcome, trace] : requests) {
            told.clear();
            agent.device.reset();
            QFile::resize(m_log, 0);
            QStringList arguments = QString(request).replace("@", cans).split(' ');
            const QString method = arguments.takeFirst();
            const QDBusPendingReply<QString> reply = desk.simLater("CallAgent", { method, arguments });
            QTRY_VERIFY2(reply.isFinished(), qPrintable(method));
            QCOMPARE(reply.value() + '|' + told + '|' + agent.pinCode, outcome);
            const QRegularExpression name("(?i)\\b" + method + " (?=in|out)");
            QCOMPARE(traced().remove(name).replace("Cans, address: " + cans, "@"), trace);
            QCOMPARE(agent.device.isNull(), arguments.isEmpty());
        }
        QVERIFY(agent.pinCodeRequested && agent.passkeyRequested && agent.cancelled && agent.released);
        QVERIFY(agent.passkey == "000005" && agent.enteredPasskey == "3");
        QVERIFY(agent.confirmationPasskey == "000007" && agent.serviceUuid == "0B");
    }

    void scans()
    {
        TestBus desk("--no-adapter");
        btagent agent(desk.manager(), nullptr, nullptr);
        QSignalSpy added(&agent, &btagent::deviceAdded);
        QFile::resize(m_log, 0);
        agent.scanDevices();
        desk.sim("AddAdapter", { "hci0", false });
        QTRY_COMPARE(traced(), "scanDevices in / adapterAdded in / adapterAdded adapter: desk, address: "
                               "00:1A:7D:00:00:00 / scanDevices in / scanDevices out / adapterAdded out");
        QTRY_VERIFY(desk.manager()->usableAdapter());
        agent.scanDevices();
        QCOMPARE(desk.takeCalls(), QStringList({ "Set Powered true", "StartDiscovery", "StartDiscovery" }));
        desk.addDevice("Lamp");
        QTRY_COMPARE(added.count(), 2); // each scan has added connections of its own
        QCOMPARE(agent.device->name(), "Lamp");
        desk.sim("AddAdapter", { "hci1", true });
        QTRY_COMPARE(desk.manager()->adapters().size(), 2);
        agent.stopScan();
        QCOMPARE(desk.takeCalls(), QStringList({ "StartDiscovery", "StopDiscovery", "StopDiscovery" }));
    }

    void operates()
    {
        const QString changed = "onConnectedChanged connected: %1 / > on %1 / onConnectedChanged out";
        const QString finished = "onCallFinished in / > connect: %1 / onCallFinished out";
        const std::tuple<void (btagent::*)(const QString &), QString, QString> operations[] = {
            { &btagent::pairDevice, "pair", "onPairedChanged paired: 1 / > paired 1 / onPairedChanged out" },
            { &btagent::connectDevice, "connect", changed.arg(1) + " / " + finished.arg("") },
            { &btagent::connectDevice, "connect", finished.arg("no way") },
            { &btagent::disconnectDevice, "disconnect", changed.arg(0) },
            { &btagent::removeDevice, "remove", "onDeviceRemoved dev: Lamp, address: LAMP" },
        };
        for (const auto &[run, name, end] : operations) {
            TestBus desk("--empty");
            btagent agent(desk.manager(), nullptr, nullptr);
            desk.manager()->registerAgent(&agent)->waitForFinished();
            desk.manager()->requestDefaultAgent(&agent)->waitForFinished();
            const QVariantMap state = { { "Connected", name == "disconnect" }, { "Paired", name != "pair" } };
            const QString lamp = desk.addDevice("Lamp", state, { { "ReplyDelay", 300 } });
            if (end.contains("no way"))
                desk.sim("FailNext", { "Connect", "org.bluez.Error.Failed", "no way" });
            connect(&agent, &btagent::pairedChanged, this, [](bool on) { debugLog(3, "> paired %d", on); });
            connect(&agent, &btagent::connectedChanged, this, [](bool on) { debugLog(3, "> on %d", on); });
            connect(&agent, &btagent::callFinished, this, [](const QString &of, const QString &error) {
                debugLog(3, "> %s: %s", qPrintable(of), qPrintable(error));
            });
            QTRY_VERIFY(desk.device("Lamp"));
            const auto cut = [] { debugLog(3, "another connection"); };
            connect(desk.device("Lamp").data(), &BluezQt::Device::deviceChanged, this, cut);
            QFile::resize(m_log, 0);
            (agent.*run)("nobody");
            (agent.*run)(lamp);
            QVERIFY(desk.takeCalls().last().startsWith(name, Qt::CaseInsensitive));
            QCOMPARE(agent.device.isNull(), name == "remove");
            const QString start = "OP address: nobody / OP out / OP address: LAMP / OP dev: Lamp / OP out / ";
            const QString method = name + "Device";
            const auto trace = [&] { return traced().replace(lamp, "LAMP").replace(method, "OP"); };
            QTRY_VERIFY2(trace().startsWith(start) && trace().endsWith(end), qPrintable(trace()));
            QVERIFY(!trace().contains("another connection"));
        }
    }

    /** The library works with a call once its slot returns: it must not go with its device meanwhile. */
    void keepsCalls()
    {
        TestBus bus;
        btagent agent(bus.manager(), nullptr, nullptr);
        const QWeakPointer<BluezQt::Device> device = bus.device("Office Headset");
        QPointer<BluezQt::PendingCall> call;
        bool kept = false;
        connect(&agent, &btagent::callFinished, this, [&] {
            QEventLoop nested;
            connect(bus.manager(), &BluezQt::Manager::adapterRemoved, &nested, &QEventLoop::quit);
            bus.simLater("RemoveAdapter", { "hci0" });
            nested.exec();
            agent.device.clear();
            QCoreApplication::processEvents();
            kept = call && !device;
        });
        agent.connectDevice(device.lock()->address());
        call = device.lock()->findChild<BluezQt::PendingCall *>();
        QTRY_VERIFY(kept);
        QTRY_VERIFY(!call);
    }

private:
    /** The lines of the log, without their prefixes and the agent's name. */
    QString traced() const
    {
        static const QRegularExpression prefix("^.*?- (btagent::)?", QRegularExpression::MultilineOption);
        return QString::fromUtf8(contentOf(m_log)).remove(prefix).trimmed().replace("\n", " / ");
    }
    QTemporaryDir m_folder;
    QString m_log = m_folder.filePath("log");
};

QTEST_GUILESS_MAIN(TestAgent)
#include "tst_agent.moc"
