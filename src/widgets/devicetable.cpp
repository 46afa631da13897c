// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/devicetable.h"

#include "widgets/feedback.h"

#include <BluezQt/Manager>
#include <QApplication>
#include <QHeaderView>
#include <QShortcut>
#include <QTableWidget>

static void clickCurrentRow(QTableWidget *table)
{
    const QModelIndex current = table->currentIndex();
    if (!current.isValid())
        return;
    table->selectRow(current.row());
    Q_EMIT table->clicked(current);
}

void setUpDeviceTable(QTableWidget *table, const QStringList &headers, const QList<int> &widths)
{
    table->setHorizontalHeaderLabels(headers);
    table->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < widths.size(); ++column)
        table->setColumnWidth(column, widths[column]);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);

    auto *space = new QShortcut(Qt::Key_Space, table);
    space->setContext(Qt::WidgetShortcut);
    space->setAutoRepeat(false);
    QObject::connect(space, &QShortcut::activated, table, [table] { clickCurrentRow(table); });
}

void restoreCursorAfterRemoval(const BluezQt::Manager *manager)
{
    if (manager->isOperational())
        restoreCursor();
    else
        QApplication::restoreOverrideCursor();
}
