// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever goes while whatever is open: nothing crashes, and afterwards the window does its work again.
#include "bluetooth/btagent.h"
#include "dialogs/pin.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <QtDBus>
#include <QtTest>
#include <QtWidgets>

#include <csignal>

/** What can be open, and how the device to connect behaves there. */
static const QVector<std::pair<QString, QVariantMap>> places = {
    { "window", {} },
    { "options", {} },
    { "menu", {} },
    { "audiotest", {} },
    { "audiotest box", {} },
    { "pairdesk box", { { "ConnectError", "org.bluez.Error.Failed" }, { "ConnectErrorText", "why" } } },
    { "btscan", {} },
    { "btscan connecting", { { "ConnectTime", 60000 } } },
    { "btscan pin", { { "Pin", "123" }, { "PairTime", 60000 } } },
    { "btscan change box", {} },
    { "btscan answer box", { { "ReplyDelay", 0 } } },
    { "btscan failure box", { { "ConnectError", "org.bluez.Error.Failed" } } },
};

/** The daemon, the window, and a user who goes to one place and closes everything when he has been there. */
struct Desk : TestBus {
    Desk();
    ~Desk();
    void addTargets(const std::pair<QString, QVariantMap> &setting);
    void visit(const QString &where, const std::function<void()> &then);
    void look();
    bool isThere(QWidget *top) const;
    void goOn(QWidget *top);

    pairdesk window;
    QTableWidget *table;
    QString target = "Target"; ///< the device that is connected on the way
    QString place;
    std::function<void()> thing;
    QPointer<QWidget> held; ///< stays open while the thing happens
    bool chosen = false;
    bool visited = false;
};

Desk::Desk()
    : TestBus("--empty")
    , window(manager(), nullptr)
    , table(window.findChild<QTableWidget *>("devices"))
{
    scriptTool("pactl-list-cards",
               "Card #1\n\tName: bluez_card.00_1A_7D_30_00_01\n\tProfiles:\n\t\ta: A (sinks: 1, sources: 1)\n"
               "\t\tb: B (sinks: 1, sources: 0)\n\tActive Profile: a\n");
    window.show();
    look();
}

Desk::~Desk()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
}

void Desk::addTargets(const std::pair<QString, QVariantMap> &setting)
{
    addDevice("Cans", { { "Paired", true }, { "Connected", true } });
    addDevice("Target", { { "Paired", setting.first == "pairdesk box" } }, setting.second);
    QTRY_VERIFY(device("Target"));
    QMetaObject::invokeMethod(&window, "onPopupateTable");
}

bool Desk::isThere(QWidget *top) const
{
    if (place.endsWith("box"))
        return qobject_cast<QMessageBox *>(top);
    if (place.endsWith("pin"))
        return top->findChild<Pin *>();
    if (place == "menu")
        return qobject_cast<QMenu *>(top);
    return top->objectName() == place.section(' ', 0, 0) && (chosen || !place.contains(' '));
}

void Desk::goOn(QWidget *top)
{
    if (qobject_cast<QMenu *>(top)) {
        QTest::keyClick(top, Qt::Key_Down);
        QTest::keyClick(top, Qt::Key_Return);
    } else if (top->objectName() == "audiotest") {
        top->findChild<QComboBox *>("profiles")->setCurrentIndex(1);
    } else if (!chosen && clickRow(top->findChild<QTableWidget *>("devices"), target)) {
        chosen = true;
        press(top, "pairconnect");
    }
}

/** Each look has a timer of its own, so that boxes upon boxes are seen. */
void Desk::look()
{
    QTimer::singleShot(5, &window, [this] {
        look();
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *top = popup ? popup : QApplication::activeModalWidget();
        if (!top || top == held)
            return;
        if (visited) {
            top->close();
        } else if (isThere(top)) {
            visited = true;
            held = top;
            thing();
            held.clear();
        } else {
            goOn(top);
        }
    });
}

void Desk::visit(const QString &where, const std::function<void()> &then)
{
    place = where;
    thing = then;
    chosen = visited = false;
    if (place == "window") {
        visited = true;
        thing();
    } else if (place == "options") {
        press(&window, "options");
    } else if (place.startsWith("btscan")) {
        press(&window, "add");
    } else if (place == "pairdesk box") {
        QVERIFY(clickRow(table, "Target"));
        press(&window, "connect");
    } else {
        QVERIFY(clickRow(table, "Cans"));
        emit table->customContextMenuRequested({});
    }
    QTRY_VERIFY(visited && !held && !QApplication::activeModalWidget());
}

class TestFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
    void losesTheBus_data();
    void losesTheBus();
};

void TestFaults::survives_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("fault");
    for (int place = 0; place < places.size(); ++place) {
        for (const char *fault : { "daemon", "adapter", "devices", "properties" })
            QTest::addRow("%s: %s", qPrintable(places[place].first), fault) << place << fault;
    }
}

void TestFaults::survives()
{
    QFETCH(int, place);
    QFETCH(QString, fault);
    Desk desk;
    desk.addTargets(places[place]);
    desk.visit(places[place].first, [&] {
        const QPointer<BluezQt::Device> struck = desk.device("Target").data();
        desk.window.findChild<btagent *>()->device.clear(); // as when another device comes in
        if (fault == "daemon") {
            desk.kill();
            QTRY_VERIFY(!desk.manager()->isOperational());
            desk.start();
        } else if (fault == "adapter") {
            desk.sim("RemoveAdapter", { "hci0" });
            QTRY_VERIFY(desk.manager()->adapters().isEmpty());
            desk.sim("AddAdapter", { "hci0", true });
        } else if (fault == "devices") {
            desk.sim("RemoveDevice", { desk.device("Cans")->address() });
            desk.sim("RemoveDevice", { struck->address() });
            QTRY_VERIFY(desk.manager()->devices().isEmpty());
        } else {
            const QString address = struck->address();
            for (const char *name : { "Name", "Class", "Connected", "Paired", "Adapter", "RSSI" })
                desk.sim("SetDevice", { address, QVariantMap{ { name, QStringList({ "no", "sense" }) } } });
            desk.sim("SetDevice", { address, QVariantMap{ { "Address", "no sense" } } });
        }
        QTRY_VERIFY(desk.manager()->usableAdapter());
    });

    desk.target = "Next";
    desk.addDevice("Next", { { "Class", 0x002540 } });
    desk.visit("btscan change box", [&] {
        QCOMPARE(qobject_cast<QMessageBox *>(desk.held)->text(),
                 QString("Device \"Next\" successfully connected."));
    });
    QTRY_VERIFY(rows(desk.table).contains("Next|keyboard|Connected"));
}

void TestFaults::losesTheBus_data()
{
    QTest::addColumn<int>("place");
    for (int place = 0; place < places.size(); ++place)
        QTest::newRow(qPrintable(places[place].first)) << place;
}

/** One place to a process, which gets no bus again. */
void TestFaults::losesTheBus()
{
    QFETCH(int, place);
    Desk desk;
    desk.addTargets(places[place]);
    desk.visit(places[place].first, [&] {
        const auto bus = QDBusConnection::systemBus();
        QCOMPARE(::kill(pid_t(bus.interface()->servicePid("org.freedesktop.DBus").value()), SIGKILL), 0);
        QTRY_VERIFY(!bus.isConnected());
    });
    for (const char *next : { "btscan", "options" })
        desk.visit(next, [] {});
    QVERIFY(desk.table->isEnabled());
    press(&desk.window, "ok");
    QVERIFY(desk.window.m_bOk && !desk.window.isVisible());
}

QTEST_MAIN(TestFaults)
#include "tst_faults.moc"
