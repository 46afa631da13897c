// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/hand.h"

#include <QAbstractEventDispatcher>
#include <QtTest>
#include <QtWidgets>

/** The cell with this text in the front window's table, null when nobody could click it. */
static QTableWidgetItem *cell(const QString &text)
{
    auto *table = Hand::front()->findChild<QTableWidget *>();
    const auto found = table ? table->findItems(text, Qt::MatchExactly) : QList<QTableWidgetItem *>();
    if (found.isEmpty() || !table->isEnabled())
        return nullptr;
    table->scrollToItem(found.first());
    return found.first();
}

static bool choose(const QString &row)
{
    const QTableWidgetItem *item = cell(row);
    if (item)
        QTest::mouseClick(item->tableWidget()->viewport(), Qt::LeftButton, {},
                          item->tableWidget()->visualItemRect(item).center());
    return item != nullptr;
}

/** Windows without a name of their own, as boxes and menus, are called by their class. */
static bool isCalled(const QWidget *window, const QString &name)
{
    return window->isVisible() && (window->objectName() == name || window->inherits(qPrintable(name)));
}

Hand::Hand()
{
    verb("row", &choose);
    verb("press", [](const QString &object) {
        if (object.contains('@') && !choose(object.section('@', 1)))
            return false;
        auto *button = front()->findChild<QAbstractButton *>(object.section('@', 0, 0));
        if (!button || !button->isEnabled() || !button->isVisible())
            return false;
        QTest::mouseClick(button, Qt::LeftButton, {},
                          { 10, button->height() / 2 }); // where a check box hears it
        return true;
    });
    verb("menu", [](const QString &object) {
        const QTableWidgetItem *item = cell(object.section('@', 0, 0));
        if (!item)
            return false;
        QWidget *viewport = item->tableWidget()->viewport();
        const QPoint place = item->tableWidget()->visualItemRect(item).center();
        item->tableWidget()->setCurrentCell(item->row(), object.section('@', 1).toInt());
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
        QApplication::sendEvent(viewport, &event);
        return true;
    });
    verb("key", [](const QString &key) {
        QWidget *heard = QApplication::activePopupWidget() ? front() : QApplication::focusWidget();
        if (heard)
            QTest::keySequence(heard, QKeySequence(key));
        else
            front()->activateWindow(); // as a window manager does
        return heard != nullptr;
    });
    verb("choose", [](const QString &index) {
        auto *box = front()->findChild<QComboBox *>();
        return box && (box->setCurrentIndex(index.toInt()), true);
    });
    verb("see", [](const QString &name) {
        const QWidgetList all = QApplication::topLevelWidgets();
        return std::any_of(all.begin(), all.end(), [&](QWidget *window) { return isCalled(window, name); });
    });
    verb("close", [](const QString &name) { return isCalled(front(), name) && (front()->close(), true); });
    verb("leave", [this](const QString &) {
        return QThread::currentThread()->loopLevel() == m_level || (front()->close(), false);
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

void Hand::does(const QStringList &deeds)
{
    m_deeds = deeds;
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
    if (!m_atRest)
        return;
    const bool isInside = QThread::currentThread()->loopLevel() > m_level;
    const QString deed = m_deeds.value(m_next);
    QString why = "not possible in " + front()->objectName() + front()->metaObject()->className() + ": "
                  + (deed.isEmpty() ? "to leave" : deed);
    if (m_failed && isInside) {
        front()->close();
    } else if (m_failed || (m_hadEffect && deed.isEmpty() && !isInside)) {
        m_loop.quit();
    } else if (!m_hadEffect && hasEffect(m_deeds[m_next - 1], &why)) {
        m_hadEffect = true;
    } else if (m_hadEffect && !deed.isEmpty()) {
        // A verb may run an event loop in which the next ones are done.
        const QElapsedTimer since = std::exchange(m_since, {});
        const auto verb = m_verbs.value(deed.section(' ', 0, 0));
        m_since.start();
        m_hadEffect = false;
        ++m_next;
        if (verb && verb(deed.section(' ', 1)))
            return;
        --m_next;
        m_hadEffect = true;
        m_since = since;
    }
    if (m_since.hasExpired(20000) && !m_failed) {
        QTest::qFail(qPrintable(why), __FILE__, __LINE__);
        m_failed = true;
    }
}
