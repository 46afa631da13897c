// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"
#include "app/paths.h"
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
    void editsSettings();

private:
    const Aside m_log{ paths::debugLogFile };
};

/** The log's last line, without its beginning. */
static QString traced()
{
    return QString::fromUtf8(contentOf(paths::debugLogFile)).trimmed().section(")- ", -1);
}

void TestOptions::editsSettings()
{
    TestBus bus;
    const QString store = bus.path("config/Zemra/pairdesk.conf");
    QVERIFY(put(store, "[General]\naudioprofile=HSP/HFP\nenabled=true\n"));
    pairdesk window(bus.manager(), nullptr);
    window.show();
    /** Opens the dialog, which has to show this, clicks into the boxes, chooses the profile and leaves. */
    const auto run = [&](const QString &shown, const QStringList &boxes, int profile, const char *button) {
        whenModal([=](QWidget *dialog) {
            auto *profiles = dialog->findChild<QComboBox *>("profile");
            const bool tray = dialog->findChild<QCheckBox *>("tray")->isChecked();
            const bool debug = dialog->findChild<QCheckBox *>("debug")->isChecked();
            QCOMPARE(QString("%1 %2 ").arg(tray).arg(debug) + profiles->currentText(), shown);
            QCOMPARE(dialog->windowTitle(), QString("Bluetooth Options"));
            QVERIFY(dialog->minimumSize() == QSize(320, 217) && dialog->maximumSize() == QSize(320, 217));
            for (const QString &box : boxes)
                QTest::mouseClick(dialog->findChild<QCheckBox *>(box), Qt::LeftButton, {}, { 10, 12 });
            profiles->setCurrentIndex(profile);
            press(dialog, button);
        });
        press(&window, "options");
    };
    const QByteArray before = contentOf(store);
    run("0 0 HSP/HFP", { "tray", "debug" }, 0, "cancel");
    QCOMPARE(traced(), QString("pairdesk::on_options_clicked out")); // the log is on at once, even so
    QCOMPARE(contentOf(store), before);
    for (int accepted = 0; accepted <= 2; ++accepted) {
        QTRY_COMPARE(bus.toolCalls().count("pdtray"), accepted);
        if (accepted < 2)
            run(accepted == 0 ? "0 0 HSP/HFP" : "0 1 A2DP", { accepted == 0 ? "debug" : "tray" }, 0, "ok");
    }
    QCOMPARE(contentOf(store),
             QByteArray("[General]\naudioprofile=A2DP\ndebug=true\nenabled=true\nshowtrayicon=true\n"));
    run("1 1 A2DP", { "debug" }, 0, "ok");
    QCOMPARE(traced(), QString("pairdesk::on_debug_clicked 0")); // closed in the middle of the dialog
    QTRY_COMPARE(bus.toolCalls().count("pdtray"), 3);
    QVERIFY(contentOf(store).contains("debug=false"));
}

QTEST_MAIN(TestOptions)
#include "tst_options.moc"
