// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

/** Pushes the wait cursor on the application's override-cursor stack and processes events once. */
void showWaitCursor();

/** Pops one override cursor (harmless on an empty stack) and processes events once. */
void restoreCursor();

/**
 * Shows a modal box with one OK button and returns when it is closed. The text is never interpreted as rich
 * text, since it may contain the name of a remote device.
 */
void showInformation(QWidget *parent, const QString &title, const QString &text);
void showCritical(QWidget *parent, const QString &title, const QString &text);
