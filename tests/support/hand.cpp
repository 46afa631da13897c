// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/hand.h"

#include <QAbstractEventDispatcher>
#include <QtTest>
#include <QtWidgets>

QStringList rows(const QTableWidget *table)
{
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount() && table->item(row, column); ++column)
            cells.append(table->item(row, column)->text());
        texts.append(cells.join('|'));
    }
    return texts;
}

/** Windows without a name of their own, as boxes and menus, are called by their class. */
static bool isCalled(const QWidget *window, const QString &name)
{
    return window->isVisible() && (window->objectName() == name || window->inherits(qPrintable(name)));
}

Hand::Hand()
{
    m_verbs["press"] = [](QWidget *window, const QString &name) {
        auto *button = window->findChild<QAbstractButton *>(name);
        const bool can = button && button->isEnabled() && button->isVisible();
        // A check box is not sensitive everywhere.
        const QPoint place(10, can ? button->height() / 2 : 0);
        return can ? [=] { QTest::mouseClick(button, Qt::LeftButton, {}, place); } : Act();
    };
    for (const QString verb : { "row", "menu" }) {
        m_verbs[verb] = [verb](QWidget *window, const QString &object) {
            auto *table = window->findChild<QTableWidget *>();
            const QString name = object.section('@', 0, 0);
            const auto found = table ? table->findItems(name, Qt::MatchExactly) : QList<QTableWidgetItem *>();
            if (found.isEmpty() || !table->isEnabled())
                return Act();
            table->scrollToItem(found.first());
            const QPoint place = table->visualItemRect(found.first()).center();
            if (verb == "row")
                return Act([=] { QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place); });
            return Act([=] {
                table->setCurrentCell(found.first()->row(), object.section('@', 1).toInt());
                QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                        table->viewport()->mapToGlobal(place));
                QApplication::sendEvent(table->viewport(), &event);
            });
        };
    }
    verb("key", [](const QString &key) { QTest::keySequence(front(), QKeySequence(key)); });
    verb("choose",
         [](const QString &index) { front()->findChild<QComboBox *>()->setCurrentIndex(index.toInt()); });
    verb("see", [](const QString &name) {
        const QWidgetList all = QApplication::topLevelWidgets();
        return std::any_of(all.begin(), all.end(),
                           [name](QWidget *window) { return isCalled(window, name); });
    });
    m_verbs["close"] = [](QWidget *window, const QString &name) {
        return isCalled(window, name) ? [=] { window->close(); } : Act();
    };
    verb("leave", [this](const QString &) {
        const bool isDone = QThread::currentThread()->loopLevel() == m_level;
        return isDone || (front()->close(), false);
    });
    // A slot may process events in between: nobody is that fast.
    auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { m_atRest = true; });
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { m_atRest = false; });
}

QWidget *Hand::front()
{
    QWidget *top = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                     : QApplication::activeModalWidget();
    for (QWidget *window : QApplication::topLevelWidgets())
        top = !top && window->isVisible() && !window->parent() ? window : top;
    static QWidget *none = new QWidget;
    return top ? top : none;
}

void Hand::does(const QString &deeds)
{
    m_deeds = deeds.split(QRegularExpression(",?\n *|, *"), Qt::SkipEmptyParts);
    m_next = 0;
    m_failed = false;
    m_hadEffect = true;
    m_level = QThread::currentThread()->loopLevel() + 1;
    m_since.start();
    QTimer::singleShot(0, this, &Hand::look);
    m_loop.exec();
}

/** Each look has a timer of its own, so that boxes upon boxes are seen. */
void Hand::look()
{
    if (!m_loop.isRunning())
        return;
    QTimer::singleShot(3, this, &Hand::look);
    const bool isInside = QThread::currentThread()->loopLevel() > m_level;
    const QString deed = m_deeds.value(m_next);
    QString why = "not possible in " + front()->objectName() + front()->metaObject()->className() + ": "
                  + (deed.isEmpty() ? "to leave" : deed);
    if (!m_atRest)
        return;
    if (m_failed && isInside) {
        front()->close();
    } else if (m_failed) {
        m_loop.quit();
    } else if (m_hadEffect || hasEffect(m_deeds[m_next - 1], &why)) {
        m_hadEffect = true;
        const auto verb = m_verbs.value(deed.section(' ', 0, 0));
        if (deed.isEmpty() && !isInside)
            m_loop.quit();
        if (const Act act = verb ? verb(front(), deed.section(' ', 1)) : Act()) {
            ++m_next;
            m_since.start();
            m_hadEffect = false;
            act();
            return;
        }
    }
    if (m_since.hasExpired(20000) && !m_failed) {
        QTest::qFail(qPrintable(why), __FILE__, __LINE__);
        m_failed = true;
    }
}
