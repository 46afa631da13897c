// SPDX-License-Identifier: GPL-3.0-or-later
// A long time in a short one: what is done again and again costs no more memory and no more connections,
// but for the two that each scan adds.
#include "bluetooth/btagent.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <QtTest>
#include <QtWidgets>

/** How many connections begin at each signal of what outlives the dialogs, and how many windows there are. */
using Census = QMap<QByteArray, int>;

struct Desk : TestBus {
    Desk();
    Census census();
    void repeat(int times, const std::function<void()> &step);

    pairdesk window;
    QTableWidget *table;
};

Desk::Desk()
    : TestBus("--empty")
    , window(manager(), nullptr)
    , table(window.findChild<QTableWidget *>("devices"))
{
    addDevice("Cans", { { "Paired", true } });
    window.show();
    QTRY_VERIFY(device("Cans"));
    QMetaObject::invokeMethod(&window, "onPopupateTable");
}

static void count(QObject *object, Census *census)
{
    struct Opened : QObject {
        using QObject::receivers;
    };
    for (int index = 0; index < object->metaObject()->methodCount(); ++index) {
        const QMetaMethod method = object->metaObject()->method(index);
        const QByteArray name = object->metaObject()->className() + ("." + method.name());
        if (method.methodType() == QMetaMethod::Signal)
            (*census)[name] += (object->*&Opened::receivers)("2" + method.methodSignature());
    }
}

Census Desk::census()
{
    Census census{ { "windows", static_cast<int>(QApplication::topLevelWidgets().size()) } };
    count(manager(), &census);
    count(manager()->adapters().first().data(), &census);
    count(device("Cans").data(), &census);
    count(window.findChild<btagent *>(), &census);
    return census;
}

/** The resident memory after a tenth and in the end must be alike. */
void Desk::repeat(int times, const std::function<void()> &step)
{
    const auto resident = [] { return contentOf("/proc/self/statm").split(' ').value(1).toInt() * 4; };
    int early = 0;
    for (int time = 1; time <= times; ++time) {
        step();
        if (QTest::currentTestFailed())
            return;
        if (time == times / 10)
            early = resident();
    }
    qInfo("%d KiB after %d times, %d KiB after %d", early, times / 10, resident(), times);
    QVERIFY(resident() < 1.05 * early);
}

class TestSoak : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensDialogs();
    void seesDevicesComeAndGo();
    void connectsAndDisconnects();
};

void TestSoak::opensDialogs()
{
    Desk desk;
    Census expected;
    desk.repeat(200, [&] {
        whenModal([](QWidget *dialog) { dialog->close(); });
        press(&desk.window, "add");
        QTest::qWait(1); // what is to be deleted later is
        if (expected.isEmpty())
            expected = desk.census(); // with the first scan's two
    });
    expected["BluezQt::Adapter.deviceAdded"] += 199;
    expected["BluezQt::Adapter.deviceChanged"] += 199;
    QCOMPARE(desk.census(), expected);
}

void TestSoak::seesDevicesComeAndGo()
{
    Desk desk;
    whenModal([&desk](QWidget *dialog) {
        const Census expected = desk.census();
        desk.repeat(100, [&] {
            desk.sim("AddDevices", { 200U });
            QTRY_COMPARE(desk.manager()->devices().size(), 201);
            for (int number = 1; number <= 200; ++number)
                desk.simLater("RemoveDevice", { QString::asprintf("00:1A:7D:20:00:%02X", number) });
            QTRY_COMPARE(desk.manager()->devices().size(), 1);
        });
        QCOMPARE(desk.census(), expected);
        QCOMPARE(dialog->findChild<QTableWidget *>("devices")->rowCount(), 200);
        dialog->close();
    });
    press(&desk.window, "add");
}

void TestSoak::connectsAndDisconnects()
{
    Desk desk;
    Census expected;
    desk.repeat(500, [&] {
        QVERIFY(clickRow(desk.table, "Cans"));
        press(&desk.window, "connect");
        QTRY_VERIFY(desk.device("Cans")->isConnected() && desk.hasAnswered("Cans"));
        QVERIFY(clickRow(desk.table, "Cans"));
        press(&desk.window, "disconnect");
        QTRY_VERIFY(!desk.device("Cans")->isConnected() && desk.hasAnswered("Cans"));
        QTRY_COMPARE(rows(desk.table), QStringList("Cans|headset|Disconnected"));
        if (expected.isEmpty())
            expected = desk.census();
    });
    QCOMPARE(desk.census(), expected);
}

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
