// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever goes while whatever is open: nothing crashes, and afterwards the window does its work again.
#include "bluetooth/btagent.h"
#include "tests/support/desk.h"

#include <BluezQt/Device>
#include <QMessageBox>
#include <QtDBus>
#include <QtTest>

#include <csignal>

#define CONNECT "press add, row Target, press pairconnect"

/** What can be open, the way there, and how the device that is connected on it is and behaves. */
static const QStringList places[] = {
    { "window", "", "" },
    { "options", "press options, see options", "" },
    { "menu", "menu Cans, see QMenu", "" },
    { "audiotest", "menu Cans, key Down, key Return, see audiotest", "" },
    { "audiotest box", "menu Cans, key Down, key Return, see audiotest, choose 1, see QMessageBox", "" },
    { "pairdesk box", "row Target, press connect, see QMessageBox",
      "Paired / ConnectError=org.bluez.Error.Failed ConnectErrorText=why" },
    { "btscan", "press add, see btscan", "" },
    { "btscan connecting", CONNECT, "/ ConnectTime=60000" },
    { "btscan pin", CONNECT ", see Pin", "/ Pin=123 PairTime=60000" },
    { "btscan change box", CONNECT ", see QMessageBox", "" },
    { "btscan answer box", CONNECT ", see QMessageBox", "/ ReplyDelay=0" },
    { "btscan failure box", CONNECT ", see QMessageBox", "/ ConnectError=org.bluez.Error.Failed" },
};
/** What happens there, until it is noticed and there is an adapter again. */
static const QStringList blows[] = {
    { "daemon", "kill, operational off, start" },
    { "adapter", "lose hci0, devices 0, adapter hci0" },
    { "devices", "lose Cans, lose Target, devices 0" },
    { "properties", "nonsense Name Class Connected Paired Adapter RSSI, set Target Address=nonsense" },
};

class TestFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
    void losesTheBus_data();
    void losesTheBus();
};

/** A desk where the way to a place begins. */
struct Start : Desk {
    explicit Start(const QStringList &place)
        : way("device Cans Paired Connected, device Target " + place[2] + ", devices 2, open, " + place[1]
              + ", forget, ")
    {
        scriptTool(
            "pactl-list-cards",
            "Card #1\n\tName: bluez_card.00_1A_7D_30_00_01\n\tProfiles:\n\t\ta: A (sinks: 1, sources: 1)\n"
            "\t\tb: B (sinks: 1, sources: 0)\n\tActive Profile: a\n");
        // As when another device comes in.
        verb("forget", [this](const QString &) { agent->device.clear(); });
    }
    QString way;
};

void TestFaults::survives_data()
{
    QTest::addColumn<QStringList>("place");
    QTest::addColumn<QString>("blow");
    for (const QStringList &place : places) {
        for (const QStringList &blow : blows)
            QTest::addRow("%s: %s", qPrintable(place[0]), qPrintable(blow[0])) << place << blow[1];
    }
}

void TestFaults::survives()
{
    QFETCH(QStringList, place);
    QFETCH(QString, blow);
    Start desk(place);
    desk.verb("nonsense", [&](const QString &names) {
        for (const QString &name : names.split(' '))
            desk.sim("SetDevice",
                     { "00:1A:7D:30:00:02", QVariantMap{ { name, QStringList{ "no", "sense" } } } });
    });
    desk.verb("usable", [&](const QString &) { return !desk.manager()->usableAdapter().isNull(); });
    desk.verb("success", [&](const QString &) {
        return qobject_cast<QMessageBox *>(Hand::front())->text()
               == "Device \"Next\" successfully connected.";
    });
    desk.verb("listed", [&](const QString &row) { return rows(desk.table).contains(row); });
    desk.does(desk.way + blow
              + ", usable, leave, device Next Class=0x2540, press add, row Next, press pairconnect, "
                "see QMessageBox, success, leave, listed Next|keyboard|Connected");
}

void TestFaults::losesTheBus_data()
{
    QTest::addColumn<QStringList>("place");
    for (const QStringList &place : places)
        QTest::newRow(qPrintable(place[0])) << place;
}

/** One place to a process, which gets no bus again. */
void TestFaults::losesTheBus()
{
    QFETCH(QStringList, place);
    if (!qEnvironmentVariableIsSet("PAIRDESK_ITS_BUS")) {
        const QStringList again = { "PAIRDESK_ITS_BUS=1", QFINDTESTDATA("support/alone"),
                                    QCoreApplication::applicationFilePath(), "losesTheBus:" + place[0] };
        QCOMPARE(QProcess::execute("env", again), 0);
        return;
    }
    Start desk(place);
    const auto bus = QDBusConnection::systemBus();
    desk.verb("cut", [&](const QString &) {
        ::kill(pid_t(bus.interface()->servicePid("org.freedesktop.DBus")), SIGKILL);
    });
    desk.verb("isCut", [&](const QString &) { return !bus.isConnected(); });
    desk.does(desk.way
              + "cut, isCut, leave, press add, see btscan, leave, press options, see options, leave");
    QVERIFY(desk.table && desk.table->isEnabled());
    desk.does("press ok");
    QVERIFY(desk.window->m_bOk && !desk.window->isVisible());
}

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
