// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Manager>
#include <BluezQt/Types>

/** What the debug stream says when there is no adapter to work with. */
extern const char noAdaptersMessage[];

/**
 * The adapter to work with: the usable one, else the first one after powering it on, which blocks until
 * the daemon has answered (the answer is not examined). Null only when the manager has no adapter at all.
 */
BluezQt::AdapterPtr usableOrFirstAdapter(const BluezQt::Manager *manager);
