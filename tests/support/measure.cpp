// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/measure.h"

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

static QStringList translatedTypes()
{
    QStringList types;
    for (const char *type : { "headset", "mouse", "keyboard", "phone" })
        types += QCoreApplication::translate("DeviceType", type);
    return types;
}

QStringList misfits(const QWidget *window)
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
    for (const auto *table : window->findChildren<QTableWidget *>()) {
        for (int row = 0; row < table->rowCount(); ++row) {
            const QString type = table->item(row, 1)->text();
            if (!translatedTypes().contains(type))
                found += type + " is not translated";
        }
    }
    return found;
}

int connections(const QObject *object)
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
