// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <BluezQt/Types>
#include <QDialog>
#include <QModelIndex>

class AppSettings;
class Pin;
class QLabel;
class QMovie;
class btagent;

namespace BluezQt {
class PendingCall;
}

namespace Ui {
class btscan;
}

/**
 * Lists the devices that discovery finds and connects the selected one, which BlueZ pairs on the way.
 * Discovery runs from construction to destruction, except during a connect.
 */
class btscan : public QDialog {
    Q_OBJECT

public:
    /** The agent and the settings record stay the caller's and outlive the dialog. */
    btscan(btagent *agent, AppSettings *settings, QWidget *parent);
    ~btscan() override;

private:
    Ui::btscan *ui;
    btagent *m_agent;
    Pin *m_pin = nullptr; ///< the newest PIN dialog, a child of this one; null when none is open
    QLabel *m_busyLabel = nullptr;
    QMovie *m_busyMovie = nullptr; ///< owned
    BluezQt::DevicePtr m_device; ///< being connected
    BluezQt::DevicePtr m_pairDevice; ///< for pairing without connecting, which nothing starts
    bool m_busy = false; ///< a connect is under way, or the last one failed
    AppSettings *settings;

    /** Shows an animation, a resource or file path, on the label; null for the built-in one. */
    void startAnimation(QLabel *label, const char *file);
    void populateTable();
    /** The address of the selected row, empty when there is none. */
    QString getDeviceAddress();
    /** Appends a row with the name and address of the device; returns its index. */
    int appendRow(const BluezQt::DevicePtr &device);
    /** Whether there is a row with this address; traces each row up to that one. */
    bool isListed(const QString &address) const;
    void removeSelected();
    void closePin();

    void watchConnect(const BluezQt::DevicePtr &device, BluezQt::PendingCall *pc);
    void handleFailure(int code, const QString &text);
    void handleConnectReply();
    void handlePairingReply();

private Q_SLOTS:
    void on_devices_clicked(QModelIndex index);
    void onDeviceFound();
    void onDevicePropertyChanged();
    void onPairedChanged(bool paired);
    void on_close_clicked();
    void on_pairconnect_clicked();
    void onConnectedChanged(bool connected);
    void onDisplayPinCode(QString pin);
    void onCancel();
    void onCallFinished(BluezQt::PendingCall *pc);
    void on_remove_clicked();
    void onDeviceRemoved(BluezQt::DevicePtr device);
};
