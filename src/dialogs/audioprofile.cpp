// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/audioprofile.h"

/** The character at this distance from the start of a marker, as a number; 0 when it is not a digit. */
static int digitAfter(const QString &line, const QString &marker, int distance)
{
    const int start = line.indexOf(marker);
    return start < 0 ? 0 : line.mid(start + distance, 1).toInt();
}

AudioProfile::AudioProfile(QString line)
{
    line.remove(QLatin1Char('\t'));
    const QString sinksMarker = QStringLiteral("(sinks:");
    const int colon = line.indexOf(QLatin1Char(':'));
    name = line.left(colon);
    if (colon >= 0) {
        const int from = colon + 2;
        const int marker = line.indexOf(sinksMarker);
        description = marker < 0 ? line.mid(from) : line.mid(from, qMax(0, marker - 1 - from));
    }
    sinks = digitAfter(line, sinksMarker, 8);
    sources = digitAfter(line, QStringLiteral("sources:"), 9);
}

/** Servers write an address with ":", or in names with "_". */
static bool mentions(const QString &text, QString address)
{
    return text.contains(address, Qt::CaseInsensitive)
           || text.contains(address.replace(QLatin1Char(':'), QLatin1Char('_')), Qt::CaseInsensitive);
}

static QString cardName(const QString &card)
{
    const QString marker = QStringLiteral("\n\tName: ");
    const int start = card.indexOf(marker);
    return start < 0 ? QString() : card.mid(start + marker.size()).section(QLatin1Char('\n'), 0, 0);
}

static void parseCard(const QString &card, CardProfiles *found)
{
    const QString activeMarker = QStringLiteral("Active Profile:");
    const QStringList lines = card.split(QLatin1Char('\n'));
    int heading = 0;
    while (heading < lines.size() && !lines[heading].contains(QLatin1String("Profiles:")))
        ++heading;
    for (int i = heading + 1; i < lines.size(); ++i) {
        found->lines.append(lines[i]);
        if (i + 1 < lines.size() && lines[i + 1].contains(activeMarker)) {
            found->active = lines[i + 1].mid(16).trimmed(); // behind the tab and the marker
            break;
        }
    }
}

CardProfiles parseCards(const QString &listing, const QString &key, const QString &address)
{
    const QString separator = QStringLiteral("Card #");
    CardProfiles found;
    if (!listing.contains(separator))
        return found;
    const QStringList cards = listing.split(separator);
    for (const QString &card : cards) {
        if (!card.contains(key))
            continue;
        parseCard(card, &found);
        if (found.card.isEmpty() || mentions(card, address))
            found.card = cardName(card);
    }
    return found;
}

QString findMicrophone(const QString &listing, const QString &address)
{
    const QStringList sources = listing.split(QLatin1Char('\n'));
    for (const QString &source : sources) {
        QString name = source.section(QLatin1Char('\t'), 1, 1);
        if (name.startsWith(QLatin1String("bluez_input.")) && mentions(name, address))
            return name;
    }
    return {};
}
