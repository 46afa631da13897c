// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/pin.h"
#include "tests/support/desk.h"

#include <BluezQt/Device>
#include <QtTest>

class TestScan : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void works_data() { Desk::logClosedAndOpen(); }
    void works();
    void tellsOnce();
};

void TestScan::works()
{
    Desk desk("scan");
    QString deeds = "device Cans, device Paired Paired, device Tag Class=0, open, ";
    for (const char *failure :
         { "bluez.Error.AuthenticationRejected why", "bluez.Error.ConnectionAttemptFailed why",
           "bluez.Error.Failed <i>why</i>%1", "bluez.Error.Failed InProgress", "odd inprogress" }) {
        const QStringList words = QString(failure).split(' ');
        deeds +=
            QString(
                "how Cans ConnectError=org.%1 ConnectErrorText=%2, press add, row Cans, press pairconnect, "
                "close QMessageBox, row Cans, press close, ")
                .arg(words[0], words[1]);
    }
    // This one alone changes nothing.
    deeds +=
        "how Cans ConnectError=org.odd ConnectErrorText=InProgress, press add, row Cans, press pairconnect, "
        "row Cans, press close, ";

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
    desk.verb("name", [&](const QString &name) {
        desk.sim("AddDevice", { "hci0", QVariantMap{ { "Name", QString(name).replace("\\", "\n\t") } } });
    });
    desk.verb("accept", [&](const QString &) {
        const QList<Pin *> pins = Hand::front()->findChildren<Pin *>();
        QTest::mouseClick(pins.first()->findChild<QWidget *>("pushButton"), Qt::LeftButton);
    });
    desk.verb("disconnect", [&](const QString &name) { desk.device(name)->disconnectFromDevice(); });
    deeds += R"(
        how Cans NoConnect, press add, row Cans, press pairconnect, close QMessageBox
        how Cans ReplyFirst ReplyDelay=-1, press pairconnect, goon Cans, close QMessageBox, close QMessageBox
        set Cans -Connected -Paired, how Cans ReplyDelay=-1, press add, row Cans, between, press pairconnect, close QMessageBox
        set Cans -Connected -Paired, how Cans ConnectTime=60000, press add, row Cans, press pairconnect, press close
        press add, device Gone, lose Gone, row Gone, press pairconnect, press close
        press add, device <img/src=x>%1%n%s$(reboot);`id`|"a"'b'<b>bold</b>&lt; / NoConnect, name two\lines, name
        name שלום 耳机 🎧 سماعة, row <img/src=x>%1%n%s$(reboot);`id`|"a"'b'<b>bold</b>&lt;
        press pairconnect, close QMessageBox, name WIDE, press close
        press add, device Keys Class=0x2540 / Pin=<b>12</b> PairTime=60000, row Keys, press pairconnect
        agent DisplayPasskey Keys 42 0, look, agent Cancel, agent Cancel, accept
        agent DisplayPinCode Keys 0815, disconnect Keys, close QMessageBox, press close, press close)";
    desk.does(deeds.replace("WIDE", QString(248, 'w')));
}

/** Both answers are there before the program looks again, which may take either first. */
void TestScan::tellsOnce()
{
    Desk desk;
    desk.verb("connect", [&](const QString &) {
        QTest::mouseClick(Hand::front()->findChild<QWidget *>("pairconnect"), Qt::LeftButton);
        desk.waitForDaemon();
    });
    desk.does(
        "device Cans / ReplyDelay=0, open, press add, row Cans, set Cans Paired, connect, close QMessageBox");
}

QTEST_MAIN(TestScan)
#include "tst_scan.moc"
