// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/** One profile of a sound card, read from its line in the output of "pactl list cards". */
class AudioProfile {
public:
    /**
     * Takes a line such as "a2dp_sink: High Fidelity Playback (sinks: 1, sources: 0, priority: 40)".
     * What the line lacks stays empty or 0.
     */
    explicit AudioProfile(QString line);

    QString name; ///< the server's identifier
    QString description; ///< for the user
    int sinks; ///< how many; only the first digit is read
    int sources; ///< likewise
};

/** The part of a listing of sound cards that is about cards whose blocks contain a key. */
struct CardProfiles {
    QString card; ///< the server's name of the card; of several, of the one with the headset's address
    QStringList lines; ///< one a profile, as listed
    std::optional<QString> active; ///< name of the active profile, if the listing has one
};

/**
 * Reads the output of "pactl list cards", which may be cut off anywhere. The key is matched
 * case-sensitively.
 */
CardProfiles parseCards(const QString &listing, const QString &key, const QString &address);

/**
 * The first source in the output of "pactl list sources short" with the name that PipeWire gives to the
 * microphone of the headset with this address; empty when there is none.
 */
QString findMicrophone(const QString &listing, const QString &address);
