// SPDX-License-Identifier: GPL-3.0-or-later
// Connects the selected device. The outcome arrives through two signals, of the device and of the pending
// call; the one that finds m_device still set reports it.
#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/btagent.h"
#include "dialogs/btscan.h"
#include "ui_btscan.h"
#include "widgets/feedback.h"

#include <BluezQt/Device>
#include <BluezQt/PendingCall>
#include <QDebug>

void btscan::on_pairconnect_clicked()
{
    debugLog(3, "btscan::on_pairconnect_clicked in");
    ui->pairconnect->setEnabled(false);
    showWaitCursor();
    const QString address = getDeviceAddress();
    m_agent->stopScan();
    const BluezQt::DevicePtr device = m_agent->manager->deviceForAddress(address);
    if (!device) {
        debugLog(3, "btscan::on_pairconnect_clicked out");
        return;
    }
    BluezQt::PendingCall *pc = device->connectToDevice();
    // Intentionally disconnects all other receivers from this device.
    QObject::disconnect(device.data(), nullptr, nullptr, nullptr);
    connect(device.data(), &BluezQt::Device::connectedChanged, this, &btscan::onConnectedChanged);
    watchConnect(device, pc);
    debugLog(3, "btscan::on_pairconnect_clicked out");
}

void btscan::watchConnect(const BluezQt::DevicePtr &device, BluezQt::PendingCall *pc)
{
    m_device = device;
    m_busy = true;
    pc->setUserData(QStringLiteral("connect"));
    connect(pc, &BluezQt::PendingCall::finished, this, &btscan::onCallFinished);
}

void btscan::onCallFinished(BluezQt::PendingCall *pc)
{
    debugLog(3, "btscan::onCallFinished in");
    pc->setParent(nullptr); // it deletes itself later, even if its device is deleted first
    const int code = pc->error();
    const QString text = pc->errorText();
    if (code == BluezQt::PendingCall::UnknownError && text == QLatin1String("InProgress"))
        return;
    if (code != BluezQt::PendingCall::NoError) {
        handleFailure(code, text);
        return;
    }
    const QString tag = pc->userData().toString();
    debugLog(3, "btscan::onCallFinished PendingCall error: %d", code);
    restoreCursor(); // may deliver connectedChanged: m_device is checked afterwards
    if (tag == QLatin1String("connect") && m_device)
        handleConnectReply();
    else if (tag == QLatin1String("pairing") && m_pairDevice)
        handlePairingReply();
    m_busy = false;
    debugLog(3, "btscan::onCallFinished out2");
}

void btscan::handleFailure(int code, const QString &text)
{
    restoreCursor();
    switch (code) {
    case BluezQt::PendingCall::AuthenticationRejected:
        showCritical(this, tr("Bluetooth Connection"),
                     tr("Authentication rejected. Remove the device and repeat pairing"));
        break;
    case BluezQt::PendingCall::ConnectionAttemptFailed:
        showCritical(this, tr("Bluetooth Connection"), tr("Connection attempt failed"));
        break;
    default:
        showCritical(this, tr("Bluetooth Connection"), text);
    }
    ui->pairconnect->setEnabled(true);
    debugLog(3, "btscan::onCallFinished out1");
    closePin();
    m_agent->scanDevices();
    // m_busy intentionally stays set: after a failure Remove is not offered any more.
}

void btscan::handleConnectReply()
{
    const QString name = m_device->name();
    if (m_device->isConnected()) {
        debugLog(3, "btscan::onCallFinished dev: %s is now connected", logPrintable(name));
        m_device.clear();
        showInformation(this, tr("Bluetooth Connection"),
                        tr("Device \"%1\" successfully connected.").arg(name));
        close();
        ui->pairconnect->setEnabled(true);
    } else {
        showCritical(this, tr("Bluetooth Connection"), tr("Device \"%1\" connection failure").arg(name));
        m_agent->scanDevices();
        ui->pairconnect->setEnabled(true);
    }
}

void btscan::handlePairingReply()
{
    if (m_pairDevice->isPaired()) {
        qDebug() << "isPaired";
        return;
    }
    m_busy = false;
    const QString name = m_pairDevice->name();
    m_pairDevice.clear();
    showCritical(this, tr("Bluetooth Pairing"), tr("Device \"%1\" pairing failure").arg(name));
    ui->pairconnect->setEnabled(true);
    m_agent->scanDevices();
}

void btscan::onConnectedChanged(bool connected)
{
    debugLog(3, "btscan::onConnectedChanged in");
    restoreCursor(); // may deliver the finished call: m_device is checked afterwards
    if (m_device) {
        const QString name = m_device->name();
        debugLog(3, "btscan::onConnectedChanged dev: %s, connected: %d", logPrintable(name), connected);
        if (connected && m_device->isConnected()) {
            debugLog(3, "btscan::onConnectedChanged now close");
            const QString text = tr("Device \"%1\" successfully connected.").arg(name);
            m_device.clear();
            showInformation(this, tr("Bluetooth Connection"), text);
            close();
        } else {
            debugLog(3, "btscan::onConnectedChanged connection error");
        }
    }
    debugLog(3, "btscan::onConnectedChanged out");
}

void btscan::onPairedChanged(bool paired)
{
    debugLog(3, "btscan::onPairedChanged in");
    if (!m_pairDevice) {
        debugLog(3, "btscan::onPairedChanged out");
        return;
    }
    debugLog(3, "btscan::onPairedChanged dev: %s, paired: %d", logPrintable(m_pairDevice->name()), paired);
    if (paired && m_pairDevice->isPaired()) {
        debugLog(3, "btscan::onPairedChanged setTrusted");
        m_pairDevice->setTrusted(true)->waitForFinished();
        debugLog(3, "btscan::onPairedChanged connectToDevice");
        connect(m_pairDevice.data(), &BluezQt::Device::connectedChanged, this, &btscan::onConnectedChanged);
        watchConnect(m_pairDevice, m_pairDevice->connectToDevice());
    }
    debugLog(3, "btscan::onPairedChanged out");
}
