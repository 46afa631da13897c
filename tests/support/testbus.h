// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Manager>
#include <QDBusPendingCall>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

/**
 * The simulated BlueZ on the test's own bus, and everything else that the program would find on a machine:
 * tools, settings, state. One per test; the bus itself is there before the test starts.
 */
class TestBus {
public:
    /** Starts the daemon with one of its scenes ("", "--empty", "--no-adapter", "--unpowered"). */
    explicit TestBus(const QString &scene = QString());
    ~TestBus();

    void start();
    void kill(); ///< as with SIGKILL: no goodbye

    /** Calls a method of the daemon's control object and returns its answer; a refusal fails the test. */
    QVariant sim(const QString &method, const QVariantList &arguments = {});
    /** The same without waiting for the answer, for calls that come back to this process. */
    QDBusPendingCall simLater(const QString &method, const QVariantList &arguments = {});
    /** Adds a device, a headset when nothing else is said, that behaves so, and returns its address. */
    QString addDevice(const QString &name, const QVariantMap &properties = {}, const QVariantMap &how = {});
    /** What BlueZ has been asked for since the last look, in order. */
    QStringList takeCalls();

    /** The command lines that the stand-ins for the tools were called with. */
    QStringList toolCalls() const;
    /** Lets the stand-in for a tool answer with this output and exit status from now on. */
    void scriptTool(const QString &name, const QByteArray &output, int status = 0) const;

    /** A manager that has been initialised on this bus, owned by the fixture. */
    BluezQt::Manager *manager();
    /** The device with this name in the manager, null when there is none. */
    BluezQt::DevicePtr device(const QString &name);
    /** Whether BlueZ has answered everything that this device was asked for. */
    bool hasAnswered(const QString &name);
    QString path(const QString &file) const { return m_folder.filePath(file); }

private:
    QTemporaryDir m_folder;
    QString m_scene;
    int m_added = 0;
    QProcess m_daemon;
    std::unique_ptr<BluezQt::Manager> m_manager;
};
