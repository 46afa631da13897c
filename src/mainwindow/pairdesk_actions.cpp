// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons for the selected device, and the two that end the program.
#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/adapters.h"
#include "bluetooth/btagent.h"
#include "mainwindow/pairdesk.h"
#include "ui_pairdesk.h"
#include "widgets/feedback.h"

#include <BluezQt/Adapter>
#include <BluezQt/Manager>
#include <QDebug>

void pairdesk::on_connect_clicked()
{
    debugLog(3, "pairdesk::on_connect_clicked in");
    showWaitCursor();
    m_agent->connectDevice(getDeviceAddress());
    ui->connect->setEnabled(false);
    debugLog(3, "pairdesk::on_connect_clicked out");
}

void pairdesk::on_disconnect_clicked()
{
    debugLog(3, "pairdesk::on_disconnect_clicked in");
    showWaitCursor();
    m_agent->disconnectDevice(getDeviceAddress());
    ui->disconnect->setEnabled(false);
    debugLog(3, "pairdesk::on_disconnect_clicked out");
}

void pairdesk::onCallFinished(QString action, QString error)
{
    debugLog(3, "pairdesk::onCallFinished in");
    debugLog(3, "pairdesk::onCallFinished %s,%s", logPrintable(action), logPrintable(error));
    if (action == QLatin1String("connect")) {
        restoreCursor();
        if (!error.isEmpty())
            showCritical(this, tr("Bluetooth Connect"), error);
        ui->connect->setEnabled(true);
    }
    debugLog(3, "pairdesk::onCallFinished out");
}

void pairdesk::on_remove_clicked()
{
    debugLog(3, "pairdesk::on_remove_clicked in");
    const QString address = getDeviceAddress();
    // Restored when BlueZ reports the device removed; intentionally not on the early returns.
    showWaitCursor();
    const BluezQt::DevicePtr device = m_manager ? m_manager->deviceForAddress(address) : BluezQt::DevicePtr();
    if (!device) {
        debugLog(3, "pairdesk::on_remove_clicked out");
        return;
    }
    const BluezQt::AdapterPtr adapter = ensureUsableAdapter(m_manager);
    if (!adapter) {
        qDebug() << noAdaptersMessage;
        return;
    }
    // Intentionally connected again on every removal.
    connect(adapter.data(), &BluezQt::Adapter::deviceRemoved, this, &pairdesk::onDeviceRemoved);
    adapter->removeDevice(device);
    debugLog(3, "pairdesk::on_remove_clicked out");
}

void pairdesk::on_ok_clicked()
{
    debugLog(3, "pairdesk::on_ok_clicked in");
    m_settings.enabled = m_bOn;
    m_settings.save();
    m_bOk = true;
    close();
    debugLog(3, "pairdesk::on_ok_clicked out");
}

void pairdesk::on_close_clicked()
{
    debugLog(3, "pairdesk::on_close_clicked in");
    m_bOk = false;
    close();
    debugLog(3, "pairdesk::on_close_clicked out");
}
