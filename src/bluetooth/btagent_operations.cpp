// SPDX-License-Identifier: GPL-3.0-or-later
// Operations on one device, given by its address, and the slots that report their outcome.
#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/adapters.h"
#include "bluetooth/btagent.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <QDebug>

BluezQt::DevicePtr btagent::findDevice(const QString &address) const
{
    return manager ? manager->deviceForAddress(address) : BluezQt::DevicePtr();
}

/**
 * Makes the device the current one and disconnects all receivers from its signals, so that the caller's own
 * connection is the only one afterwards, however often this is repeated.
 */
void btagent::adoptAndCutConnections(const BluezQt::DevicePtr &operated)
{
    device = operated;
    QObject::disconnect(operated.data(), nullptr, nullptr, nullptr);
}

void btagent::pairDevice(const QString &address)
{
    debugLog(3, "btagent::pairDevice address: %s", logPrintable(address));
    if (const BluezQt::DevicePtr dev = findDevice(address)) {
        debugLog(3, "btagent::pairDevice dev: %s", logPrintable(dev->name()));
        dev->pair();
        adoptAndCutConnections(dev);
        connect(dev.data(), &BluezQt::Device::pairedChanged, this, &btagent::onPairedChanged);
    }
    debugLog(3, "btagent::pairDevice out");
}

void btagent::connectDevice(const QString &address)
{
    debugLog(3, "btagent::connectDevice address: %s", logPrintable(address));
    if (const BluezQt::DevicePtr dev = findDevice(address)) {
        debugLog(3, "btagent::connectDevice dev: %s", logPrintable(dev->name()));
        BluezQt::PendingCall *pc = dev->connectToDevice();
        adoptAndCutConnections(dev);
        connect(dev.data(), &BluezQt::Device::connectedChanged, this, &btagent::onConnectedChanged);
        pc->setUserData(QStringLiteral("connect"));
        connect(pc, &BluezQt::PendingCall::finished, this, &btagent::onCallFinished);
    }
    debugLog(3, "btagent::connectDevice out");
}

void btagent::disconnectDevice(const QString &address)
{
    debugLog(3, "btagent::disconnectDevice address: %s", logPrintable(address));
    if (const BluezQt::DevicePtr dev = findDevice(address)) {
        debugLog(3, "btagent::disconnectDevice dev: %s", logPrintable(dev->name()));
        dev->disconnectFromDevice();
        adoptAndCutConnections(dev);
        connect(dev.data(), &BluezQt::Device::connectedChanged, this, &btagent::onConnectedChanged);
    }
    debugLog(3, "btagent::disconnectDevice out");
}

void btagent::removeDevice(const QString &address)
{
    debugLog(3, "btagent::removeDevice address: %s", logPrintable(address));
    if (const BluezQt::DevicePtr dev = findDevice(address)) {
        debugLog(3, "btagent::removeDevice dev: %s", logPrintable(dev->name()));
        const BluezQt::AdapterPtr adapter = ensureUsableAdapter(manager);
        if (!adapter) {
            qDebug() << noAdaptersMessage;
            connect(manager, &BluezQt::Manager::adapterAdded, this, &btagent::adapterAdded);
            return;
        }
        connect(adapter.data(), &BluezQt::Adapter::deviceRemoved, this, &btagent::onDeviceRemoved);
        adapter->removeDevice(dev)->waitForFinished();
    }
    debugLog(3, "btagent::removeDevice out");
}

void btagent::onPairedChanged(bool paired)
{
    debugLog(3, "btagent::onPairedChanged paired: %d", paired);
    qDebug() << "onPairedChanged address:" << device->address() << ",paired:" << (paired ? "true" : "false");
    Q_EMIT pairedChanged(paired);
    debugLog(3, "btagent::onPairedChanged out");
}

void btagent::onConnectedChanged(bool connected)
{
    debugLog(3, "btagent::onConnectedChanged connected: %d", connected);
    qDebug() << "onConnectedChanged address:" << device->address()
             << ",connected:" << (connected ? "true" : "false");
    Q_EMIT connectedChanged(connected);
    debugLog(3, "btagent::onConnectedChanged out");
}

void btagent::onCallFinished(BluezQt::PendingCall *pc)
{
    debugLog(3, "btagent::onCallFinished in");
    if (pc) {
        pc->setParent(nullptr); // it deletes itself later, even if its device is deleted first
        const QString action = pc->userData().toString();
        const QString error = pc->errorText();
        Q_EMIT callFinished(action, error);
    }
    debugLog(3, "btagent::onCallFinished out");
}
