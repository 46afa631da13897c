// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

/** The whole file; nothing when it cannot be read. */
QByteArray contentOf(const QString &path);
/** Writes the file whole, with the folders above it. */
void put(const QString &path, const QByteArray &content);

/** The simulated BlueZ on the test's own bus, and what else the program finds on a machine. */
class TestBus {
public:
    /** With an adapter and no devices. */
    TestBus();
    ~TestBus() { kill(); }

    void start();
    void kill(); ///< as with SIGKILL: no goodbye; takes a daemon that the switch has started, too
    /** Lets the daemon Do() something without waiting; a refusal fails the test. */
    void sim(const QString &line);
    /** Blocks until the daemon has done what it was asked for and has told so. */
    static void waitForDaemon();
    /** Whether something is not done yet: what it has changed has been told before. */
    bool isAsking() const { return !m_asked.children().isEmpty(); }

    /** The file of this name, an absolute one as it is; "tools/" tells the stand-ins what to say. */
    QString path(const QString &name) const { return QDir(m_folder.path()).absoluteFilePath(name); }
    /** The settings. */
    static constexpr char store[] = "/tmp/.config/Zemra/pairdesk.conf";

private:
    const QTemporaryDir m_folder;
    QObject m_asked; // parent of the calls without answer
    QProcess m_daemon;
};
