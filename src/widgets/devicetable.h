// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

class QTableWidget;

namespace BluezQt {
class Manager;
}

/**
 * Sets up a table of devices: its headers, the widths of its columns but the last (pixels), and whole rows
 * that are selected one at a time. Space selects and clicks the current row, as the mouse does.
 */
void setUpDeviceTable(QTableWidget *table, const QStringList &headers, const QList<int> &widths);

/**
 * Pops one override cursor and processes events once, in a slot for a removed device. Without a daemon the
 * manager is just clearing its devices: no events are processed then, or it would discard a daemon that comes
 * back meanwhile.
 */
void restoreCursorAfterRemoval(const BluezQt::Manager *manager);
