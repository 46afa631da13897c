// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bluetooth/btagent.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/testbus.h"
#include "tests/support/user.h"

#include <BluezQt/Device>
#include <BluezQt/Manager>
#include <QTimer>

#include <memory>

/**
 * The simulated daemon, the main window and a user. Further steps: what the daemon's Do() takes; file PATH
 * CONTENT, open (the window), switch, kill and start (the daemon), operational on, devices COUNT.
 */
class Fixture : public TestBus, public User {
public:
    Fixture();
    ~Fixture();

    /** The device with this name in the manager, null when there is none. */
    BluezQt::DevicePtr device(const QString &name) const;

    BluezQt::Manager manager;
    std::unique_ptr<pairdesk> window;
    btagent *agent = nullptr;
    QTableWidget *table = nullptr;

protected:
    /** When the daemon has answered and the event loop has nothing left to do. */
    bool isOver(const QString &step, QString *why) override;

private:
    QTimer m_turn; // over when whatever the event loop had to do is done
    int m_idleTurns = 0; // since the daemon has answered
};
