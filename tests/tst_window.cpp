// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/btagent.h"
#include "mainwindow/clickablelabel.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

/** The daemon with a headset and a connected keyboard, and the window once it is opened. */
struct Desk : TestBus {
    explicit Desk(const char *scene = "--empty");
    ~Desk();
    void open();
    void flip() { QTest::mousePress(window->findChild<ClickableLabel *>(), Qt::LeftButton); }
    bool showsOn();
    QString enabled();

    QString cans;
    QString keys;
    std::unique_ptr<pairdesk> window;
    QTableWidget *table = nullptr;
};

Desk::Desk(const char *scene)
    : TestBus(scene)
{
    cans = addDevice("Cans", { { "Paired", true } });
    keys = addDevice("Keys", { { "Class", 0x002540 }, { "Connected", true } });
}

Desk::~Desk()
{
    QProcess::execute("systemctl", { "stop", "bluetooth" }); // for a daemon that the switch has started
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

void Desk::open()
{
    window = std::make_unique<pairdesk>(manager(), nullptr);
    table = window->findChild<QTableWidget *>("devices");
    window->show();
}

/** What the switch shows; the picture, the table and Add must agree. */
bool Desk::showsOn()
{
    const bool on = table->isEnabled();
    const QPixmap picture(on ? ":/images/on32b.png" : ":/images/off32b.png");
    const QPixmap shown = window->findChild<ClickableLabel *>()->pixmap(Qt::ReturnByValue);
    if (picture.isNull() || shown.toImage() != picture.toImage())
        QTest::qFail("wrong picture", __FILE__, __LINE__);
    if (window->findChild<QPushButton *>("add")->isEnabled() != on)
        QTest::qFail("Add is out of step", __FILE__, __LINE__);
    return on;
}

/** The device buttons that are enabled. */
QString Desk::enabled()
{
    QStringList names;
    for (const char *name : { "connect", "disconnect", "remove" }) {
        if (window->findChild<QPushButton *>(name)->isEnabled())
            names.append(name);
    }
    return names.join(' ');
}

class TestWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasItsLayout();
    void listsDevices();
    void followsTheDaemon();
    void staysOffWhenRefused();
    void followsTheAdapter();
    void reportsFailure();
    void outlivesTheDaemonAfterRemoval();
    void powersOnToRemove();
};

void TestWindow::hasItsLayout()
{
    Desk desk;
    desk.open();
    QCOMPARE(desk.window->minimumSize(), QSize(559, 515));
    QCOMPARE(desk.window->maximumSize(), QSize(559, 515));
    QCOMPARE(desk.window->pos() + desk.window->rect().center(),
             QGuiApplication::primaryScreen()->availableGeometry().center());
    QVERIFY(desk.window->styleSheet().endsWith("QPushButton:disabled { background-color:#3f3f3f; }"));
    QCOMPARE(desk.window->findChild<QWidget *>("pushme")->geometry(), QRect(483, 76, 41, 21));
    QCOMPARE(desk.table->geometry(), QRect(20, 110, 521, 281));
    QCOMPARE(desk.table->columnWidth(0), 260);
    QCOMPARE(desk.window->findChild<QPushButton *>("close")->text(), QString("Cancel"));
}

void TestWindow::listsDevices()
{
    Desk desk;
    desk.addDevice("Tag", { { "Class", 0 }, { "Paired", true }, { "Connected", true } });
    desk.addDevice("Stranger");
    desk.open();
    QStringList listed = rows(desk.table);
    listed.sort();
    QCOMPARE(listed, QStringList({ "Cans|headset|Disconnected", "Keys|keyboard|Connected" }));
    QCOMPARE(desk.enabled(), QString());
    QVERIFY(clickRow(desk.table, "Keys"));
    QCOMPARE(desk.enabled(), QString("disconnect remove"));
    QVERIFY(clickRow(desk.table, "Cans"));
    QCOMPARE(desk.enabled(), QString("connect remove"));

    // A row whose device has gone leaves Connect and Disconnect as they are.
    desk.sim("RemoveDevice", { desk.keys });
    QTRY_VERIFY(!desk.device("Keys"));
    QVERIFY(clickRow(desk.table, "Keys"));
    QCOMPARE(desk.enabled(), QString("connect remove"));

    desk.sim("SetDevice", { desk.cans, QVariantMap{ { "RSSI", -40 } } });
    QTRY_COMPARE(rows(desk.table), QStringList({ "Cans|headset|Disconnected", "" }));
    QCOMPARE(desk.enabled(), QString());
    QVERIFY(clickRow(desk.table, "Cans"));
    QCOMPARE(desk.enabled(), QString("connect remove"));
    const QRect emptied = desk.table->visualRect(desk.table->model()->index(1, 0));
    QTest::mouseClick(desk.table->viewport(), Qt::LeftButton, {}, emptied.center());
    QCOMPARE(desk.enabled(), QString());

    desk.sim("RemoveDevice", { desk.cans });
    QTRY_VERIFY(!desk.device("Cans"));
    emit desk.manager()->bluetoothBlockedChanged(true);
    QCOMPARE(rows(desk.table), QStringList({ "", "" }));
    QVERIFY(!desk.showsOn());
    emit desk.manager()->bluetoothBlockedChanged(false);
    QVERIFY(desk.showsOn());
}

