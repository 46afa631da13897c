// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the dialogs: two by their buttons, the audio test by the table's context menu.
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
        runShellBlindly("pdtray &");
    }
    debugLog(3, "pairdesk::on_options_clicked out");
}

QTableWidgetItem *pairdesk::contextMenuItem() const
{
    QTableWidgetItem *current = ui->devices->currentItem();
    if (!current || current->column() == 0)
        return current;
    // Deliberately the row number taken as a pixel: at the table's top edge, that is the topmost visible row.
    return ui->devices->itemAt(current->row(), 0);
}

QTableWidgetItem *pairdesk::itemForAddress(const QString &address) const
{
    for (int row = 0; row < ui->devices->rowCount(); ++row) {
        QTableWidgetItem *item = ui->devices->item(row, 0);
        if (item && item->data(Qt::UserRole).toString() == address)
            return item;
    }
    return nullptr;
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
    const QTableWidgetItem *chosen = contextMenuItem();
    if (!chosen)
        return;
    const QString address = chosen->data(Qt::UserRole).toString();
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
    // The table may have been refilled and the device may be gone since the menu was opened.
    if (QTableWidgetItem *item = itemForAddress(address))
        updateElements(item);
}
