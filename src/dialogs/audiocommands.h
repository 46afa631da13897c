// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/**
 * The sound server's keys for a headset, and the command lines that use them. A key can be what a remote
 * device calls itself. One made of ASCII letters and digits, blanks, ".", "_", ":" and "-" alone, in which
 * no word begins with "-", is written plainly; any other is guarded so that it can neither run code nor name
 * a file nor pass for an option.
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

/** The arguments with which "pactl" switches a card's profile. */
QStringList setCardProfile(const QString &cardKey, const QString &profile);

/** The same for a card by its own name: neither word is split or taken for an option. */
QStringList setProfileOfCard(const QString &card, const QString &profile);

}
