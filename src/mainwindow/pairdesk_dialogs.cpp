// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the dialogs: two from their buttons, the audio test from the table's context menu.
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "bluetooth/btagent.h"
#include "dialogs/audiotest.h"
#include "dialogs/btscan.h"
#include "dialogs/options.h"
#include "mainwindow/pairdesk.h"
#include "ui_pairdesk.h"

#include <BluezQt/Device>
#include <BluezQt/Manager>
#include <QDebug>
#include <QMenu>
#include <QPersistentModelIndex>

void pairdesk::on_add_clicked()
{
    debugLog(3, "pairdesk::on_add_clicked in");
    btscan dialog(m_agent, &m_settings, this);
    dialog.exec();
    populateTable();
    debugLog(3, "pairdesk::on_add_clicked out");
}

void pairdesk::on_options_clicked()
{
    debugLog(3, "pairdesk::on_options_clicked in");
    options dialog(&m_settings, this);
    if (dialog.exec() == QDialog::Accepted) {
        debugLog(3, "pairdesk::on_options_clicked options accepted");
        m_settings.save();
        runShellIgnoringResult("pdtray &");
    }
    debugLog(3, "pairdesk::on_options_clicked out");
}

QTableWidgetItem *pairdesk::contextMenuItem() const
{
    QTableWidgetItem *current = ui->devices->currentItem();
    if (!current || current->column() == 0)
        return current;
    // Intentionally the row number as a pixel at the top edge, which finds the topmost visible row.
    return ui->devices->itemAt(current->row(), 0);
}

static bool isConnectedAudioDevice(const BluezQt::DevicePtr &device)
{
    switch (device->type()) {
    case BluezQt::Device::Headset:
    case BluezQt::Device::Headphones:
    case BluezQt::Device::AudioVideo:
        return device->isConnected();
    default:
        return false;
    }
}

void pairdesk::on_devices_customContextMenuRequested(QPoint pos)
{
    if (ui->devices->rowCount() == 0)
        return;
    const QTableWidgetItem *item = contextMenuItem();
    if (!item)
        return;
    const QPersistentModelIndex chosen = ui->devices->model()->index(item->row(), item->column());
    const QString address = item->data(Qt::UserRole).toString();
    qDebug() << address;
    const BluezQt::DevicePtr device = m_manager->deviceForAddress(address);
    if (device && isConnectedAudioDevice(device)) {
        QMenu menu(this);
        const QAction *test = menu.addAction(tr("Audio test"));
        if (menu.exec(ui->devices->viewport()->mapToGlobal(pos)) == test) {
            qDebug() << "audio test dialog box";
            audiotest dialog(m_manager, address, this);
            dialog.exec();
            return;
        }
    }
    // A refill while the menu was open has deleted the item and disabled the buttons.
    if (chosen.isValid())
        updateElements(ui->devices->item(chosen.row(), chosen.column()));
}
