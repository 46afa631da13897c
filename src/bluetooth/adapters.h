// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Manager>
#include <BluezQt/Types>

/** The text for the debug stream when there is no adapter. */
extern const char noAdaptersMessage[];

/**
 * Returns the usable adapter, or else powers on the first adapter and returns that, which blocks until the
 * daemon has answered (the answer is not examined). Null only when the manager has no adapter at all.
 */
BluezQt::AdapterPtr ensureUsableAdapter(const BluezQt::Manager *manager);
