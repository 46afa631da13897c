// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Manager>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

/** Waits until it holds, for as long as a busy machine may need. */
#define TRY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 20000)

/** The whole file; nothing when it cannot be read. */
QByteArray contentOf(const QString &path);
/** Writes the file whole, with the folders above it. */
void put(const QString &path, const QByteArray &content);

/** The simulated BlueZ on the test's own bus, and what the program would find on a machine: tools, settings.
 */
class TestBus {
public:
    /** Starts the daemon with one of its scenes ("", "--empty", "--no-adapter", "--unpowered"). */
    explicit TestBus(const QString &scene = QString());
    ~TestBus();

    void start();
    void kill(); ///< as with SIGKILL: no goodbye; takes a daemon that the switch has started, too
    /** Calls a method of the daemon's control object without waiting; a refusal fails the test. */
    void sim(const QString &method, const QVariantList &arguments);
    /** Blocks until the daemon has done what it was asked for and has told so. */
    void waitForDaemon();
    /** Whether such a call is not answered yet: what it has changed has been told before. */
    bool isAsking() const { return !m_asked.children().isEmpty(); }
    /** What BlueZ ("BlueZ: Connect ...") and the tools were called with since the last look. */
    QStringList takeCalls();
    /** Lets the stand-in for a tool answer with this output and exit status from now on. */
    void scriptTool(const QString &name, const QByteArray &output, int status = 0) const;

    /** A manager that has been initialised on this bus, owned by the fixture. */
    BluezQt::Manager *manager();
    /** The device with this name in the manager, null when there is none. */
    BluezQt::DevicePtr device(const QString &name);
    QString path(const QString &file) const { return m_folder.filePath(file); }
    /** The file of the settings. */
    static QString store();

private:
    QTemporaryDir m_folder;
    QString m_scene;
    int m_looked = 0; // calls seen so far
    QObject m_asked; // parent of the calls without answer
    QProcess m_daemon;
    std::unique_ptr<BluezQt::Manager> m_manager;
};
