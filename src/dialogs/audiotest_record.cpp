// SPDX-License-Identifier: GPL-3.0-or-later
// Records a sample from the headset's microphone and plays it back.
#include "app/commandrunner.h"
#include "app/paths.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audiotest.h"
#include "ui_audiotest.h"
#include "widgets/feedback.h"

#include <QFileInfo>
#include <QProcess>

#include <sys/stat.h>
#include <unistd.h>

void audiotest::findSourceName()
{
    const QString key = m_pipewire ? m_cardName : audiocommands::sourceKey(m_address, m_activeProfile);
    const CommandResult result = runShell(audiocommands::listSources(key), 30000, Messages::Untranslated);
    const bool found = result.finished && QString::fromUtf8(result.standardOutput).contains(key);
    m_sourceName = found ? key : QString();
}

/** Under PipeWire sources are named by address, so that the key finds none. */
void audiotest::findMicrophoneName()
{
    const QStringList arguments = QStringLiteral("list sources short").split(QLatin1Char(' '));
    const CommandResult result = runCommand(QStringLiteral("pactl"), arguments, 30000,
                                            Messages::Untranslated);
    m_sourceName = findMicrophone(QString::fromUtf8(result.standardOutput), m_address);
}

static bool sampleExists()
{
    QFile sample(QString::fromLatin1(paths::audioSample));
    return QFileInfo(sample).isFile() && sample.open(QIODevice::ReadOnly)
           && static_cast<qint32>(sample.size()) != 0;
}

void audiotest::on_record_clicked()
{
    findSourceName();
    if (m_pipewire && m_sourceName.isEmpty())
        findMicrophoneName();
    if (m_sourceName.isEmpty()) {
        showCritical(this, tr("Audio source name"),
                     tr("An error occurred while getting the audio source name."));
        return;
    }
    QProcess recorder;
    const mode_t before = umask(077); // the sample is for nobody else to hear
    recorder.start(QStringLiteral("sh"), { QStringLiteral("-c"), audiocommands::record(m_sourceName) });
    umask(before);
    ui->record->setEnabled(false);
    ui->play->setEnabled(false);
    showWaitCursor();
    unlink(paths::audioSample); // intentionally after the recorder was started
    recorder.waitForFinished(10000); // the recording time: it does not end by itself
    runShellIgnoringResult("killall parecord");
    restoreCursor();
    if (sampleExists()) {
        ui->play->setEnabled(true);
    } else {
        showCritical(this, tr("Sample Record"),
                     tr("An error occurred while reconding the audio sample.\nThe file is empty"));
    }
    ui->record->setEnabled(true);
}

void audiotest::on_play_clicked()
{
    if (!sampleExists())
        return;
    ui->record->setEnabled(false);
    ui->play->setEnabled(false);
    showWaitCursor();
    runShell(QStringLiteral("parecord -p %1").arg(QLatin1String(paths::audioSample)), 11000);
    ui->record->setEnabled(true);
    ui->play->setEnabled(true);
    restoreCursor();
}
