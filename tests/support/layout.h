// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

/** What does not fit into the window, lies on something else or is not translated. */
QStringList misfits(const QWidget *window);
