// SPDX-License-Identifier: GPL-3.0-or-later
// The profiles of the headset's sound card: listing, showing and switching them.
#include "app/commandrunner.h"
#include "app/feedback.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audiotest.h"
#include "ui_audiotest.h"

#include <unistd.h>

void audiotest::readCardProfiles()
{
    qDeleteAll(m_profiles);
    m_profiles.clear();
    m_listedCard.clear();
    const CommandResult result = runCommand(QStringLiteral("pactl"),
                                            { QStringLiteral("list"), QStringLiteral("cards") }, 30000,
                                            Messages::Untranslated);
    if (!result.finished || result.exitCode != 0)
        return;
    const CardProfiles found = parseCards(QString::fromUtf8(result.standardOutput), m_cardName, m_address);
    m_listedCard = found.card;
    m_profileLines += found.lines;
    for (const QString &line : found.lines)
        m_profiles.append(new AudioProfile(line));
    if (found.active)
        m_activeProfile = *found.active;
}

/** Makes the active profile the combo box's current one; to be called while m_ready is false. */
void audiotest::showActiveProfile()
{
    for (int i = 0; i < m_profiles.size(); ++i) {
        if (m_profiles[i]->name == m_activeProfile) {
            ui->profiles->setCurrentIndex(i);
            updateProfileWidgets(*m_profiles[i]);
        }
    }
}

void audiotest::setCardProfile(const QString &name)
{
    const CommandResult result = runCommand(QStringLiteral("pactl"),
                                            audiocommands::setCardProfile(m_cardName, name), 30000);
    if (result.exitCode == 0)
        return;
    // PipeWire knows no card by what the headset calls itself.
    if (m_pipewire && !m_listedCard.isEmpty() && m_listedCard != m_cardName) {
        const QStringList arguments = audiocommands::setProfileOfCard(m_listedCard, name);
        if (runCommand(QStringLiteral("pactl"), arguments, 30000).exitCode == 0)
            return;
    }
    showCritical(this, tr("Bluetooth Audio Profile"), QString::fromUtf8(result.standardError));
}

void audiotest::on_profiles_currentIndexChanged(int index)
{
    // The list can have become shorter than the combo box, which is filled only once.
    if (!m_ready || index < 0 || index >= m_profiles.size())
        return;
    const QString requested = m_profiles[index]->name;
    setCardProfile(requested);
    usleep(1000000); // the card needs a moment until its listing tells the new profile
    readCardProfiles();
    if (m_activeProfile != requested)
        showCritical(this, tr("Bluetooth Audio Profile"), tr("An error occure while changing profile"));
    m_ready = false;
    showActiveProfile();
    m_ready = true;
}
