// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

/** Pushes the wait cursor on the application's override-cursor stack and processes events once. */
void showWaitCursor();

/** Pops one override cursor (harmless on an empty stack) and processes events once. */
void restoreCursor();

/** Pops one override cursor and leaves events alone. */
void restoreCursorOnly();

/**
 * Modal boxes with one OK button; they return when the box is closed. The text is shown as it is, never as
 * rich text: it may hold what a remote device calls itself.
 */
void showInformation(QWidget *parent, const QString &title, const QString &text);
void showCritical(QWidget *parent, const QString &title, const QString &text);
