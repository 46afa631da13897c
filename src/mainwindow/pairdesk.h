// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/appsettings.h"

#include <BluezQt/Device>
#include <QMainWindow>
#include <QModelIndex>

class btagent;
class QTableWidgetItem;

namespace BluezQt {
class Manager;
}

namespace Ui {
class pairdesk;
}

/**
 * The program's one top-level window: the devices that are paired or connected, the Bluetooth switch, the
 * buttons for the selected device and those that open the dialogs. It owns the settings record and the
 * pairing agent and lends both to the dialogs.
 */
class pairdesk : public QMainWindow {
    Q_OBJECT

public:
    /** The manager stays the caller's and outlives the window. Blocks while BlueZ and systemctl answer. */
    pairdesk(BluezQt::Manager *manager, QWidget *parent);
    ~pairdesk() override;

    /** True only when the user left the window with OK. */
    bool m_bOk = false;

private:
    QString m_stdout; ///< of the last command; null when it wrote nothing
    QString m_stderr;
    Ui::pairdesk *ui;
    int m_exitCode = -1; ///< of the last command that ended normally; not 0 before, which would read as "on"
    bool m_bOn = false; ///< whether Bluetooth is on, that is, the service runs
    BluezQt::Manager *m_manager;
    btagent *m_agent = nullptr;
    AppSettings m_settings;

    void connectSignals();
    void registerAgentAgain();
    void centre();

    /**
     * Runs a shell command, blocking for at most 30 s, and keeps its output and exit code in the members.
     * True when it ended normally with exit code 0, or timed out; after a crash m_exitCode is the old one.
     */
    bool executeCommand(const QString &command);
    bool getBluetoothStatus();
    bool setBluetoothStatus(bool on);
    void updateUi();

    void populateTable();
    /** Sets the device buttons for the row of this item; without an item disables them. */
    void updateElements(QTableWidgetItem *item);
    /** The address of the selected row, empty when there is none. */
    QString getDeviceAddress();

    /** The item that the context menu is for, null when there is none. */
    QTableWidgetItem *contextMenuItem() const;

private Q_SLOTS:
    void on_onoff_clicked();
    void on_add_clicked();
    void on_remove_clicked();
    void on_connect_clicked();
    void on_close_clicked();
    void on_disconnect_clicked();
    void on_devices_clicked(QModelIndex index);
    void on_ok_clicked();
    void on_options_clicked();
    void on_devices_customContextMenuRequested(QPoint pos);
    void hcitoollescan();

public Q_SLOTS:
    void onAdapterAdded(BluezQt::AdapterPtr adapter);
    void onAdapterRemoved(BluezQt::AdapterPtr adapter);
    void onDeviceRemoved(BluezQt::DevicePtr device);
    void onConnectedChanged(bool connected);
    void onBlockedChanged(bool blocked);
    void onOperationalChanged(bool operational);
    void onPopupateTable(); // the spelling is fixed: timers call it by this name
    void onDevicePropertyChanged(BluezQt::DevicePtr device);
    void onCallFinished(QString action, QString error);
};
