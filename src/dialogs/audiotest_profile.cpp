// SPDX-License-Identifier: GPL-3.0-or-later
// Lists, shows and switches the profiles of the headset's sound card.
#include "app/commandrunner.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audiotest.h"
#include "ui_audiotest.h"
#include "widgets/feedback.h"

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
                                            audiocommands::setCardProfileByKey(m_cardName, name), 30000);
    if (result.exitCode == 0)
        return;
    // PipeWire does not find a card by the name of the headset.
    if (m_pipewire && !m_listedCard.isEmpty() && m_listedCard != m_cardName) {
        const CommandResult retry = runCommand(
            QStringLiteral("pactl"), audiocommands::setCardProfileByName(m_listedCard, name), 30000);
        if (retry.finished && retry.exitCode == 0)
            return;
    }
    showCritical(this, tr("Bluetooth Audio Profile"), QString::fromUtf8(result.standardError));
}

void audiotest::on_profiles_currentIndexChanged(int index)
{
    // The list may be shorter than the combo box, which is filled only once.
    if (!m_ready || index < 0 || index >= m_profiles.size())
        return;
    const QString requested = m_profiles[index]->name;
    setCardProfile(requested);
    usleep(1000000); // until the listing shows the new profile
    readCardProfiles();
    if (m_activeProfile != requested)
        showCritical(this, tr("Bluetooth Audio Profile"), tr("An error occure while changing profile"));
    m_ready = false;
    showActiveProfile();
    m_ready = true;
}
