// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mainwindow/pairdesk.h"
#include "tests/support/hand.h"
#include "tests/support/testbus.h"

class btagent;

/**
 * The daemon, the main window and a user. With the name of a record, each deed has to have just the effect
 * that its section of data/NAME.log tells: the trace and the debug stream, where the log is open, and (lines
 * with "=") the calls of BlueZ and of the tools, and what can be seen; after "look", how every window is laid
 * out, too. PAIRDESK_RECORD=FOLDER appends to the record there instead.
 *
 * Further verbs: what the daemon's Do() takes; open (the window), switch, kill and start (the daemon),
 * operational on, devices COUNT, look.
 */
class Desk : public TestBus, public Hand {
public:
    explicit Desk(const QString &record = QString(), const QString &scene = "--empty");
    ~Desk();
    /** Two rows of test data: what can be seen must not depend on whether the log is open. */
    static void logClosedAndOpen();

    std::unique_ptr<pairdesk> window;
    btagent *agent = nullptr;
    QTableWidget *table = nullptr;

protected:
    bool hasEffect(const QString &deed, QString *why) override;

private:
    QStringList effect(bool withLayout);

    QString m_record;
    QStringList m_sections; // of the record
    int m_section = 1; // of the deed under way
    bool m_log;
    int m_logged = 0; // lines of the log that belong to former deeds
    QStringList m_calls; // since the deed
    int m_calm = 0; // looks since the daemon has answered
    QElapsedTimer m_seen; // while recording
};
