// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debuglog.h"
#include "mainwindow/clickablelabel.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/testbus.h"

#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

/** A user's evening in one window; each step's trace has to be, line by line, its section of data/road.log.
 */
class TestRoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void traces();

private:
    TestBus m_bus = TestBus("--empty");
    std::unique_ptr<pairdesk> m_window;
    int m_compared = 0; // lines of the log
    QStringList m_boxes;

    QStringList logged();
    void compare(const char *step);
    void scan(const QString &name, const std::function<void(QTableWidget *)> &fill, const char *last);
};

/** The lines since the last step, without what differs from run to run: time, process, addresses in memory.
 */
QStringList TestRoad::logged()
{
    static const QRegularExpression prefix("^\\d\\d:\\d\\d:\\d\\d\\.0\\d{3} -\\(\\d{5,}\\)- ",
                                           QRegularExpression::MultilineOption);
    static const QRegularExpression item(" item: (?!0$)[0-9a-f]+$", QRegularExpression::MultilineOption);
    QFile file(m_bus.path("log"));
    file.open(QIODevice::ReadOnly);
    const QString text = QString(file.readAll()).remove(prefix).replace(item, " item: SET");
    return text.split('\n', Qt::SkipEmptyParts).mid(m_compared);
}

void TestRoad::compare(const char *step)
{
    QFile file(QFINDTESTDATA("data/road.log"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString title = QString("# %1\n").arg(step);
    const QString section = QString(file.readAll()).section(title, 1).section("\n\n", 0, 0).trimmed();
    const QStringList lines = logged();
    m_compared += lines.size();
    if (lines.join('\n') != section)
        qInfo().noquote() << "The trace was:\n" + title + lines.join('\n');
    QCOMPARE(lines, section.split('\n'));
    QVERIFY(!QApplication::overrideCursor());
}

/** Opens the scan dialog, fills it, connects a device, and closes the box once this line is in the log. */
void TestRoad::scan(const QString &name, const std::function<void(QTableWidget *)> &fill, const char *last)
{
    whenModal([&](QWidget *dialog) {
        auto *table = dialog->findChild<QTableWidget *>("devices");
        fill(table);
        whenModal([&](QWidget *box) {
            const auto close = qScopeGuard([&] { box->close(); });
            m_boxes.append(qobject_cast<QMessageBox *>(box)->text());
            QTRY_VERIFY(logged().contains(last));
        });
        clickRow(table, name);
        press(dialog, "pairconnect");
        const auto *connect = dialog->findChild<QPushButton *>("pairconnect");
        QTRY_VERIFY(!dialog->isVisible() || connect->isEnabled());
        if (!dialog->isVisible())
            return;
        const int found = table->rowCount();
        m_bus.addDevice("Late");
        QTRY_COMPARE(table->rowCount(), found + 1);
        press(dialog, "close");
    });
    press(m_window.get(), "add");
}

void TestRoad::traces()
{
    qputenv("PAIRDESK_DEMO_SCENE", "--empty"); // for the daemon that the switch starts
    debugLogOpen(m_bus.path("log").toUtf8(), 3);
    QString address = m_bus.addDevice("Keyboard", { { "Class", 0x002540 }, { "Paired", true } });
    m_bus.addDevice("Tag", { { "Class", 0 }, { "Paired", true } });
    m_window = std::make_unique<pairdesk>(m_bus.manager(), nullptr);
    m_window->show();
    auto *table = m_window->findChild<QTableWidget *>("devices");
    auto *pushme = m_window->findChild<ClickableLabel *>();
    QTRY_VERIFY(logged().contains("btagent::hcitoollescan exitCode: 0"));
    m_bus.sim("SetDevice", { address, QVariantMap{ { "RSSI", -40 } } });
    QTRY_VERIFY(logged().contains("pairdesk::onDevicePropertyChanged out"));
    compare("start");

    const auto findHeadphones = [this](QTableWidget *) {
        // A late answer, so that the change comes first however busy the machine is.
        const QString found = m_bus.addDevice("Headphones", { { "Class", 0x240418 } },
                                              { { "ReplyDelay", 400 } });
        m_bus.addDevice("Other tag", { { "Class", 0 } });
        m_bus.addDevice("Mouse", { { "Class", 0x002580 } });
        QTRY_COMPARE(logged().count("btagent::onDeviceFound out"), 3);
        m_bus.sim("SetDevice", { found, QVariantMap{ { "RSSI", -40 } } });
        QTRY_VERIFY(logged().contains("btagent::onDevicePropertyChanged out"));
    };
    scan("Headphones", findHeadphones, "btscan::onCallFinished out2");
    compare("add");

    QVERIFY(clickRow(table, "Headphones"));
    press(m_window.get(), "disconnect");
    QVERIFY(QApplication::overrideCursor());
    QTRY_VERIFY(rows(table).contains("Headphones|headphones|Disconnected"));
    QTRY_VERIFY(m_bus.hasAnswered("Headphones"));
    compare("disconnect");

    QVERIFY(clickRow(table, "Headphones"));
    press(m_window.get(), "connect");
    QVERIFY(QApplication::overrideCursor());
    QTRY_VERIFY(logged().contains("btagent::onCallFinished out"));
    compare("connect");

    QTest::mousePress(pushme, Qt::LeftButton);
    QTRY_VERIFY(logged().contains("pairdesk::populateTable out"));
    QTest::mousePress(pushme, Qt::LeftButton);
    QTRY_COMPARE(logged().count("pairdesk::populateTable out"), 2);
    compare("switch");

    const auto findKeyboard = [this](QTableWidget *) {
        m_bus.addDevice("New keyboard", { { "Class", 0x002540 } },
                        { { "Pin", "428316" }, { "ReplyDelay", 400 } });
        QTRY_VERIFY(logged().contains("btagent::onDeviceFound out"));
    };
    scan("New keyboard", findKeyboard, "btscan::onCallFinished out2");
    compare("pin");

    const auto findPhone = [this](QTableWidget *found) {
        m_bus.addDevice("Old mouse", { { "Class", 0x002580 } });
        m_bus.addDevice("Phone", { { "Class", 0x5a020c } }, { { "ConnectError", "org.bluez.Error.Failed" } });
        QTRY_COMPARE(logged().count("btagent::onDeviceFound out"), 4); // in the second scan all come twice
        QVERIFY(clickRow(found, "Old mouse"));
        press(found->window(), "remove");
        QTRY_COMPARE(rows(found), QStringList({ "", "", "Phone|phone" }));
    };
    scan("Phone", findPhone, "btscan::onCallFinished in");
    compare("refusal");

    QVERIFY(clickRow(table, "New keyboard"));
    press(m_window.get(), "remove");
    QVERIFY(QApplication::overrideCursor());
    QTRY_COMPARE(rows(table), QStringList({ "", "" }));
    compare("remove");

    press(m_window.get(), "ok");
    QVERIFY(m_window->m_bOk && !m_window->isVisible());
    m_window.reset();
    debugLog(3, "after the end");
    compare("ok");
    QCOMPARE(m_boxes, QStringList({ "Device \"Headphones\" successfully connected.",
                                    "Device \"New keyboard\" successfully connected.", "" }));
    QProcess::execute("systemctl", { "stop", "bluetooth" });
}

QTEST_MAIN(TestRoad)
#include "tst_road.moc"
