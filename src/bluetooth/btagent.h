// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Agent>
#include <BluezQt/Manager>
#include <BluezQt/PendingCall>
#include <BluezQt/Request>
#include <QDBusObjectPath>

class AppSettings;

/**
 * The pairing agent, which accepts every request at once, and the operations on adapters and devices whose
 * events it passes on as signals. One instance, owned by the main window, which registers it with BlueZ.
 * Failures of its operations are not reported, except those of a connect through callFinished().
 */
class btagent : public BluezQt::Agent {
    Q_OBJECT

public:
    /** The manager and the settings record stay the caller's and outlive the agent. */
    btagent(BluezQt::Manager *manager, AppSettings *settings, QObject *parent);

    /** Starts discovery, or without an adapter as soon as one appears. Each call connects again. */
    void scanDevices();
    /** Stops discovery on every adapter. */
    void stopScan();

    // These take a device address; one that the manager does not know is ignored.
    void pairDevice(const QString &address);
    void connectDevice(const QString &address);
    void disconnectDevice(const QString &address);
    /** Blocks until BlueZ has answered. */
    void removeDevice(const QString &address);

    QDBusObjectPath objectPath() const override;
    void requestPinCode(BluezQt::DevicePtr device, const BluezQt::Request<QString> &request) override;
    void displayPinCode(BluezQt::DevicePtr device, const QString &pinCode) override;
    void requestPasskey(BluezQt::DevicePtr device, const BluezQt::Request<quint32> &request) override;
    void displayPasskey(BluezQt::DevicePtr device, const QString &passkey, const QString &entered) override;
    void requestConfirmation(BluezQt::DevicePtr device, const QString &passkey,
                             const BluezQt::Request<> &request) override;
    void requestAuthorization(BluezQt::DevicePtr device, const BluezQt::Request<> &request) override;
    void authorizeService(BluezQt::DevicePtr device, const QString &uuid,
                          const BluezQt::Request<> &request) override;
    void cancel() override;
    void release() override;

    // What BlueZ last asked for; never reset, and not read by the program.
    bool pinCodeRequested = false;
    QString pinCode;
    bool passkeyRequested = false;
    QString passkey;
    QString enteredPasskey;
    QString confirmationPasskey;
    QString serviceUuid;
    bool cancelled = false;
    bool released = false;

    BluezQt::Manager *manager;
    /** The device of the latest device event, agent request or operation; may be null. */
    BluezQt::DevicePtr device;
    AppSettings *settings;

Q_SIGNALS:
    /** A device was found: it is the current `device`. */
    void deviceAdded();
    /** A property of the current `device` has changed. */
    void agentDeviceChanged();
    void pairedChanged(bool paired);
    void connectedChanged(bool connected);
    /** A PIN code or passkey to be shown to the user. */
    void displayPinCodeSlot(QString pin);
    /** BlueZ has cancelled what it last asked for. */
    void cancelSignal();
    /** A watched call has ended; the error is the library's text, empty on success. */
    void callFinished(QString action, QString error);

public Q_SLOTS:
    void onDeviceFound(BluezQt::DevicePtr device);
    void onDevicePropertyChanged(BluezQt::DevicePtr device);
    void adapterAdded(BluezQt::AdapterPtr adapter);
    void onAdapterRemoved();
    void onDeviceRemoved(BluezQt::DevicePtr device);
    void onPairedChanged(bool paired);
    void onConnectedChanged(bool connected);
    void onCallFinished(BluezQt::PendingCall *pc);

private:
    BluezQt::DevicePtr findDevice(const QString &address) const;
    void adoptAndCutConnections(const BluezQt::DevicePtr &operated);
};
