// SPDX-License-Identifier: GPL-3.0-or-later
// The table of paired and connected devices, and the buttons for its selected row.
#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/btagent.h"
#include "bluetooth/devicetype.h"
#include "mainwindow/pairdesk.h"
#include "ui_pairdesk.h"
#include "widgets/devicetable.h"
#include "widgets/feedback.h"

#include <BluezQt/Device>
#include <BluezQt/Manager>
#include <QDebug>
#include <QSignalBlocker>

void pairdesk::populateTable()
{
    qDebug() << "populateTable";
    debugLog(3, "pairdesk::populateTable in");
    QTableWidget *table = ui->devices;
    // Intentionally keeps the rows: when fewer devices qualify than before, the last ones are empty.
    table->clearContents();
    int row = 0;
    const QList<BluezQt::DevicePtr> devices = m_manager->devices();
    for (const BluezQt::DevicePtr &device : devices) {
        if (!device)
            continue;
        const QString type = BluezQt::Device::typeToString(device->type());
        debugLog(3, "pairdesk::populateTable dev: %s, type: %s", logPrintable(device->name()),
                 logPrintable(type));
        if (device->type() == BluezQt::Device::Uncategorized)
            continue;
        if (!device->isPaired() && !device->isConnected())
            continue;

        if (table->rowCount() <= row)
            table->insertRow(row);
        auto *name = new QTableWidgetItem(device->name());
        debugLog(3, "pairdesk::populateTable address is %s", logPrintable(device->address()));
        name->setData(Qt::UserRole, device->address());
        // The view updates itself after the reset or the new row; signals for each cell only cost time.
        const QSignalBlocker blocker(table->model());
        table->setItem(row, 0, name);
        table->setItem(row, 1, new QTableWidgetItem(deviceTypeText(device->type())));
        table->setItem(row, 2,
                       new QTableWidgetItem(device->isConnected() ? tr("Connected") : tr("Disconnected")));
        ++row;
    }
    updateElements(nullptr);
    debugLog(3, "pairdesk::populateTable out");
}

void pairdesk::onPopupateTable() { populateTable(); }

void pairdesk::updateElements(QTableWidgetItem *item)
{
    debugLog(3, "pairdesk::updateElements in");
    if (!item) {
        ui->connect->setEnabled(false);
        ui->disconnect->setEnabled(false);
        ui->remove->setEnabled(false);
        debugLog(3, "pairdesk::updateElements out");
        return;
    }
    const QString address = item->data(Qt::UserRole).toString();
    if (const BluezQt::DevicePtr device = m_manager->deviceForAddress(address)) {
        ui->connect->setEnabled(!device->isConnected());
        ui->disconnect->setEnabled(device->isConnected());
    } else {
        debugLog(3, "pairdesk::updateElements dev is null. address is %s", logPrintable(address));
    }
    ui->remove->setEnabled(true);
    debugLog(3, "pairdesk::updateElements out");
}

void pairdesk::on_devices_clicked(QModelIndex index)
{
    debugLog(3, "pairdesk::on_devices_clicked in row:%d, col:%d", index.row(), index.column());
    QTableWidgetItem *item = ui->devices->item(index.row(), 0);
    if (item)
        debugLog(3, "pairdesk::on_devices_clicked item %s", logPrintable(item->text()));
    updateElements(item);
    debugLog(3, "pairdesk::on_devices_clicked out");
}

QString pairdesk::getDeviceAddress()
{
    debugLog(3, "pairdesk::getDeviceAddress in");
    const QList<QTableWidgetItem *> selected = ui->devices->selectedItems();
    if (selected.isEmpty())
        return {};
    QString address = selected.first()->data(Qt::UserRole).toString();
    debugLog(3, "pairdesk::getDeviceAddress out");
    return address;
}

void pairdesk::onDeviceRemoved(BluezQt::DevicePtr device)
{
    debugLog(3, "pairdesk::onDeviceRemoved in");
    debugLog(3, "pairdesk::onDeviceRemoved dev: %s", logPrintable(device->name()));
    qDebug() << "onDeviceRemoved address:" << device->address();
    populateTable();
    restoreCursorAfterRemoval(m_manager);
    updateElements(nullptr);
    debugLog(3, "pairdesk::onDeviceRemoved out");
}

void pairdesk::onConnectedChanged(bool connected)
{
    debugLog(3, "pairdesk::onConnectedChanged in");
    const BluezQt::DevicePtr device = m_agent->device;
    debugLog(3, "pairdesk::onConnectedChanged dev: %s, connected: %d", logPrintable(device->name()),
             connected);
    qDebug() << "onConnectedChanged address:" << device->address()
             << ",connected:" << (connected ? "true" : "false");
    populateTable();
    restoreCursor();
    debugLog(3, "pairdesk::onConnectedChanged out");
}

void pairdesk::onDevicePropertyChanged(BluezQt::DevicePtr device)
{
    debugLog(3, "pairdesk::onDevicePropertyChanged in");
    if (device) {
        debugLog(3, "pairdesk::onDevicePropertyChanged dev: %s, paired: %d, connected: %d",
                 logPrintable(device->name()), device->isPaired(), device->isConnected());
        if (device->isPaired())
            populateTable();
    }
    debugLog(3, "pairdesk::onDevicePropertyChanged out");
}
