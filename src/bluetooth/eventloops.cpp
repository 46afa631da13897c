// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/eventloops.h"

#include "app/feedback.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <BluezQt/Manager>
#include <BluezQt/PendingCall>
#include <QApplication>
#include <QSharedPointer>

namespace {
class Keeper : public QObject {
public:
    explicit Keeper(const QSharedPointer<QObject> &kept)
        : m_kept(kept)
    {
    }

private:
    QSharedPointer<QObject> m_kept;
};
}

void keepSender(const QObject *sender)
{
    if (qobject_cast<const BluezQt::PendingCall *>(sender))
        sender = sender->parent();

    QSharedPointer<QObject> kept;
    if (const auto *device = qobject_cast<const BluezQt::Device *>(sender))
        kept = device->toSharedPtr();
    else if (const auto *adapter = qobject_cast<const BluezQt::Adapter *>(sender))
        kept = adapter->toSharedPtr();
    // Unlike a zero timer, a deferred deletion waits for the loop level at which it was asked for.
    if (kept)
        (new Keeper(kept))->deleteLater();
}

void restoreCursorAfterRemoval(const BluezQt::Manager *manager)
{
    if (manager->isOperational())
        restoreCursor();
    else
        QApplication::restoreOverrideCursor();
}
