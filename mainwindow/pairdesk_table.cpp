// SPDX-License-Identifier: GPL-3.0-or-later
// The table of paired and connected devices, and the buttons that follow its chosen row.
#include "app/debuglog.h"
#include "app/feedback.h"
#include "bluetooth/btagent.h"
#include "bluetooth/eventloops.h"
#include "mainwindow/pairdesk.h"
#include "ui_pairdesk.h"

#include <BluezQt/Device>
#include <QDebug>

bool pairdesk::Row::operator==(const Row &other) const
{
    return name == other.name && address == other.address && type == other.type
           && connected == other.connected;
}

QVector<pairdesk::Row> pairdesk::listedDevices() const
{
    QVector<Row> listed;
    const QList<BluezQt::DevicePtr> devices = m_manager->devices();
    for (const BluezQt::DevicePtr &device : devices) {
        if (!device)
            continue;
        const Row row = { device->name(), device->address(), device->type(), device->isConnected() };
        debugLog(3, "pairdesk::populateTable dev: %s, type: %s", qUtf8Printable(row.name),
                 qUtf8Printable(BluezQt::Device::typeToString(row.type)));
        if (row.type == BluezQt::Device::Uncategorized)
            continue;
        if (!device->isPaired() && !row.connected)
            continue;
        debugLog(3, "pairdesk::populateTable address is %s", qUtf8Printable(row.address));
        listed.append(row);
    }
    return listed;
}

void pairdesk::writeRows()
{
    QTableWidget *table = ui->devices;
    // The rows stay on purpose: when fewer devices qualify than before, the last ones are left empty.
    table->clearContents();
    if (table->rowCount() < m_rows.size())
        table->setRowCount(m_rows.size());
    for (int i = 0; i < m_rows.size(); ++i) {
        const Row &row = m_rows[i];
        auto *name = new QTableWidgetItem(row.name);
        name->setData(Qt::UserRole, row.address);
        table->setItem(i, 0, name);
        table->setItem(i, 1, new QTableWidgetItem(BluezQt::Device::typeToString(row.type)));
        table->setItem(i, 2, new QTableWidgetItem(row.connected ? tr("Connected") : tr("Disconnected")));
    }
}

void pairdesk::populateTable()
{
    qDebug() << "populateTable";
    debugLog(3, "pairdesk::populateTable in");
    const QVector<Row> listed = listedDevices();
    if (listed == m_rows) {
        // Most calls come from a changed signal strength, which no row shows.
        ui->devices->selectionModel()->clear();
    } else {
        m_rows = listed;
        writeRows();
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
        debugLog(3, "pairdesk::updateElements dev is null. address is %s", qUtf8Printable(address));
    }
    ui->remove->setEnabled(true);
    debugLog(3, "pairdesk::updateElements out");
}

void pairdesk::on_devices_clicked(QModelIndex index)
{
    debugLog(3, "pairdesk::on_devices_clicked in row:%d, col:%d", index.row(), index.column());
    QTableWidgetItem *item = ui->devices->item(index.row(), 0);
    if (item)
        debugLog(3, "pairdesk::on_devices_clicked item %s", qUtf8Printable(item->text()));
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
    keepSender(sender());
    debugLog(3, "pairdesk::onDeviceRemoved dev: %s", qUtf8Printable(device->name()));
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
    debugLog(3, "pairdesk::onConnectedChanged dev: %s, connected: %d", qUtf8Printable(device->name()),
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
                 qUtf8Printable(device->name()), device->isPaired(), device->isConnected());
        if (device->isPaired())
            populateTable();
    }
    debugLog(3, "pairdesk::onDevicePropertyChanged out");
}
