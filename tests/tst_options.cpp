// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/paths.h"
#include "tests/support/desk.h"

#include <QtTest>

class TestOptions : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsSettings();
};

/** The log is opened and closed by the dialog itself. */
void TestOptions::editsSettings()
{
    Desk desk("options");
    put(Desk::store(), "[General]\naudioprofile=HSP/HFP\nenabled=true\n");
    desk.does(R"(
        open, press options, look, press tray, press debug, choose 0, press cancel, press options, press debug, press ok
        press options, press tray, press ok, press options, press debug, press ok, press close)");
    const QStringList log =
        QString::fromUtf8(contentOf(paths::debugLogFile)).trimmed().split(QRegularExpression("(\n|^).*- "));
    QCOMPARE(log.value(1), QString("pairdesk::on_options_clicked out"));
    QCOMPARE(log.last(), QString("pairdesk::on_debug_clicked 0"));
}

QTEST_MAIN(TestOptions)
#include "tst_options.moc"
