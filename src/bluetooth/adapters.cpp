// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/adapters.h"

#include <BluezQt/Adapter>
#include <BluezQt/PendingCall>

const char noAdaptersMessage[] = "!!! No bluetooth adapters were found. Waiting for bluetooth adapters. "
                                 "Ctrl + C to cancel...";

BluezQt::AdapterPtr ensureUsableAdapter(const BluezQt::Manager *manager)
{
    BluezQt::AdapterPtr adapter = manager->usableAdapter();
    if (adapter)
        return adapter;
    const QList<BluezQt::AdapterPtr> adapters = manager->adapters();
    if (adapters.isEmpty())
        return {};
    adapter = adapters.first();
    adapter->setPowered(true)->waitForFinished();
    return adapter;
}
