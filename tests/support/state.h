// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QStringList>

class QWidget;

/** What can be seen of the program at one moment. */
struct State {
    /** The windows that are open, boxes and menus with their texts. */
    QStringList windows;
    /** By "GROUP: DEFAULT": the word that describes it. Empty ones are not told. */
    QMap<QString, QString> values;

    static State current();
    /**
     * The difference in words: windows that opened and closed, then of each group what has another word. Of
     * widgets these are NAME (enabled), -NAME (disabled), !NAME (hidden), and with =VALUE what they show.
     */
    QStringList changesSince(const State &before) const;
};

/** How a window is called: a box by its kind, title and text, a menu by its actions, a PIN by its digits. */
QString describeWindow(const QWidget *window);
