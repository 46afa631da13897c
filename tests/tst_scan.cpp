// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/btagent.h"
#include "dialogs/btscan.h"
#include "dialogs/pin.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

static const QString success = "Bluetooth Connection: Device \"%1\" successfully connected.";
static const QString failure = "Bluetooth Connection: Device \"%1\" connection failure";

/** The daemon, the window with its agent, which listens as in the program, and the dialog. */
struct Desk : TestBus {
    Desk();
    ~Desk();
    void watchBoxes();
    void open();
    void pressConnect(const QString &name);
    QPushButton *button(const char *name) { return dialog->findChild<QPushButton *>(name); }

    pairdesk window;
    btagent *agent;
    AppSettings settings;
    std::unique_ptr<btscan> dialog;
    QTableWidget *table = nullptr;
    QStringList boxes; // title and text of every box so far
    std::function<void()> whileBoxOpen; // for the next box
    QMessageBox *heldBox = nullptr;
};

Desk::Desk()
    : TestBus("--empty")
    , window(manager(), nullptr)
    , agent(window.findChild<btagent *>())
{
    open();
    watchBoxes();
}

Desk::~Desk()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

/** Closes every box that ever opens; each look has a timer of its own, so that boxes upon boxes are seen. */
void Desk::watchBoxes()
{
    QTimer::singleShot(5, &window, [this] {
        watchBoxes();
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box == heldBox)
            return;
        boxes.append(box->windowTitle() + ": " + box->text());
        if (box->textFormat() != Qt::PlainText || QApplication::overrideCursor())
            boxes.append("rich text or a wait cursor");
        if (whileBoxOpen) {
            heldBox = box;
            std::exchange(whileBoxOpen, nullptr)();
            heldBox = nullptr;
        }
        box->accept();
    });
}

void Desk::open()
{
    dialog.reset();
    dialog = std::make_unique<btscan>(agent, &settings, &window);
    table = dialog->findChild<QTableWidget *>("devices");
    dialog->show();
}

void Desk::pressConnect(const QString &name)
{
    QTRY_VERIFY(!table->findItems(name, Qt::MatchExactly).isEmpty());
    QVERIFY(clickRow(table, name));
    QVERIFY(button("pairconnect")->isEnabled());
    press(dialog.get(), "pairconnect");
    QVERIFY(!button("pairconnect")->isEnabled());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

class TestScan : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lists();
    void connects();
    void reportsFailures();
    void staysWaiting();
    void showsPins();
    void showsHostileNames();
};

void TestScan::lists()
{
    Desk desk;
    desk.addDevice("Early");
    desk.addDevice("Paired", { { "Paired", true } });
    desk.addDevice("Tag", { { "Class", 0 } });
    QTRY_COMPARE(desk.manager()->devices().size(), 3);
    desk.open();
    QVERIFY(!desk.button("pairconnect")->isEnabled() && !desk.button("remove")->isEnabled());
    QCOMPARE(rows(desk.table), QStringList({ "Early|headset" }));
    QVERIFY(clickRow(desk.table, "Early"));
    QVERIFY(desk.button("pairconnect")->isEnabled() && desk.button("remove")->isEnabled());

    QSignalSpy found(desk.agent, &btagent::deviceAdded);
    desk.addDevice("Late", { { "Class", 0x002540 } });
    desk.addDevice("Late tag", { { "Class", 0 } });
    QTRY_COMPARE(found.count(), 4); // it is the second scan
    QTRY_COMPARE(rows(desk.table), QStringList({ "Early|headset", "Late|keyboard" }));

    desk.sim("AddDevices", { 500U });
    QTRY_COMPARE_WITH_TIMEOUT(desk.table->rowCount(), 502, 5000);
    const QStringList listed = rows(desk.table);
    QCOMPARE(QSet<QString>(listed.begin(), listed.end()).size(), 502);
}

void TestScan::connects()
{
    const QString good = success.arg("Cans");
    const QPair<QVariantMap, QStringList> cases[] = {
        { { { "ReplyDelay", 100 } }, { good } }, // the change comes first
        { { { "ReplyDelay", 150 } }, { good } }, // both come close together, on a slow machine
        { { { "ReplyDelay", 0 } }, { good } }, // the answer comes just before it
        { { { "ReplyDelay", -1 } }, { good } }, // no answer
        { { { "ReplyDelay", 100 }, { "ReplyFirst", true } }, { failure.arg("Cans"), good } },
        { { { "ConnectTime", 50 } }, {} }, // the user closes the dialog meanwhile
    };
    for (const auto &[how, boxes] : cases) {
        Desk desk;
        const QString address = desk.addDevice("Cans", {}, how);
        desk.takeCalls();
        desk.pressConnect("Cans");
        // The answer then waits while the change is handled, and comes in as the cursor is restored.
        QTimer slow;
        connect(&slow, &QTimer::timeout, &slow, [] { QThread::msleep(100); });
        if (how["ReplyDelay"] == 150)
            slow.start(0);
        if (boxes.isEmpty())
            press(desk.dialog.get(), "close");
        QTRY_VERIFY(!desk.dialog->isVisible());
        desk.dialog.reset();
        QTRY_VERIFY(desk.device("Cans")->isConnected() && desk.device("Cans")->isPaired());
        QTRY_VERIFY(desk.hasAnswered("Cans") || how["ReplyDelay"].toInt() < 0);
        QCOMPARE(desk.boxes, boxes);
        QVERIFY(!QApplication::overrideCursor());
        const QStringList calls = desk.takeCalls();
        QCOMPARE(calls.mid(0, 2), QStringList({ "StopDiscovery", "Connect " + address }));
        QCOMPARE(calls.last(), QString("StopDiscovery"));
    }
}

