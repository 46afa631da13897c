// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/desk.h"

#include <BluezQt/Device>
#include <QtTest>

class TestWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void works_data() { Desk::logClosedAndOpen(); }
    void works();
    void keepsTheManagersOrder();
};

void TestWindow::works()
{
    Desk desk("window");
    desk.verb("mouse", [&](const QString &events) { // in the first row
        const QPointF place = desk.table->visualRect(desk.table->model()->index(0, 0)).center();
        for (const QString &type : events.split(' ')) {
            QMouseEvent event(QEvent::Type(type.toInt()), place, Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(desk.table->viewport(), &event);
        }
    });
    desk.verb("block",
              [&](const QString &on) { emit desk.manager()->bluetoothBlockedChanged(!on.isEmpty()); });
    desk.verb("refill",
              [&](const QString &) { QMetaObject::invokeMethod(desk.window.get(), "onPopupateTable"); });
    desk.verb("refuse", [&](const QString &) { desk.scriptTool("systemctl", "", 3); });
    // Mouse events: 2 is a press, 3 a release, 4 a press just after a click.
    desk.does(R"(
        device Cans Paired, device Keys Class=0x2540 Connected, device Tag Class=0 Paired Connected
        device Stranger, open, row Keys, row Cans, lose Keys, row Keys, set Cans RSSI=-40, row Cans
        mouse 2, set Cans RSSI=-41, mouse 3, row Cans, set Cans RSSI=-42, mouse 4 3, menu Cans
        lose Cans, block on, mouse 2 3, block, device Cans Paired
        how Cans ConnectError=org.odd ConnectErrorText=<b>why</b>%s, refill, row Cans, press connect
        close QMessageBox, how Cans ReplyDelay=-1, press connect, goon Cans
        lose Cans, lose hci0, adapter hci0 off, device Cans Paired, refill, row Cans, press remove
        device Cans Paired, refill, row Cans, lose Cans, lose hci0, refuse, switch, press close)");
}

/** Which is that of a hash table; strangers make it grow. */
void TestWindow::keepsTheManagersOrder()
{
#if QT_VERSION_MAJOR == 5
    qSetGlobalQHashSeed(-1);
#endif
    Desk desk;
    desk.does(R"(
        device A Paired, device B Paired, device C Paired, device D Paired, device E Paired, devices 5, open
        strangers 40, devices 45, gone 40, devices 5, set A RSSI=-40)");
    QStringList expected;
    for (const BluezQt::DevicePtr &device : desk.manager()->devices())
        expected += device->name() + "|headset|Disconnected";
    TRY(rows(desk.table) == expected);
}

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
