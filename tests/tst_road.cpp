// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/btagent.h"
#include "tests/support/desk.h"

#include <QtTest>

/** A user's evening in one window, from its start to OK. */
class TestRoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void evening_data() { Desk::logClosedAndOpen(); }
    void evening()
    {
        Desk desk("road");
        desk.verb("pair", [&](const QString &name) { desk.agent->pairDevice(desk.device(name)->address()); });
        desk.does(R"(
            device Keyboard Class=0x2540 Paired, device Tag Class=0 Paired, open, look, set Keyboard RSSI=-40
            press add, look, device Headphones Class=0x240418 / ReplyDelay=-1, device Mouse Class=0x2580
            set Headphones RSSI=-40, row Headphones, press pairconnect, goon Headphones, close QMessageBox
            row Headphones, press disconnect, goon Headphones, row Headphones, press connect, goon Headphones
            switch, switch
            press add, device Keys Class=0x2540 / Pin=428316 ReplyDelay=-1, row Keys, press pairconnect
            goon Keys, close QMessageBox
            press add, device Mouse Class=0x2580, pair Mouse, device Old_mouse Class=0x2580
            device Phone Class=0x5a020c / ConnectError=org.bluez.Error.Failed, row Old_mouse, press remove
            row Phone, press pairconnect, close QMessageBox, device Old_mouse Class=0x2580, press close
            row Keys, press remove, press ok)");
    }
};

QTEST_MAIN(TestRoad)
#include "tst_road.moc"
