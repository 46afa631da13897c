// SPDX-License-Identifier: GPL-3.0-or-later
// The Bluetooth switch: it starts and stops the service and shows what the manager reports then.
#include "app/debuglog.h"
#include "app/text.h"
#include "mainwindow/accessibleswitch.h"
#include "mainwindow/pairdesk.h"
#include "ui_pairdesk.h"
#include "widgets/feedback.h"

#include <BluezQt/Adapter>
#include <BluezQt/Manager>
#include <QDebug>
#include <QTimer>

bool pairdesk::getBluetoothStatus()
{
    debugLog(3, "pairdesk::getBluetoothStatus in");
    executeCommand(QStringLiteral("systemctl status bluetooth"));
    m_bOn = (m_exitCode == 0);
    debugLog(3, "pairdesk::getBluetoothStatus out");
    return true;
}

bool pairdesk::setBluetoothStatus(bool on)
{
    debugLog(3, "pairdesk::setBluetoothStatus in");
    executeCommand(on ? QStringLiteral("systemctl start bluetooth")
                      : QStringLiteral("systemctl stop bluetooth"));
    executeCommand(QStringLiteral("systemctl status bluetooth"));
    debugLog(3, "pairdesk::setBluetoothStatus out");
    return true;
}

void pairdesk::on_onoff_clicked()
{
    debugLog(3, "pairdesk::on_onoff_clicked in");
    qDebug() << "on_pushButton_clicked";
    // The cursor and the old picture stay until the manager reports the change.
    showWaitCursor();
    setBluetoothStatus(!m_bOn);
    updateUi();
    debugLog(3, "pairdesk::on_onoff_clicked out");
}

void pairdesk::updateUi()
{
    debugLog(3, "pairdesk::updateUi in m_bOn:%d", m_bOn);
    ui->pushme->setPixmap(m_bOn ? QPixmap(QStringLiteral(":/images/on32b.png"))
                                : QPixmap(QStringLiteral(":/images/off32b.png")));
    setAccessibleState(ui->pushme, m_bOn);
    ui->devices->setEnabled(m_bOn);
    ui->add->setEnabled(m_bOn && !m_manager->adapters().isEmpty());
    debugLog(3, "pairdesk::updateUi out");
}

void pairdesk::onOperationalChanged(bool operational)
{
    qDebug() << "onOperationalChanged" << (operational ? "true" : "false");
    debugLog(3, "pairdesk::onOperationalChanged operational: %d", operational);
    m_bOn = operational;
    updateUi();
    restoreCursor();
    debugLog(3, "pairdesk::onOperationalChanged out");
}

void pairdesk::onBlockedChanged(bool blocked)
{
    qDebug() << "onBlockedChanged" << (blocked ? "true" : "false");
    debugLog(3, "pairdesk::onBlockedChanged blocked: %d", blocked);
    m_bOn = !blocked;
    populateTable();
    updateUi();
    restoreCursor();
    debugLog(3, "pairdesk::onBlockedChanged out");
}

void pairdesk::onAdapterAdded(BluezQt::AdapterPtr adapter)
{
    debugLog(3, "pairdesk::onAdapterAdded in");
    if (adapter)
        debugLog(3, "pairdesk::onAdapterAdded adapter: %s", logPrintable(adapter->name()));
    ui->add->setEnabled(!m_manager->adapters().isEmpty());
    QTimer::singleShot(1000, this, SLOT(onPopupateTable()));
    debugLog(3, "pairdesk::onAdapterAdded out");
}

void pairdesk::onAdapterRemoved(BluezQt::AdapterPtr adapter)
{
    qDebug() << "onAdapterRemoved" << adapter->name();
    debugLog(3, "pairdesk::onAdapterRemoved in");
    debugLog(3, "pairdesk::onAdapterRemoved adapter: %s", logPrintable(adapter->name()));
    ui->add->setEnabled(!m_manager->adapters().isEmpty());
    QTimer::singleShot(1000, this, SLOT(onPopupateTable()));
    debugLog(3, "pairdesk::onAdapterRemoved out");
}
