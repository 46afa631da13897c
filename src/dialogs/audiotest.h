// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/audioprofile.h"

#include <BluezQt/Manager>
#include <BluezQt/Types>
#include <QDialog>

namespace Ui {
class audiotest;
}

/**
 * Tests the sound of a connected headset: a test sound for each channel, the profiles of its sound card, a
 * recorded sample. It uses the command-line tools of the sound server and blocks the window while they run.
 */
class audiotest : public QDialog {
    Q_OBJECT

public:
    /** The manager stays the caller's. An address that it does not know means a device without a name. */
    audiotest(BluezQt::Manager *manager, QString address, QWidget *parent);
    ~audiotest() override;

private:
    Ui::audiotest *ui;
    QString m_cardName; ///< the key that finds the headset's card in the listings
    QString m_listedCard; ///< what the last listing calls that card; empty when it has none
    QString m_address;
    QString m_sourceName; ///< empty when the headset has no recording source
    QStringList m_profileLines;
    QString m_activeProfile;
    QList<AudioProfile *> m_profiles; ///< owned, in the order of the listing
    bool m_ready = false; ///< false while the program itself changes the combo box
    int m_channels = 2; ///< 1 when the headset's sink is mono, else 2
    BluezQt::DevicePtr m_device; ///< may be null
    BluezQt::Manager *m_manager;
    bool m_pipewire = false; ///< whether PipeWire runs, else PulseAudio

    bool isPipewireRunning();
    void uploadSamples();
    void detectSinkChannels();
    void updateProfileWidgets(const AudioProfile &profile);

    void readCardProfiles();
    void showActiveProfile();
    void setCardProfile(const QString &name);
    void findSourceName();
    void findMicrophoneName();

private Q_SLOTS:
    void on_close_clicked();
    void on_leftbt_clicked();
    void on_monobt_clicked();
    void on_rightbt_clicked();
    void on_record_clicked();
    void on_play_clicked();
    void resetbalance();
    void on_profiles_currentIndexChanged(int index);
};
