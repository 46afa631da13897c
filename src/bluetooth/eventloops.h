// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QObject;

namespace BluezQt {
class Manager;
}

/**
 * Keeps the device or adapter whose signal is being handled alive until control is back in the event loop
 * from which the slot was called; event loops nested in the slot (a message box, processEvents) do not
 * release it. A slot that runs one calls this first with its sender: the object may vanish meanwhile, but
 * the library still works with it once the slot returns. The sender is a Device, an Adapter or a pending
 * call of one of them, which goes with its parent; anything else, null included, is ignored.
 */
void keepSender(const QObject *sender);

/**
 * Pops an override cursor at the end of a slot that hears of a removed device and processes events once,
 * unless the manager is forgetting all devices at this moment: it must not hear of a new daemon meanwhile,
 * whose objects it would then throw away as well.
 */
void restoreCursorAfterRemoval(const BluezQt::Manager *manager);
