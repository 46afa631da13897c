// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QObject;
class QWidget;

/** What does not fit into the window, lies on something else or is not translated. */
QStringList misfits(const QWidget *window);
/** How many connections begin at the object's signals. */
int connections(const QObject *object);
