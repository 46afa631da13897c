// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever goes while whatever is open: nothing crashes, and afterwards the window does its work again.
#include "tests/support/desk.h"

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
    { "box", "row Target, press connect, see QMessageBox", "Paired / ConnectError=o.x ConnectErrorText=y" },
    { "btscan", "press add, see btscan", "" },
    { "btscan connecting", CONNECT, "/ ConnectTime=60000" },
    { "btscan pin", CONNECT ", see Pin", "/ Pin=123 PairTime=60000" },
    { "btscan change box", CONNECT ", see QMessageBox", "" },
    { "btscan answer box", CONNECT ", see QMessageBox", "/ ReplyDelay=0" },
    { "btscan failure box", CONNECT ", see QMessageBox", "/ ConnectError=org.bluez.Error.Failed" },
};
/** What happens there, until it is noticed and there is an adapter again. */
static const QStringList blows[] = {
    { "daemon", "kill, operational off, start, operational on" },
    { "adapter", "lose hci0, devices 0, adapter hci0" },
    { "devices", "lose Cans, lose Target, devices 0" },
    { "properties", "set Target Name=1 Class= Connected= Paired= Adapter= RSSI=, set Target Address=x" },
};

/** A desk where a place can be gone to. */
struct Scene : Desk {
    explicit Scene(const QStringList &place)
        : way("device Cans Paired Connected, device Target " + place[2] + ", open, " + place[1]
              + ", forget, ")
    {
        put(path("tools/pactl-list-cards.out"),
            "Card #1 bluez_card.00_1A_7D_30_00_01\nProfiles:\na: A\nb: B\n\tActive Profile: a");
        verb("forget", [=](const QString &) { agent->device.clear(); }); // as when another device comes in
        verb("cut", [=](const QString &) { ::kill(busPid, SIGKILL); });
        verb("isCut", [](const QString &) { return !QDBusConnection::systemBus().isConnected(); });
    }
    const QString way;
    const int busPid = QDBusConnection::systemBus().interface()->servicePid("org.freedesktop.DBus");
};

class TestFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void survives_data()
    {
        QTest::addColumn<QStringList>("place");
        QTest::addColumn<QString>("blow");
        for (const QStringList &place : places) {
            for (const QStringList &blow : blows)
                QTest::addRow("%s: %s", qPrintable(place[0]), qPrintable(blow[0])) << place << blow[1];
        }
    }

    void survives()
    {
        QFETCH(QStringList, place);
        QFETCH(QString, blow);
        Scene scene(place);
        scene.does(scene.way + blow + R"(, leave, device Next Class=0x2540
            press add, row Next, press pairconnect, see QMessageBox, leave, press disconnect@Next)");
    }

    /** One place to a process, which gets no bus again. */
    void losesTheBus()
    {
        const QString its = qEnvironmentVariable("PAIRDESK_PLACE");
        for (const QStringList &place : places) {
            if (its == place[0]) {
                Scene scene(place);
                scene.does(scene.way + R"(cut, isCut, leave
                    press add, see btscan, leave, press options, see options, leave, press ok)");
                QVERIFY(scene.table->isEnabled() && scene.window->m_bOk && !scene.window->isVisible());
            } else if (its.isEmpty()) {
                qputenv("PAIRDESK_PLACE", place[0].toUtf8());
                const QStringList again = { "--here", qApp->applicationFilePath(), "losesTheBus" };
                QVERIFY2(QProcess::execute(QFINDTESTDATA("support/alone"), again) == 0, qPrintable(place[0]));
            }
        }
    }
};

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
