// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/btagent.h"
#include "tests/support/desk.h"

#include <BluezQt/Device>
#include <BluezQt/PendingCall>
#include <QtTest>

class TestAgent : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsCalls();
    void works_data() { Desk::logClosedAndOpen(); }
    void works()
    {
        Desk desk("agent");
        btagent *&agent = desk.agent;
        desk.does("device Cans Paired, device Lamp / ReplyDelay=-1, open");
        QVERIFY(!agent->pinCodeRequested && !agent->passkeyRequested && !agent->cancelled
                && !agent->released);
        desk.does(R"(
            agent RequestPinCode Lamp, agent RequestPasskey Cans, agent DisplayPinCode Lamp 0042
            agent DisplayPasskey Cans 5 3, agent RequestConfirmation Lamp 7, agent RequestAuthorization Cans
            agent AuthorizeService Lamp 0b, agent Cancel, agent Release)");
        QVERIFY(agent->pinCodeRequested && agent->passkeyRequested && agent->cancelled && agent->released);
        QVERIFY(agent->pinCode == "000005" && agent->passkey == "000005" && agent->enteredPasskey == "3");
        QVERIFY(agent->confirmationPasskey == "000007" && agent->serviceUuid == "0B");

        // What somebody else has connected is cut.
        const auto heard = [] { qDebug("another connection"); };
        connect(desk.device("Lamp").data(), &BluezQt::Device::pairedChanged, this, heard);
        const auto address = [&](const QString &name) {
            return name == "Lamp" ? desk.device(name)->address() : name;
        };
        desk.verb("pair", [&](const QString &name) { agent->pairDevice(address(name)); });
        desk.verb("connect", [&](const QString &name) { agent->connectDevice(address(name)); });
        desk.verb("disconnect", [&](const QString &name) { agent->disconnectDevice(address(name)); });
        desk.verb("remove", [&](const QString &name) { agent->removeDevice(address(name)); });
        desk.verb("paired", [&](const QString &name) { return desk.device(name)->isPaired(); });
        desk.verb("finish", [&](const QString &) { agent->onCallFinished(nullptr); });
        desk.verb("forget", [&](const QString &) { agent->onAdapterRemoved(); });
        desk.verb("scan", [&](const QString &) { agent->scanDevices(); });
        desk.verb("stop", [&](const QString &) { agent->stopScan(); });
        desk.does(R"(
            pair nobody, pair Lamp, paired Lamp, connect nobody, connect Lamp, goon Lamp
            disconnect nobody, disconnect Lamp, remove nobody, remove Lamp, finish, forget
            lose Cans, lose hci0, scan, adapter hci0 off, scan, device Phone Class=0x5a020c, adapter hci1, stop, press close)");
    }
};

/** The library works with a call once its slot returns: it must not go with its device meanwhile. */
void TestAgent::keepsCalls()
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

QTEST_MAIN(TestAgent)
#include "tst_agent.moc"
