// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bluetooth/btagent.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/hand.h"
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <BluezQt/Manager>
#include <QTimer>

#include <memory>

/**
 * The daemon, the main window and a user. Further verbs: what the daemon's Do() takes; file PATH CONTENT,
 * open (the window), switch, kill and start (the daemon), operational on, devices COUNT, look.
 */
class Desk : public TestBus, public Hand {
public:
    Desk();
    ~Desk();

    /**
     * Does the deeds of data/roads/NAME.log, the lines with "#". Each has to have just the effect that is
     * told below it: the trace and the debug stream, where the log is open, and (lines with "=") the calls of
     * BlueZ and of the tools, and what can be seen; after "look", how every window is laid out, too.
     * PAIRDESK_RECORD=1 writes anew what is told there.
     */
    void walk(const QString &road, bool withLog);
    /** What all windows show, each in a line with further ones below it: for its rows, for its layout. */
    static QStringList view(bool withLayout);

    /** The device with this name in the manager, null when there is none. */
    BluezQt::DevicePtr device(const QString &name) const;

    BluezQt::Manager manager;
    std::unique_ptr<pairdesk> window;
    btagent *agent = nullptr;
    QTableWidget *table = nullptr;

protected:
    bool hasEffect(const QString &deed, QString *why) override;

private:
    QStringList effect(bool withLayout);

    QStringList m_sections; // of the record, what is told of the deed under way first
    bool m_withLog = false;
    QStringList m_log, m_calls; // since the last deed
    int m_logged = 0, m_called = 0; // before it
    QTimer m_turn; // over when whatever the event loop had to do is done
    int m_calm = 0; // turns since the daemon has answered
    QByteArray m_record;
};
