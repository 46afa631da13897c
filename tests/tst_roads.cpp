// SPDX-License-Identifier: GPL-3.0-or-later
// Roads through the program, told deed by deed in roads/*.log, and what has no single right record.
#include "app/paths.h"
#include "dialogs/pin.h"
#include "tests/support/desk.h"

#include <QPushButton>
#include <QTranslator>
#include <QtTest>

class TestRoads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /** What can be seen must not depend on whether the log is open. It is opened only once in a process. */
    void walks_data()
    {
        QTest::addColumn<bool>("withLog");
        const QStringList roads = QDir(TEST_DATA "/roads").entryList({ "*.log" });
        for (const QString &road : roads) {
            QTest::newRow(qPrintable(road.section('.', 0, 0))) << false;
            QTest::newRow(qPrintable(road.section('.', 0, 0) + " with log")) << true;
        }
    }

    void walks()
    {
        QFETCH(bool, withLog);
        if (!withLog && qEnvironmentVariableIsSet("PAIRDESK_RECORD"))
            return;
        Desk desk;
        desk.verb("pair", [&](const QString &address) { desk.agent->pairDevice(address); });
        desk.verb("connect", [&](const QString &address) { desk.agent->connectDevice(address); });
        desk.verb("disconnect", [&](const QString &address) { desk.agent->disconnectDevice(address); });
        desk.verb("remove", [&](const QString &address) { desk.agent->removeDevice(address); });
        desk.verb("scan", [&](const QString &) { desk.agent->scanDevices(); });
        desk.verb("stop", [&](const QString &) { desk.agent->stopScan(); });
        desk.verb("finish", [&](const QString &) { desk.agent->onCallFinished(nullptr); });
        desk.verb("forget", [&](const QString &) { desk.agent->onAdapterRemoved(); });
        desk.verb("drop", [&](const QString &name) { desk.device(name)->disconnectFromDevice(); });
        // Somebody else listens, whom an operation cuts off.
        desk.verb("listen", [&](const QString &name) {
            connect(desk.device(name).data(), &BluezQt::Device::pairedChanged, this,
                    [] { qDebug("another connection"); });
        });
        // One answer is there while the program tells of the other.
        QTimer between;
        connect(&between, &QTimer::timeout, &desk, [&] {
            if (!desk.device("Cans")->isConnected())
                return;
            between.stop();
            desk.sim("goon Cans");
            Desk::waitForDaemon();
        });
        desk.verb("between", [&](const QString &) { between.start(0); });
        desk.verb("accept", [](const QString &) {
            Hand::front()->findChildren<Pin *>().first()->findChild<QPushButton *>("pushButton")->click();
        });
        desk.verb("mouse", [&](const QString &what) { // in the first row
            const QPointF place = desk.table->visualRect(desk.table->model()->index(0, 0)).center();
            const int type = QMetaEnum::fromType<QEvent::Type>().keyToValue(qPrintable("MouseButton" + what));
            QMouseEvent event(QEvent::Type(type), place, place, Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(desk.table->viewport(), &event);
        });
        desk.verb("block", [&](const QString &on) { emit desk.manager.bluetoothBlockedChanged(on == "on"); });
        desk.verb("refill",
                  [&](const QString &) { QMetaObject::invokeMethod(desk.window.get(), "onPopupateTable"); });
        desk.verb("cards", [&](const QString &active) {
            put(desk.path("tools/pactl-list-cards.out"),
                contentOf(TEST_DATA "/pactl/pipewire-cards.txt")
                    .replace("Profile: audio-gateway", "Profile: " + active.toUtf8()));
        });

        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        desk.walk(QString(QTest::currentDataTag()).section(' ', 0, 0), withLog);
        QVERIFY(QDir(folder.path()).isEmpty()); // no name was run by a shell
        QDir::setCurrent("/"); // the folder goes
        const QList<QByteArray> lines = contentOf(paths::debugLogFile).trimmed().split('\n');
        if (QByteArray(QTest::currentDataTag()) == "options") // which have opened the log, and closed it
            QVERIFY(lines.first().endsWith("- pairdesk::on_options_clicked out")
                    && lines.last().endsWith("- pairdesk::on_debug_clicked 0"));
    }

    void fits_data()
    {
        QTest::addColumn<QString>("catalogue");
        const QStringList catalogues = QDir(":/translations").entryList();
        for (const QString &catalogue : catalogues)
            QTest::newRow(qPrintable(catalogue)) << ":/translations/" + catalogue;
    }

    /** Windows do not grow: every language has to fit. */
    void fits()
    {
        QFETCH(QString, catalogue);
        QTranslator translator;
        QVERIFY(translator.load(catalogue) && QApplication::installTranslator(&translator));
        Desk desk;
        QStringList seen;
        desk.verb("look", [&](const QString &) { seen += Desk::view(true).join('\n'); });
        desk.does(R"(
            file tools/pactl-list-cards.out Card #1 bluez_card.00_1A_7D_30_00_01\nProfiles:\na: A (sources: 1)\nActive Profile: a
            device Cans Paired Connected, device Mouse Class=0x2580 Paired, device Keys Class=0x2540 / Pin=1 PairTime=60000
            devices 3, open, look, menu Cans, look, key Down, key Return, see audiotest, look, close audiotest
            press options, look, close options, press add, look, row Keys, press pairconnect, see Pin, look, leave)");
        QCOMPARE(seen.size(), 6);
        const QStringList lines = seen.join('\n').split('\n');
        // The line above the PIN is higher than its place, on purpose.
        const QRegularExpression fault("TOO WIDE|OVERLAPS|SCROLLS|^(?!  label 80,20 271x17 ).*TOO HIGH");
        QCOMPARE(lines.filter(fault).join('\n'), QString());
    }
};

QTEST_MAIN(TestRoads)
#include "tst_roads.moc"
