// SPDX-License-Identifier: GPL-3.0-or-later
// Faults in every state of the program: nothing crashes, and afterwards the window works again.
#include "tests/support/fixture.h"

#include <QtDBus>
#include <QtTest>

#include <csignal>

#define CONNECT "click add, select Target, click pairconnect"

/** The state, the steps to it, and properties and behaviour of the device that is connected on the way. */
static const QStringList states[] = {
    { "window", "", "" },
    { "options", "click options, wait for options", "" },
    { "menu", "menu Cans, wait for QMenu", "" },
    { "audiotest", "menu Cans, press Down, press Return, wait for audiotest", "" },
    { "audiotest box", "menu Cans, press Down, press Return, wait for audiotest, choose 1, wait for box",
      "" },
    { "box", "select Target, click connect, wait for box", "Paired / ConnectError=o.x ConnectErrorText=y" },
    { "btscan", "click add, wait for btscan", "" },
    { "btscan connecting", CONNECT, "/ ConnectTime=60000" },
    { "btscan pin", CONNECT ", wait for Pin", "/ Pin=123 PairTime=60000" },
    { "btscan change box", CONNECT ", wait for box", "" },
    { "btscan answer box", CONNECT ", wait for box", "/ ReplyDelay=0" },
    { "btscan failure box", CONNECT ", wait for box", "/ ConnectError=org.bluez.Error.Failed" },
};
/** The fault, until the program has noticed it and there is an adapter again. */
static const QStringList faults[] = {
    { "daemon", "kill, operational off, start, operational on" },
    { "adapter", "remove hci0, devices 0, adapter hci0" },
    { "devices", "remove Cans, remove Target, devices 0" },
    { "properties", "set Target Name=1 Class= Connected= Paired= Adapter= RSSI=, set Target Address=x" },
};

/** A fixture with what the steps to a state need. */
struct StateFixture : Fixture {
    explicit StateFixture(const QStringList &state)
        : steps("device Cans Paired Connected, device Target " + state[2] + ", open, " + state[1]
                + ", forget, ")
    {
        put(path("tools/pactl-list-cards.out"),
            "Card #1 bluez_card.00_1A_7D_30_00_01\nProfiles:\na: A\nb: B\n\tActive Profile: a");
        verb("forget", [=](const QString &) { agent->device.clear(); }); // as when another device comes in
        verb("stopBus", [=](const QString &) { ::kill(busPid, SIGKILL); });
        verb("busStopped", [](const QString &) { return !QDBusConnection::systemBus().isConnected(); });
    }
    const QString steps;
    const int busPid = QDBusConnection::systemBus().interface()->servicePid("org.freedesktop.DBus");
};

class TestFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void survives_data()
    {
        QTest::addColumn<QStringList>("state");
        QTest::addColumn<QString>("fault");
        for (const QStringList &state : states) {
            for (const QStringList &fault : faults)
                QTest::addRow("%s: %s", qPrintable(state[0]), qPrintable(fault[0])) << state << fault[1];
        }
    }

    void survives()
    {
        QFETCH(QStringList, state);
        QFETCH(QString, fault);
        StateFixture fixture(state);
        fixture.perform(fixture.steps + fault + R"(, leave, device Next Class=0x2540
            click add, select Next, click pairconnect, wait for box, leave, click disconnect@Next)");
    }

    /** Each state in a process of its own, which gets no bus again. */
    void losesTheBus()
    {
        const QString given = qEnvironmentVariable("PAIRDESK_STATE");
        for (const QStringList &state : states) {
            if (given == state[0]) {
                StateFixture fixture(state);
                fixture.perform(fixture.steps + R"(stopBus, busStopped, leave
                    click add, wait for btscan, leave, click options, wait for options, leave, click ok)");
                QVERIFY(fixture.table->isEnabled() && fixture.window->m_bOk && !fixture.window->isVisible());
            } else if (given.isEmpty()) {
                qputenv("PAIRDESK_STATE", state[0].toUtf8());
                const QStringList again = { "--here", qApp->applicationFilePath(), "losesTheBus" };
                QVERIFY2(QProcess::execute(QFINDTESTDATA("support/isolate"), again) == 0,
                         qPrintable(state[0]));
            }
        }
    }
};

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
