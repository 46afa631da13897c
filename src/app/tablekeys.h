// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QTableWidget;

/**
 * Lets the keyboard do on the table's current row what the mouse does: Space and Return choose and click it,
 * the menu key asks for the context menu at the row, if the table has one of its own. Tab leaves the table
 * behind its last cell, Ctrl+Tab at once.
 */
void addTableKeys(QTableWidget *table);
