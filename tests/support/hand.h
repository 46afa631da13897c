// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMap>
#include <QTableWidget>

#include <functional>

/**
 * A user: does one deed after the other, also where the program runs an event loop of its own, each as soon
 * as the program is at rest and its front window lets him. What stays impossible fails the test. A deed is a
 * verb and its object: press (NAME@ROW: with a click on the row in the same breath), row, menu (of a row,
 * NAME@COLUMN from another column), key, choose, close, see, leave.
 */
class Hand : public QObject {
public:
    Hand();

    /** Returns with every window left that was opened on the way. */
    void does(const QStringList &deeds);
    /** What the lines say, separated by commas. */
    void does(const QString &deeds) { does(deeds.split(QRegularExpression("[,\n] *"), Qt::SkipEmptyParts)); }
    /** Adds a verb: it is tried until it returns true, or done once when it returns nothing. */
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

protected:
    /** Whether the deed has had its effect; *why tells where not yet. */
    virtual bool hasEffect(const QString & /*deed*/, QString * /*why*/) { return true; }

private:
    void look();
    QMap<QString, std::function<bool(const QString &object)>> m_verbs;
    QStringList m_deeds;
    int m_next = 0;
    int m_level = 0; // of the user's own event loop
    bool m_atRest = false;
    bool m_failed = false;
    bool m_hadEffect = true; // the last deed
    QElapsedTimer m_since; // the last deed
    QEventLoop m_loop;
};
