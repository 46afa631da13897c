// SPDX-License-Identifier: GPL-3.0-or-later
// Repetition costs no memory, and no connections besides the two that each scan adds.
#include "tests/support/fixture.h"

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

static void repeats(int times, const QString &before, const QString &round)
{
    QPixmapCache::setCacheLimit(1024); // as the program does
    Fixture fixture;
    QList<int> counts, sizes;
    fixture.verb("isDone", [&](const QString &) {
        return fixture.device("Cans")->findChildren<BluezQt::PendingCall *>().isEmpty();
    });
    fixture.verb("measure", [&](const QString &) { // what outlives the dialogs
        counts += connections(&fixture.manager) + connections(fixture.agent)
                  + connections(fixture.manager.adapters().first().data())
                  + connections(fixture.device("Cans").data()) + QApplication::topLevelWidgets().size();
        sizes += contentOf("/proc/self/statm").split(' ').value(1).toInt() * 4;
    });
    fixture.perform("device Cans Paired, open, " + before + round + "measure, " + round.repeated(times / 10)
                    + "measure, " + round.repeated(times - times / 10) + "measure, leave");
    QCOMPARE(counts[2], counts[0] + (round.contains("click add") ? 2 * times : 0));
    qInfo("%d KiB after %d times, %d KiB after %d", sizes[1], times / 10, sizes[2], times);
    QVERIFY(sizes[2] < 1.05 * sizes[1]);
}

class TestSoak : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensDialogs() { repeats(200, "", "click add, close btscan, click options, close options, "); }
    void seesOthers() { repeats(100, "click add, ", "strangers 200, devices 201, gone 200, devices 1, "); }
    void connects()
    {
        repeats(500, "", "select Cans, click connect, isDone, select Cans, click disconnect, isDone, ");
    }
};

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
