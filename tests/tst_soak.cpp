// SPDX-License-Identifier: GPL-3.0-or-later
// What is done again and again costs no more memory, and no more connections than the two that a scan adds.
#include "tests/support/desk.h"

#include <BluezQt/Adapter>
#include <QtTest>
#include <QtWidgets>

/** How many connections begin at the object's signals. */
static int connections(const QObject *object)
{
    struct Opened : QObject {
        using QObject::receivers;
    };
    const QMetaObject *type = object->metaObject();
    int count = 0;
    for (int index = 0; index < type->methodCount(); ++index) {
        if (type->method(index).methodType() == QMetaMethod::Signal)
            count += (object->*&Opened::receivers)("2" + type->method(index).methodSignature());
    }
    return count;
}

static void lasts(int times, const QString &before, const QString &round)
{
    Desk desk;
    QList<int> counts, sizes;
    desk.verb("rests", [&](const QString &) {
        return desk.device("Cans")->findChildren<BluezQt::PendingCall *>().isEmpty();
    });
    desk.verb("measure", [&](const QString &) { // what outlives the dialogs
        counts += connections(&desk.manager) + connections(desk.agent)
                  + connections(desk.manager.adapters().first().data())
                  + connections(desk.device("Cans").data()) + QApplication::topLevelWidgets().size();
        sizes += contentOf("/proc/self/statm").split(' ').value(1).toInt() * 4;
    });
    desk.does("device Cans Paired, open, " + before + round + "measure, " + round.repeated(times / 10)
              + "measure, " + round.repeated(times - times / 10) + "measure, leave");
    QCOMPARE(counts[2], counts[0] + (round.contains("press add") ? 2 * times : 0));
    qInfo("%d KiB after %d times, %d KiB after %d", sizes[1], times / 10, sizes[2], times);
    QVERIFY(sizes[2] < 1.05 * sizes[1]);
}

class TestSoak : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensDialogs() { lasts(200, "", "press add, close btscan, press options, close options, "); }
    void seesOthers() { lasts(100, "press add, ", "strangers 200, devices 201, gone 200, devices 1, "); }
    void connects() { lasts(500, "", "row Cans, press connect, rests, row Cans, press disconnect, rests, "); }
};

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
