// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/audiocommands.h"

#include <QRegularExpression>

namespace audiocommands {

/** Whether a shell takes these words for nothing but words, and a tool for no option. */
static bool isPlain(const QString &key)
{
    static const QRegularExpression plain(
        QStringLiteral("\\A *(?:[A-Za-z0-9._:][A-Za-z0-9._:-]*(?: +|\\z))*\\z"));
    return plain.match(key).hasMatch();
}

static QString shellWord(const QString &key)
{
    if (isPlain(key))
        return key;
    QString quoted = key;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

/** As shellWord(), and behind a grep that would take a leading "-" for an option. */
static QString grepWord(const QString &key)
{
    return shellWord(key.startsWith(QLatin1Char('-')) ? QLatin1String("[-]") + key.mid(1) : key);
}

static QString withUnderscores(QString address)
{
    return address.replace(QLatin1Char(':'), QLatin1Char('_'));
}

QString cardKey(const QString &address)
{
    return QStringLiteral("bluez_card.%1").arg(withUnderscores(address));
}

QString sinkKey(const QString &address, const QString &profile)
{
    return QStringLiteral("bluez_sink.%1.%2").arg(withUnderscores(address), profile);
}

QString sourceKey(const QString &address, const QString &profile)
{
    return QStringLiteral("bluez_source.%1.%2").arg(withUnderscores(address), profile);
}

QString listSinks(const QString &sinkKey)
{
    return QStringLiteral("pactl list sinks short | grep %1").arg(grepWord(sinkKey));
}

QString listSources(const QString &sourceKey)
{
    return QStringLiteral("pactl list sources short | grep %1 | grep -v monitor").arg(grepWord(sourceKey));
}

QString record(const QString &source)
{
    return QStringLiteral("parecord --channels=1 --device=%1 /tmp/sample.wav").arg(shellWord(source));
}

QStringList setCardProfile(const QString &cardKey, const QString &profile)
{
    const QString command = QStringLiteral("set-card-profile");
    if (!isPlain(cardKey) || !isPlain(profile))
        return { QStringLiteral("--"), command, cardKey,
                 profile }; // pactl ends its options before the command
    QStringList words = { command };
    words += cardKey.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words += profile.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return words;
}

QStringList setProfileOfCard(const QString &card, const QString &profile)
{
    QStringList words = { QStringLiteral("set-card-profile"), card, profile };
    if (card.startsWith(QLatin1Char('-')) || profile.startsWith(QLatin1Char('-')))
        words.prepend(QStringLiteral("--"));
    return words;
}

}
