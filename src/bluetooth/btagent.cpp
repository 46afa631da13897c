// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/btagent.h"

#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/adapters.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <QDebug>

btagent::btagent(BluezQt::Manager *manager, AppSettings *settings, QObject *parent)
    : BluezQt::Agent(parent)
    , manager(manager)
    , settings(settings)
{
    debugLog(3, "btagent::btagent");
}

void btagent::scanDevices()
{
    debugLog(3, "btagent::scanDevices in");
    if (!manager)
        return;
    const BluezQt::AdapterPtr adapter = ensureUsableAdapter(manager);
    if (!adapter) {
        qDebug() << noAdaptersMessage;
        connect(manager, &BluezQt::Manager::adapterAdded, this, &btagent::adapterAdded);
        return;
    }
    qDebug() << "*** Will scan devices until stopped...";
    qDebug() << "";
    // Intentionally not unique: after the n-th scan every device is reported n times.
    connect(adapter.data(), &BluezQt::Adapter::deviceAdded, this, &btagent::onDeviceFound);
    connect(adapter.data(), &BluezQt::Adapter::deviceChanged, this, &btagent::onDevicePropertyChanged);
    adapter->startDiscovery();
    debugLog(3, "btagent::scanDevices out");
}

void btagent::stopScan()
{
    debugLog(3, "btagent::stopScan in");
    const QList<BluezQt::AdapterPtr> adapters = manager->adapters();
    for (const BluezQt::AdapterPtr &adapter : adapters)
        adapter->stopDiscovery();
    debugLog(3, "btagent::stopScan in"); // the second "in" is intentional
}

void btagent::adapterAdded(BluezQt::AdapterPtr adapter)
{
    debugLog(3, "btagent::adapterAdded in");
    if (adapter) {
        debugLog(3, "btagent::adapterAdded adapter: %s, address: %s", logPrintable(adapter->name()),
                 logPrintable(adapter->address()));
    }
    qDebug() << "*** An adapter has been connected.";
    qDebug() << "";
    scanDevices();
    debugLog(3, "btagent::adapterAdded out");
}

void btagent::onAdapterRemoved()
{
    debugLog(3, "btagent::onAdapterRemoved");
    qDebug() << "onAdapterRemoved";
}

void btagent::onDeviceFound(BluezQt::DevicePtr device)
{
    debugLog(3, "btagent::onDeviceFound in");
    if (device) {
        debugLog(3, "btagent::onDeviceFound dev: %s, address: %s", logPrintable(device->name()),
                 logPrintable(device->address()));
    }
    qDebug() << "*** Remote device found:" << device->name() << "(" << device->address() << ")";
    qDebug() << "";
    this->device = device;
    Q_EMIT deviceAdded();
    debugLog(3, "btagent::onDeviceFound out");
}

void btagent::onDevicePropertyChanged(BluezQt::DevicePtr device)
{
    debugLog(3, "btagent::onDevicePropertyChanged in");
    if (device) {
        debugLog(3, "btagent::onDevicePropertyChanged dev: %s, address: %s, type: %s",
                 logPrintable(device->name()), logPrintable(device->address()),
                 logPrintable(BluezQt::Device::typeToString(device->type())));
    }
    this->device = device;
    Q_EMIT agentDeviceChanged();
    debugLog(3, "btagent::onDevicePropertyChanged out");
}

void btagent::onDeviceRemoved(BluezQt::DevicePtr device)
{
    debugLog(3, "btagent::onDeviceRemoved in");
    if (device) {
        debugLog(3, "btagent::onDeviceRemoved dev: %s, address: %s", logPrintable(device->name()),
                 logPrintable(device->address()));
    }
    qDebug() << "onDeviceRemoved address:" << device->address();
}
