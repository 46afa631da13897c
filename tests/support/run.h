// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bluetooth/btagent.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/state.h"
#include "tests/support/user.h"

#include <BluezQt/Device>
#include <BluezQt/Manager>
#include <QProcess>
#include <QTableWidget>
#include <QTimer>

#include <memory>

/**
 * Performs a scenario: with a simulated daemon, a manager, and, once it is opened, the main window. The step
 * "-> EFFECTS" compares what has changed since the one before.
 */
class Run : public User {
public:
    Run(QList<Step> steps, bool withLog);
    ~Run() override;

protected:
    /** When the daemon has answered and the event loop has nothing left to do. */
    bool isSettled() override;

private:
    void addDaemonVerbs();
    void addProgramVerbs();
    void addAgentVerbs();
    void addMeasuringVerbs();

    void startDaemon();
    void killDaemon(); ///< as with SIGKILL: no goodbye; takes a daemon that the switch has started, too
    /** Lets the daemon Do() something without waiting; a refusal fails the test. */
    void sim(const QString &line);
    /** The device with this name in the manager, null when there is none. */
    BluezQt::DevicePtr device(const QString &name) const;

    /** Appends to the calls that are compared. */
    void note(const QString &text);
    /** Runs a shell command and notes its output, but none of the calls that it makes. */
    void shell(const QString &command);
    QStringList calls();
    bool fireTimer();
    State current() const;
    bool compare(const QString &effects);

    BluezQt::Manager m_manager;
    QProcess m_daemon;
    int m_asked = 0; // of the daemon, and not done yet: what it has changed has been told before
    QTimer m_turn; // over when whatever the event loop had to do is done
    int m_idleTurns = 0; // since the daemon has answered
    QTimer m_between;

    std::unique_ptr<pairdesk> m_window;
    btagent *m_agent = nullptr;

    QStringList m_watched; // groups that are compared on request only
    QMap<QString, QString> m_names; // of the devices, by their addresses
    State m_before;
    int m_called = 0; // calls before the line
    int m_noted = 0; // calls of the line up to now
    QElapsedTimer m_quiet; // since the last of them
    int m_connections = -1; // when they were last measured
    int m_kibibytes = 0;
};
