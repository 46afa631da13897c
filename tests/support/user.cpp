// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/user.h"

#include <QAbstractEventDispatcher>
#include <QtTest>
#include <QtWidgets>

/** The cell with this text in the front window's table, null when nobody could click it. */
static QTableWidgetItem *cell(const QString &text)
{
    auto *table = User::front()->findChild<QTableWidget *>();
    const auto found = table ? table->findItems(text, Qt::MatchExactly) : QList<QTableWidgetItem *>();
    if (found.isEmpty() || !table->isEnabled())
        return nullptr;
    table->scrollToItem(found.first());
    return found.first();
}

static bool click(const QString &object)
{
    if (object.contains('@') && !User::select(object.section('@', 1)))
        return false;
    auto *button = User::front()->findChild<QAbstractButton *>(object.section('@', 0, 0));
    if (!button || !button->isEnabled() || !button->isVisible())
        return false;
    QTest::mouseClick(button, Qt::LeftButton, {}, { 10, button->height() / 2 }); // on a check box's box
    return true;
}

static bool openMenu(const QString &object)
{
    const QTableWidgetItem *item = cell(object.section('@', 0, 0));
    if (!item)
        return false;
    QWidget *viewport = item->tableWidget()->viewport();
    const QPoint place = item->tableWidget()->visualItemRect(item).center();
    item->tableWidget()->setCurrentCell(item->row(), object.section('@', 1).toInt());
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
    QApplication::sendEvent(viewport, &event);
    return true;
}

static bool press(const QString &key)
{
    QWidget *receiver = QApplication::activePopupWidget() ? User::front() : QApplication::focusWidget();
    if (receiver)
        QTest::keySequence(receiver, QKeySequence(key));
    else
        User::front()->activateWindow(); // as a window manager does
    return receiver != nullptr;
}

/** Boxes have no names, menus neither. */
static bool isCalled(const QWidget *window, const QString &name)
{
    const bool hasType = window->inherits(name == "box" ? "QMessageBox" : qPrintable(name));
    return window->isVisible() && (window->objectName() == name || hasType);
}

User::User()
{
    verb("select", &select);
    verb("click", &click);
    verb("menu", &openMenu);
    verb("press", &press);
    verb("close", &close);
    verb("choose", [](const QString &index) {
        auto *box = front()->findChild<QComboBox *>();
        return box && (box->setCurrentIndex(index.toInt()), true);
    });
    verb("wait", [](const QString &object) {
        const QWidgetList all = QApplication::topLevelWidgets();
        return std::any_of(all.begin(), all.end(),
                           [&](QWidget *window) { return isCalled(window, object.section(' ', 1)); });
    });
    verb("leave", [this](const QString &) {
        return QThread::currentThread()->loopLevel() == m_level || (front()->close(), false);
    });
    // A slot may process events in between: nobody is that fast.
    auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { m_idle = true; });
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { m_idle = false; });
}

QWidget *User::front()
{
    QWidget *top = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                     : QApplication::activeModalWidget();
    for (QWidget *window : QApplication::topLevelWidgets())
        top = !top && window->isVisible() && !window->parent() ? window : top;
    static QWidget *none = new QWidget;
    return top ? top : none;
}

bool User::select(const QString &row)
{
    const QTableWidgetItem *item = cell(row);
    if (item)
        QTest::mouseClick(item->tableWidget()->viewport(), Qt::LeftButton, {},
                          item->tableWidget()->visualItemRect(item).center());
    return item != nullptr;
}

bool User::close(const QString &window) { return isCalled(front(), window) && front()->close(); }

void User::perform(const QStringList &steps)
{
    m_steps = steps;
    m_next = 0;
    m_failed = false;
    m_isOver = true;
    m_why = "a window stays open";
    m_level = QThread::currentThread()->loopLevel() + 1;
    m_since.start();
    QTimer::singleShot(0, this, &User::tryNext);
    m_loop.exec();
}

/** Each attempt has a timer of its own, so that one can be made inside of the step before. */
void User::tryNext()
{
    if (!m_loop.isRunning())
        return;
    QTimer::singleShot(3, this, &User::tryNext);
    if (!m_idle)
        return;
    const bool isInside = QThread::currentThread()->loopLevel() > m_level;
    const QString step = m_steps.value(m_next);
    if (m_failed && isInside) {
        front()->close();
    } else if (m_failed || (m_isOver && step.isEmpty() && !isInside)) {
        m_loop.quit();
    } else if (!m_isOver && isOver(m_steps[m_next - 1], &m_why)) {
        m_isOver = true;
    } else if (m_isOver && !step.isEmpty()) {
        // A step may run an event loop in which the next ones are performed.
        const QElapsedTimer since = std::exchange(m_since, {});
        const auto verb = m_verbs.value(step.section(' ', 0, 0));
        m_since.start();
        m_isOver = false;
        m_why = "not possible in " + front()->objectName() + front()->metaObject()->className() + ": " + step;
        ++m_next;
        if (verb && verb(step.section(' ', 1)))
            return;
        --m_next;
        m_isOver = true;
        m_since = since;
    }
    if (m_since.hasExpired(20000) && !m_failed) {
        QTest::qFail(qPrintable(m_why), __FILE__, __LINE__);
        m_failed = true;
    }
}
