// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tablekeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QTableWidget>

namespace {
class TableKeys : public QObject {
public:
    explicit TableKeys(QTableWidget *table)
        : QObject(table)
        , m_table(table)
    {
        table->installEventFilter(this);
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        const QModelIndex current = m_table->currentIndex();
        switch (event->type()) {
        case QEvent::FocusIn:
            m_table->setTabKeyNavigation(true);
            return false;
        case QEvent::KeyPress:
            return handleKey(static_cast<QKeyEvent *>(event), current);
        case QEvent::ContextMenu:
            if (!current.isValid() || m_table->contextMenuPolicy() != Qt::CustomContextMenu
                || static_cast<QContextMenuEvent *>(event)->reason() != QContextMenuEvent::Keyboard)
                return false;
            emit m_table->customContextMenuRequested(m_table->visualRect(current).center());
            return true;
        default:
            return false;
        }
    }

private:
    bool handleKey(const QKeyEvent *event, const QModelIndex &current)
    {
        const bool forward = event->key() == Qt::Key_Tab;
        const QModelIndex end = forward ? m_table->model()->index(m_table->rowCount() - 1,
                                                                  m_table->columnCount() - 1)
                                        : m_table->model()->index(0, 0);
        switch (event->key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            if (!m_table->tabKeyNavigation()
                || (current != end && !event->modifiers().testFlag(Qt::ControlModifier)))
                return false;
            leave(event->key());
            return true;
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (current.isValid() && !event->isAutoRepeat()) {
                m_table->selectRow(current.row());
                emit m_table->clicked(current);
            }
            return current.isValid();
        default:
            return false;
        }
    }

    /** Moves the focus as Tab does outside of tables, which would go round and round in this one. */
    void leave(int key)
    {
        m_table->setTabKeyNavigation(false);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(m_table, &press);
    }

    QTableWidget *m_table;
};
}

void addTableKeys(QTableWidget *table) { new TableKeys(table); }
