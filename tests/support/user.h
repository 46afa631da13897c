// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QMap>
#include <QObject>

#include <functional>

class QTableWidgetItem;
class QWidget;

/** One thing that somebody does, in words, and where they stand. */
struct Step {
    QString text;
    QString place; // "FILE:LINE"
};

/**
 * A simulated user: performs one step after the other, each as soon as the program is idle and the window in
 * front allows it, also where the program runs an event loop of its own. A step that stays impossible ends
 * the process. Steps: click BUTTON (BUTTON@ROW: selects the row first, without returning to the event loop);
 * select, hold, release, doubleclick ROW; menu ROW (ROW@COLUMN: with the current cell in that column); press
 * KEY; choose INDEX; close WINDOW; wait for WINDOW. ROW is the text of a cell, WINDOW a name or "box".
 */
class User : public QObject {
public:
    explicit User(const QList<Step> &steps);

    /** Adds a kind of step, tried until the function returns true, or done once when it returns nothing. */
    template <typename F> void verb(const QString &name, const F &function)
    {
        m_verbs[name] = [function](const QString &object) {
            const auto call = [&] {
                if constexpr (std::is_invocable_v<F>)
                    return function();
                else
                    return function(object);
            };
            if constexpr (std::is_same_v<decltype(call()), bool>)
                return call();
            else
                return call(), true;
        };
    }
    /** The menu or dialog that is open on top, else the first window; an empty one when there is none. */
    static QWidget *front();
    static bool close(const QString &window);
    [[noreturn]] void fail(const QString &why) const;

protected:
    /** Whether all that the last step has caused is over. */
    virtual bool isSettled() { return true; }

    QString m_why; // the step is not possible yet

private:
    void tryNext();

    QMap<QString, std::function<bool(const QString &object)>> m_verbs;
    const QList<Step> m_steps;
    int m_next = 0;
    bool m_isIdle = false;
    bool m_isBusy = false; // with what the last step has caused
    QElapsedTimer m_waiting; // for the next step to become possible
};
