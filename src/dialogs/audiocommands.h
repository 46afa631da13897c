// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/**
 * The sound server's keys for a headset, and the command lines that use them. A key may be the name that
 * a remote device has chosen. In a shell line, one made of letters and digits, blanks, ".", "_", ":" and "-"
 * alone, in which no word begins with "-", stands as it is; any other is quoted, so that it can neither run
 * code nor name a file nor pass for an option.
 */
namespace audiocommands {

// Keys of a headset under PulseAudio; the address is a Bluetooth address.
QString cardKey(const QString &address);
QString sinkKey(const QString &address, const QString &profile);
QString sourceKey(const QString &address, const QString &profile);

// Lines for "sh -c".
QString listSinks(const QString &sinkKey);
QString listSources(const QString &sourceKey);
QString record(const QString &source);

/** Arguments for "pactl": the words of the line with the key and the profile, as QProcess splits it. */
QStringList setCardProfileByKey(const QString &cardKey, const QString &profile);

/** Arguments for "pactl": the server's name of the card is one word, and so is the profile. */
QStringList setCardProfileByName(const QString &card, const QString &profile);

}
