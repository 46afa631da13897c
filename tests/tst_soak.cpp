// SPDX-License-Identifier: GPL-3.0-or-later
// A long time in a short one: what is done again and again costs no more memory and no more connections,
// but for the two that each scan adds.
#include "bluetooth/btagent.h"
#include "tests/support/desk.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <QtTest>
#include <QtWidgets>

/** How many connections begin at each signal of what outlives the dialogs, and how many windows there are. */
using Census = QMap<QByteArray, int>;

static Census take(Desk &desk)
{
    struct Opened : QObject {
        using QObject::receivers;
    };
    Census census{ { "windows", QApplication::topLevelWidgets().size() } };
    for (QObject *object : QObjectList{ desk.manager(), desk.agent, desk.manager()->adapters().first().data(),
                                        desk.device("Cans").data() }) {
        for (int index = 0; index < object->metaObject()->methodCount(); ++index) {
            const QMetaMethod method = object->metaObject()->method(index);
            if (method.methodType() == QMetaMethod::Signal)
                census[object->metaObject()->className() + ("." + method.name())] +=
                    (object->*&Opened::receivers)("2" + method.methodSignature());
        }
    }
    return census;
}

class TestSoak : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensDialogs() { lasts(200, "", "press add, close btscan, press options, close options, ", ""); }
    void seesDevicesComeAndGo()
    {
        lasts(100, "press add, ", "strangers 200, devices 201, gone 200, devices 1, ", "close btscan");
    }
    void connectsAndDisconnects()
    {
        lasts(500, "", "row Cans, press connect, rests on, row Cans, press disconnect, rests, ", "");
    }

private:
    void lasts(int times, const QString &before, const QString &round, const QString &after);
};

/** The resident memory after a tenth and in the end must be alike. */
void TestSoak::lasts(int times, const QString &before, const QString &round, const QString &after)
{
    Desk desk;
    const auto resident = [] { return contentOf("/proc/self/statm").split(' ').value(1).toInt() * 4; };
    desk.verb("rests", [&](const QString &on) {
        const BluezQt::DevicePtr cans = desk.device("Cans");
        return cans->isConnected() == !on.isEmpty() && cans->findChildren<BluezQt::PendingCall *>().isEmpty();
    });
    int early = 0;
    Census expected, last;
    desk.verb("census", [&](const QString &) { expected = take(desk); });
    desk.verb("last", [&](const QString &) { last = take(desk); });
    desk.verb("memory", [&](const QString &) { early = resident(); });
    desk.does("device Cans Paired, open, " + before + round + "census, " + round.repeated(times / 10)
              + "memory, " + round.repeated(times - times / 10) + "last, " + after);
    if (round.contains("press add")) {
        expected["BluezQt::Adapter.deviceAdded"] += times;
        expected["BluezQt::Adapter.deviceChanged"] += times;
    }
    QCOMPARE(last, expected);
    qInfo("%d KiB after %d times, %d KiB after %d", early, times / 10, resident(), times);
    QVERIFY(resident() < 1.05 * early);
}

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