void TestScan::reportsFailures()
{
    Desk desk;
    const QStringList cases[] = {
        // error, its text, what is shown
        { "AuthenticationRejected", "why", "Authentication rejected. Remove the device and repeat pairing" },
        { "ConnectionAttemptFailed", "why", "Connection attempt failed" },
        { "Failed", "<i>why</i> %1", "<i>why</i> %1" },
        { "Failed", "InProgress", "InProgress" },
        { "InProgress", "inprogress", "inprogress" }, // unknown to the library
        { "", "", "Device \"Cans\" connection failure" },
    };
    const QString address = desk.addDevice("Cans");
    QTRY_COMPARE(desk.table->rowCount(), 1);
    for (const QStringList &c : cases) {
        desk.open();
        desk.boxes.clear();
        desk.takeCalls();
        QVariantMap how = { { "ConnectError", "org.bluez.Error." + c[0] }, { "ConnectErrorText", c[1] } };
        if (c[0].isEmpty())
            how = { { "NoConnect", true } };
        desk.sim("SetBehaviour", { address, how });
        desk.whileBoxOpen = [&] { QVERIFY(!desk.button("pairconnect")->isEnabled()); };
        desk.pressConnect("Cans");
        QTRY_VERIFY(desk.button("pairconnect")->isEnabled());
        QCOMPARE(desk.boxes, QStringList({ "Bluetooth Connection: " + c[2] }));
        QCOMPARE(desk.takeCalls(), QStringList({ "StopDiscovery", "Connect " + address, "StartDiscovery" }));
        QVERIFY(clickRow(desk.table, "Cans"));
        // After an error the dialog counts as busy.
        QCOMPARE(desk.button("remove")->isEnabled(), c[0].isEmpty());
    }
    desk.sim("SetBehaviour", { address, QVariantMap() });
    desk.pressConnect("Cans");
    QTRY_COMPARE(desk.boxes.last(), success.arg("Cans"));
}

void TestScan::staysWaiting()
{
    Desk desk;
    const QString gone = desk.addDevice("Gone");
    desk.addDevice("Cans", {}, { { "ConnectError", "org.odd" }, { "ConnectErrorText", "InProgress" } });
    desk.pressConnect("Cans");
    QTRY_VERIFY(desk.hasAnswered("Cans"));
    QVERIFY(clickRow(desk.table, "Cans"));
    QVERIFY(!desk.button("remove")->isEnabled() && !desk.button("pairconnect")->isEnabled());
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(desk.takeCalls().last().left(7), QString("Connect"));
    press(desk.dialog.get(), "close");
    QVERIFY(!QApplication::overrideCursor() && !desk.dialog->isVisible());

    desk.open();
    desk.sim("RemoveDevice", { gone });
    QTRY_VERIFY(!desk.device("Gone"));
    desk.pressConnect("Gone");
    QCOMPARE(desk.takeCalls().last(), QString("StopDiscovery"));
    QCOMPARE(desk.boxes, QStringList());
}

void TestScan::showsPins()
{
    Desk desk;
    const QString address = desk.addDevice("Keys", {}, { { "Pin", "<b>12</b>" }, { "PairTime", 60000 } });
    desk.pressConnect("Keys");
    QTRY_VERIFY(desk.dialog->findChild<Pin *>());
    desk.simLater("CallAgent", { "DisplayPasskey", QStringList({ address, "42", "0" }) });
    QTRY_COMPARE(desk.dialog->findChildren<Pin *>().size(), 2);
    const QList<Pin *> pins = desk.dialog->findChildren<Pin *>();
    const auto *label = pins[0]->findChild<QLabel *>("pin");
    QCOMPARE(label->text(), QString("<b>12</b>"));
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(pins[1]->findChild<QLabel *>("pin")->text(), QString("000042"));

    for (int i = 0; i < 2; ++i) { // the newest only, and then nothing
        desk.agent->cancelled = false;
        desk.simLater("CallAgent", { "Cancel", QStringList() });
        QTRY_VERIFY(desk.agent->cancelled);
        QVERIFY(pins[0]->isVisible() && !pins[0]->isModal() && !pins[1]->isVisible());
    }
    press(pins[0], "pushButton");
    QVERIFY(!pins[0]->isVisible());

    desk.simLater("CallAgent", { "DisplayPinCode", QStringList({ address, "0815" }) });
    QTRY_COMPARE(desk.dialog->findChildren<Pin *>().size(), 3);
    desk.device("Keys")->disconnectFromDevice();
    QTRY_VERIFY(!desk.dialog->findChildren<Pin *>().last()->isVisible());
    QCOMPARE(desk.boxes, QStringList({ "Bluetooth Connection: br-connection-canceled" }));
}

void TestScan::showsHostileNames()
{
    Desk desk;
    const QStringList names = { "$(reboot); `id` | \"a\" 'b' \\ &",
                                "%n %s %1 %%L2",
                                "<img src=x><b>bold</b> &lt;",
                                QString(248, 'w'),
                                "",
                                "שלום 耳机 🎧 سماعة",
                                "two\nlines\t!" };
    for (const QString &name : names) {
        desk.boxes.clear();
        desk.addDevice(name, {}, { { "NoConnect", true } });
        QTRY_COMPARE(desk.table->rowCount(), names.indexOf(name) + 1);
        QCOMPARE(rows(desk.table).last(), name + "|headset");
        desk.pressConnect(name);
        QTRY_VERIFY(desk.button("pairconnect")->isEnabled());
        QCOMPARE(desk.boxes, QStringList({ QString(failure).replace("%1", name) }));
    }
}

QTEST_MAIN(TestScan)
#include "tst_scan.moc"
