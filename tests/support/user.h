// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMap>
#include <QTableWidget>

#include <functional>

/**
 * A simulated user: performs one step after the other, each as soon as the program is idle and the window in
 * front allows it, also where the program runs an event loop of its own. A step that stays impossible fails
 * the test. Steps: click BUTTON (BUTTON@ROW: selects the row first, without returning to the event loop),
 * select ROW, menu ROW (ROW@COLUMN: with the current cell in that column), press KEY, choose INDEX,
 * close WINDOW, wait for WINDOW, leave (closes everything). ROW is the text of a cell, WINDOW a name or
 * "box".
 */
class User : public QObject {
public:
    User();

    /** Returns when every window that was opened on the way is closed. */
    void perform(const QStringList &steps);
    /** Steps separated by commas. */
    void perform(const QString &steps)
    {
        perform(steps.split(QRegularExpression("[,\n] *"), Qt::SkipEmptyParts));
    }
    /** Adds a kind of step, tried until the function returns true, or done once when it returns nothing. */
    template <typename F> void verb(const QString &name, const F &function)
    {
        m_verbs[name] = [function](const QString &object) {
            if constexpr (std::is_same_v<decltype(function(object)), bool>)
                return function(object);
            else
                return function(object), true;
        };
    }
    /** The menu or dialog that is open on top, else the first window; an empty one when there is none. */
    static QWidget *front();
    static bool select(const QString &row);
    static bool close(const QString &window);

protected:
    /** Whether the step is over; *why tells where not yet. */
    virtual bool isOver(const QString & /*step*/, QString * /*why*/) { return true; }

private:
    void tryNext();
    QMap<QString, std::function<bool(const QString &object)>> m_verbs;
    QStringList m_steps;
    QString m_why; // the step is not possible or not over yet
    int m_next = 0;
    int m_level = 0; // of the user's own event loop
    bool m_idle = false;
    bool m_failed = false;
    bool m_isOver = true; // the last step
    QElapsedTimer m_since; // the last step
    QEventLoop m_loop;
};
