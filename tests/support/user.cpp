// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/user.h"

#include <QAbstractEventDispatcher>
#include <QtTest>
#include <QtWidgets>

#include <unistd.h>

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

static bool mouse(QTest::MouseAction action, const QString &row)
{
    const QTableWidgetItem *item = cell(row);
    if (item)
        QTest::mouseEvent(action, item->tableWidget()->viewport(), Qt::LeftButton, {},
                          item->tableWidget()->visualItemRect(item).center());
    return item != nullptr;
}

static bool click(const QString &object)
{
    if (object.contains('@') && !mouse(QTest::MouseClick, object.section('@', 1)))
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

User::User(const QList<Step> &steps)
    : m_steps(steps)
{
    verb("select", [](const QString &row) { return mouse(QTest::MouseClick, row); });
    verb("hold", [](const QString &row) { return mouse(QTest::MousePress, row); });
    verb("release", [](const QString &row) { return mouse(QTest::MouseRelease, row); });
    verb("doubleclick", [](const QString &row) { return mouse(QTest::MouseDClick, row); });
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
    // A slot may process events in between: nobody is that fast.
    auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { m_isIdle = true; });
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { m_isIdle = false; });
    m_waiting.start();
    QTimer::singleShot(0, this, &User::tryNext);
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

bool User::close(const QString &window) { return isCalled(front(), window) && front()->close(); }

void User::fail(const QString &why) const
{
    const Step &step = m_steps[m_isBusy ? m_next - 1 : m_next];
    fprintf(stderr, "%s: %s\n%s\n", qPrintable(step.place), qPrintable(step.text), qPrintable(why));
    _exit(98);
}

/** Each attempt has a timer of its own, so that one can be made inside of the step before. */
void User::tryNext()
{
    QTimer::singleShot(3, this, &User::tryNext);
    if (!m_isIdle)
        return;
    if (m_isBusy && isSettled()) {
        m_isBusy = false;
        m_waiting.start();
    } else if (!m_isBusy && m_next < m_steps.size()) {
        // A step may run an event loop in which the next ones are performed.
        const QString text = m_steps[m_next].text;
        const auto verb = m_verbs.value(text.section(' ', 0, 0));
        m_why = "not possible in " + front()->objectName() + front()->metaObject()->className();
        m_isBusy = true;
        ++m_next;
        if (verb && verb(text.section(' ', 1)))
            return;
        --m_next;
        m_isBusy = false;
    }
    if (m_waiting.hasExpired(20000) && m_next < m_steps.size())
        fail(m_isBusy ? "does not come to an end" : m_why);
}
