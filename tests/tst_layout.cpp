// SPDX-License-Identifier: GPL-3.0-or-later
// The windows have a fixed size, in which the texts of every language have to fit.
#include "tests/support/fixture.h"

#include <QTranslator>
#include <QtTest>
#include <QtWidgets>

/** Why the widget is not wide enough; empty when it is. */
static QString lackOfWidth(const QWidget *widget, const QString &text)
{
    const QString lack = "%1 needs %2 of %3 pixels";
    const int width = widget->property("checkable").toBool()
                          ? widget->sizeHint().width()
                          : widget->fontMetrics().tightBoundingRect(text).width();
    if (width > widget->width())
        return lack.arg("its text").arg(width).arg(widget->width());
    const auto *table = qobject_cast<const QTableWidget *>(widget);
    const QAbstractItemView *view = table;
    for (int column = 0; table && column < table->columnCount(); ++column) {
        const int content = column == 0 ? 0 : view->sizeHintForColumn(column); // names may be cut
        const int needed = qMax(content, table->horizontalHeader()->sectionSizeHint(column));
        if (needed > table->columnWidth(column))
            return lack.arg(QString("column %1").arg(column)).arg(needed).arg(table->columnWidth(column));
    }
    const bool scrolls = table
                         && (table->horizontalScrollBar()->isVisible()
                             || table->verticalScrollBar()->isVisible());
    return scrolls ? "has a scroll bar" : QString();
}

/** What does not fit into the window, or lies on something else. */
static QStringList misfits(const QWidget *window)
{
    QStringList found;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>(QRegularExpression("^(?!qt_).+"));
    for (const QWidget *widget : widgets) {
        const QString text = widget->property("text").toString() + widget->property("title").toString();
        const QString name = window->objectName() + ' ' + widget->objectName() + ": " + text;
        if (!widget->isVisible())
            continue;
        if (const QString lack = lackOfWidth(widget, text); !lack.isEmpty())
            found += name + ' ' + lack;
        const bool isExempt = window->objectName() == "Pin" && widget->objectName() == "label"; // intentional
        if (!isExempt && !text.isEmpty() && widget->fontMetrics().height() > widget->height())
            found += name + " is too high";
        for (const QWidget *other : widgets) {
            const QRect common = widget->geometry() & other->geometry();
            if (widget != other && widget->parent() == other->parent() && other->isVisible()
                && common.width() > 1 && common.height() > 1)
                found += name + " overlaps " + other->objectName();
        }
    }
    return found;
}

class TestLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fits_data()
    {
        QTest::addColumn<QString>("catalogue");
        for (const QString &catalogue : QDir(":/translations").entryList())
            QTest::newRow(qPrintable(catalogue)) << ":/translations/" + catalogue;
    }

    void fits()
    {
        QFETCH(QString, catalogue);
        QTranslator translator;
        QVERIFY(translator.load(catalogue) && QApplication::installTranslator(&translator));
        Fixture fixture;
        if (qgetenv("QT_FONT_DPI") == "100") // usual sizes: 10 points at 96 dpi, 9 points at 100 dpi
            QApplication::setFont(QFont(QFont().family(), 9));
        QStringList found, sizes, types;
        fixture.verb("measure", [&](const QString &name) {
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                if (!window->isVisible() || window->objectName() != name)
                    continue;
                const bool isFixed = window->minimumSize() == window->maximumSize();
                found += misfits(window);
                for (const auto *table : window->findChildren<QTableWidget *>()) {
                    for (int row = 0; row < table->rowCount(); ++row)
                        types += table->item(row, 1)->text();
                }
                sizes += name + QString(" %1x%2").arg(window->width()).arg(window->height())
                         + (isFixed ? " fixed" : "");
            }
        });
        fixture.perform(
            R"(file tools/pactl-list-cards.out Card #1 bluez_card.00_1A_7D_30_00_01\nProfiles:\na: A
            device Cans Paired Connected, device Mouse Class=0x2580 Paired
            device Keys Class=0x2540 / Pin=1 PairTime=60000, devices 3, open, measure pairdesk
            menu Cans, press Down, press Return, wait for audiotest, measure audiotest, close audiotest
            click options, measure options, close options
            click add, device Phone Class=0x5a020c, measure btscan
            select Keys, click pairconnect, wait for Pin, measure Pin, leave)");
        const QStringList expected = { "pairdesk 559x515 fixed", "audiotest 363x347 fixed",
                                       "options 320x217 fixed", "btscan 369x356 fixed", "Pin 400x208" };
        QCOMPARE(sizes, expected);
        QStringList translated;
        for (const char *type : { "headset", "mouse", "keyboard", "phone" })
            translated += translator.translate("DeviceType", type);
        types.sort();
        translated.sort();
        QCOMPARE(types, translated);
        QCOMPARE(found.join('\n'), QString());
    }
};

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