void TestWindow::followsTheDaemon()
{
    qputenv("PAIRDESK_DEMO_SCENE", "--empty");
    Desk desk;
    desk.open();
    for (const QString command : { "stop", "start" }) {
        const bool on = desk.showsOn();
        QCOMPARE(on, command == "stop");
        desk.flip();
        QCOMPARE(desk.toolCalls().mid(desk.toolCalls().size() - 2),
                 QStringList({ "systemctl " + command + " bluetooth", "systemctl status bluetooth" }));
        QCOMPARE(desk.showsOn(), on);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QTRY_VERIFY(!QApplication::overrideCursor());
        QCOMPARE(desk.showsOn(), !on);
    }
    QTRY_COMPARE(desk.sim("Calls").toStringList(),
                 QStringList({ "RegisterAgent /kvagent DisplayYesNo", "RequestDefaultAgent /kvagent" }));
}

void TestWindow::staysOffWhenRefused()
{
    Desk desk;
    desk.scriptTool("systemctl", "", 3);
    desk.open();
    QVERIFY(!desk.showsOn());
    desk.flip();
    QVERIFY(!desk.showsOn());
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(desk.toolCalls().filter("systemctl"),
             QStringList({ "systemctl status bluetooth", "systemctl start bluetooth",
                           "systemctl status bluetooth" }));
}

void TestWindow::followsTheAdapter()
{
    Desk desk;
    desk.open();
    const QStringList listed = rows(desk.table);
    desk.sim("RemoveAdapter", { "hci0" });
    auto *add = desk.window->findChild<QPushButton *>("add");
    QTRY_VERIFY(!add->isEnabled());
    QCOMPARE(rows(desk.table), listed);
    QTRY_COMPARE(rows(desk.table), QStringList({ "", "" }));
    desk.sim("AddAdapter", { "hci0", true });
    desk.addDevice("New", { { "Paired", true } });
    QTRY_VERIFY(add->isEnabled());
    QCOMPARE(rows(desk.table), QStringList({ "", "" }));
    QTRY_COMPARE(rows(desk.table), QStringList({ "New|headset|Disconnected", "" }));
}

void TestWindow::reportsFailure()
{
    Desk desk;
    const QString why = "<b>why</b> %s";
    desk.sim("SetBehaviour",
             { desk.cans, QVariantMap{ { "ConnectError", "org.odd" }, { "ConnectErrorText", why } } });
    desk.open();
    QStringList seen;
    closeBox(&seen);
    QVERIFY(clickRow(desk.table, "Cans"));
    press(desk.window.get(), "connect");
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(desk.enabled(), QString("remove"));
    QTRY_COMPARE(seen, QStringList({ "Bluetooth Connect: " + why }));
    QTRY_COMPARE(desk.enabled(), QString("connect remove"));
    QVERIFY(!QApplication::overrideCursor());

    desk.sim("SetBehaviour", { desk.cans, QVariantMap() });
    press(desk.window.get(), "connect");
    QTRY_COMPARE(desk.enabled(), QString("connect")); // the answer enables it once more
    QVERIFY(desk.device("Cans")->isConnected() && !QApplication::overrideCursor());
    QVERIFY(rows(desk.table).contains("Cans|headset|Connected"));
}

/** The daemon returns while the box is open that its death brought up. */
void TestWindow::outlivesTheDaemonAfterRemoval()
{
    Desk desk;
    desk.sim("SetBehaviour", { desk.cans, QVariantMap{ { "ConnectTime", 60000 } } });
    desk.open();
    QVERIFY(clickRow(desk.table, "Keys"));
    press(desk.window.get(), "remove");
    QTRY_VERIFY(!desk.device("Keys") && !QApplication::overrideCursor());
    bool seen = false;
    whenModal([&](QWidget *box) {
        const auto close = qScopeGuard([&] { box->close(); });
        desk.start();
        QTRY_VERIFY(desk.manager()->isOperational());
        seen = true;
    });
    QVERIFY(clickRow(desk.table, "Cans"));
    press(desk.window.get(), "connect");
    QTRY_VERIFY(desk.sim("Calls").toStringList().contains("Connect " + desk.cans));
    desk.kill();
    QTRY_VERIFY(seen && !QApplication::activeModalWidget());
    QCoreApplication::processEvents();
    QVERIFY(desk.manager()->isOperational() && desk.manager()->usableAdapter() && desk.showsOn());
}

void TestWindow::powersOnToRemove()
{
    Desk desk("--unpowered");
    desk.open();
    desk.takeCalls();
    QVERIFY(clickRow(desk.table, "Cans"));
    press(desk.window.get(), "remove");
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QTRY_COMPARE(rows(desk.table), QStringList({ "Keys|keyboard|Connected", "" }));
    QCOMPARE(desk.enabled(), QString());
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(desk.takeCalls(), QStringList({ "Set Powered true", "RemoveDevice " + desk.cans }));
}

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
