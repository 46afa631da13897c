// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"
#include "app/paths.h"
#include "dialogs/options.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/testbus.h"

#include <QCheckBox>
#include <QComboBox>
#include <QtTest>

class TestOptions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsRecord_data();
    void editsRecord();
    void opensFromWindow();

private:
    const Aside m_log{ paths::debugLog };
};

/** The texts of the log's lines. */
static QStringList traced()
{
    QString log = QString::fromUtf8(contentOf(paths::debugLog)).trimmed();
    return log.remove(QRegularExpression("^\\S+ -\\(\\d+\\)- ", QRegularExpression::MultilineOption))
        .split('\n')
        .filter("_clicked");
}

static void toggle(QWidget *dialog, const char *box)
{
    QTest::mouseClick(dialog->findChild<QCheckBox *>(box), Qt::LeftButton, {}, { 10, 12 });
}

void TestOptions::editsRecord_data()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<bool>("edit");
    QTest::addColumn<bool>("accept");
    QTest::newRow("1 0 1 HSP/HFP, unchanged") << "HSP/HFP" << false << true;
    QTest::newRow("1 0 1 A2DP, was unknown") << "LDAC" << false << true;
    QTest::newRow("1 0 1 A2DP, was empty") << "" << false << true;
    QTest::newRow("1 1 0 A2DP, edited") << "HSP/HFP" << true << true;
    QTest::newRow("1 0 1 LDAC, cancelled") << "LDAC" << true << false;
}

/** Each tag begins with the record that results: enabled, showTrayIcon, debug, audioProfile. */
void TestOptions::editsRecord()
{
    QFETCH(QString, profile);
    QFETCH(bool, edit);
    QFETCH(bool, accept);
    AppSettings settings;
    settings.enabled = settings.debug = true;
    settings.audioProfile = profile;
    options dialog(&settings, nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Bluetooth Options"));
    QCOMPARE(QList<QSize>({ dialog.minimumSize(), dialog.maximumSize() }),
             QList<QSize>({ { 320, 217 }, { 320, 217 } }));
    dialog.show();
    if (edit) {
        toggle(&dialog, "tray");
        toggle(&dialog, "debug");
        auto *box = dialog.findChild<QComboBox *>("profile");
        box->setCurrentIndex(1 - box->currentIndex());
    }
    press(&dialog, accept ? "ok" : "cancel");
    QCOMPARE(dialog.result(), accept ? 1 : 0);
    const QString record =
        QString("%1 %2 %3 ").arg(settings.enabled).arg(settings.showTrayIcon).arg(settings.debug);
    QCOMPARE(record + settings.audioProfile, QString(QTest::currentDataTag()).section(',', 0, 0));
}

void TestOptions::opensFromWindow()
{
    TestBus bus;
    pairdesk window(bus.manager(), nullptr);
    window.show();
    const auto run = [&window](bool log, const char *button) {
        whenModal([=](QWidget *dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Bluetooth Options"));
            if (dialog->findChild<QCheckBox *>("debug")->isChecked() != log)
                toggle(dialog, "debug");
            press(dialog, button);
        });
        press(&window, "options");
    };
    const auto starts = [&bus] { return bus.toolCalls().count("pdtray"); };
    const QString store = bus.path("config/Zemra/pairdesk.conf");

    run(true, "cancel");
    QCOMPARE(traced(), QStringList({ "pairdesk::on_options_clicked out" }));
    QVERIFY(!QFile::exists(store));
    for (int accepted = 1; accepted <= 2; ++accepted) {
        run(true, "ok");
        QTRY_COMPARE(starts(), accepted);
    }
    QCOMPARE(contentOf(store),
             QByteArray("[General]\naudioprofile=A2DP\ndebug=true\nenabled=false\nshowtrayicon=false\n"));
    QCOMPARE(traced().mid(5),
             QStringList({ "pairdesk::on_options_clicked in", "pairdesk::on_options_clicked options accepted",
                           "pairdesk::on_options_clicked out" }));

    // Closed in the middle of the dialog and, in this process, for good.
    run(false, "ok");
    QTRY_COMPARE(starts(), 3);
    QVERIFY(contentOf(store).contains("debug=false"));
    run(true, "cancel");
    QCOMPARE(traced().last(), QString("pairdesk::on_debug_clicked 0"));
}

QTEST_MAIN(TestOptions)
#include "tst_options.moc"
