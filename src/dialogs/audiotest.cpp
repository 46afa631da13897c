// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog and its playback test; profiles and recording are in audiotest_profile.cpp and
// audiotest_record.cpp.
#include "dialogs/audiotest.h"

#include "app/commandrunner.h"
#include "app/paths.h"
#include "dialogs/audiocommands.h"
#include "ui_audiotest.h"

#include <BluezQt/Device>
#include <QTimer>

#include <unistd.h>
#include <utility>

audiotest::audiotest(BluezQt::Manager *manager, QString address, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::audiotest)
    , m_address(address)
    , m_manager(manager)
{
    ui->setupUi(this);
    setFixedSize(size());
    m_pipewire = isPipewireRunning();
    m_device = m_manager->deviceForAddress(m_address);
    if (m_pipewire) {
        m_cardName = m_device ? m_device->name() : QString();
    } else {
        m_cardName = audiocommands::cardKey(m_address);
        uploadSamples();
    }

    readCardProfiles();
    for (const AudioProfile *profile : std::as_const(m_profiles))
        ui->profiles->addItem(profile->description);
    showActiveProfile();
    findSourceName();
    m_ready = true;

    unlink(paths::audioSample);
    ui->play->setEnabled(false);
}

audiotest::~audiotest()
{
    qDeleteAll(m_profiles);
    delete ui;
}

bool audiotest::isPipewireRunning()
{
    const CommandResult result = runShell(QStringLiteral("ps ax | grep -v grep | grep -q pipewire"), 30000);
    return result.finished && result.exitCode == 0;
}

void audiotest::uploadSamples()
{
    runShellIgnoringResult(
        "pactl upload-sample /usr/share/sounds/freedesktop/stereo/audio-channel-front-left.oga left");
    runShellIgnoringResult(
        "pactl upload-sample /usr/share/sounds/freedesktop/stereo/audio-channel-front-right.oga right");
    runShellIgnoringResult(
        "pactl upload-sample /usr/share/sounds/freedesktop/stereo/audio-channel-front-center.oga center");
}

void audiotest::detectSinkChannels()
{
    const QString key = m_pipewire ? m_cardName : audiocommands::sinkKey(m_address, m_activeProfile);
    const CommandResult result = runShell(audiocommands::listSinks(key), 30000, Messages::Untranslated);
    m_channels = result.finished && result.standardOutput.contains(" 1ch ") ? 1 : 2;
}

void audiotest::updateProfileWidgets(const AudioProfile &profile)
{
    ui->output->setEnabled(profile.sinks > 0);
    ui->input->setEnabled(profile.sources > 0);
    detectSinkChannels();
    const bool mono = m_channels == 1;
    ui->monobt->setVisible(mono);
    ui->monolbl->setVisible(mono);
    ui->leftbt->setVisible(!mono);
    ui->leftlbl->setVisible(!mono);
    ui->rightbt->setVisible(!mono);
    ui->rightlbl->setVisible(!mono);
}

void audiotest::on_leftbt_clicked()
{
    runShellIgnoringResult(m_pipewire
                               ? "amixer -D pulse set Master 100%,0%; "
                                 "pw-play /usr/share/sounds/freedesktop/stereo/audio-channel-front-left.oga"
                               : "amixer -D pulse set Master 100%,0%; pactl play-sample left");
    QTimer::singleShot(1500, this, SLOT(resetbalance()));
}

void audiotest::on_monobt_clicked()
{
    runShellIgnoringResult(m_pipewire
                               ? "amixer -D pulse set Master 100%,100%; "
                                 "pw-play /usr/share/sounds/freedesktop/stereo/audio-channel-front-center.oga"
                               : "amixer -D pulse set Master 100%,100%; pactl play-sample center");
}

void audiotest::on_rightbt_clicked()
{
    runShellIgnoringResult(m_pipewire
                               ? "amixer -D pulse set Master 0%,100%; "
                                 "pw-play /usr/share/sounds/freedesktop/stereo/audio-channel-front-right.oga"
                               : "amixer -D pulse set Master 0%,100%; pactl play-sample right");
    QTimer::singleShot(1500, this, SLOT(resetbalance()));
}

void audiotest::resetbalance() { runShellIgnoringResult("amixer -D pulse set Master 100%,100%;"); }

void audiotest::on_close_clicked() { close(); }
