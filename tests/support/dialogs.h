// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableWidget>

#include <functional>

/**
 * Runs the step as soon as a modal window, other than one open already, is shown; schedule it before the call
 * that opens the window.
 */
void whenModal(const std::function<void(QWidget *)> &step);

/** Closes the message box that will open and puts its title and text into *seen. */
void closeBox(QStringList *seen);

/** The texts of the table's rows, each joined by "|"; an emptied row gives an empty text. */
QStringList rows(const QTableWidget *table);

/** Clicks into the row that shows this name in its first column. False when there is none. */
bool clickRow(QTableWidget *table, const QString &name);

/** Presses the child button of this object name, as a mouse would. */
void press(QWidget *window, const char *button);
