// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/audiocommands.h"

#include "app/paths.h"

#include <QProcess>
#include <QRegularExpression>

#include <algorithm>

namespace audiocommands {

/** Whether a shell leaves these words as they are, and none of them is an option. */
static bool isPlain(const QString &key)
{
    static const QRegularExpression plain(
        QStringLiteral("\\A *(?:[\\p{L}\\p{M}\\p{N}._:][\\p{L}\\p{M}\\p{N}._:-]*(?: +|\\z))*\\z"));
    // A letter that the locale cannot encode reaches the shell as "?", a wildcard.
    return plain.match(key).hasMatch() && QString::fromLocal8Bit(key.toLocal8Bit()) == key;
}

static QString shellWord(const QString &key)
{
    if (isPlain(key))
        return key;
    QString quoted = key;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

/** Like shellWord(), for grep, to which a leading "-" must not be an option. */
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
    return QStringLiteral("parecord --channels=1 --device=%1 %2")
        .arg(shellWord(source), QLatin1String(paths::audioSample));
}

/** Prepends "--" if an argument would be taken for an option; pactl accepts it before its command only. */
static QStringList withoutOptions(QStringList words)
{
    const auto isOption = [](const QString &word) { return word.startsWith(QLatin1Char('-')); };
    if (std::any_of(words.cbegin(), words.cend(), isOption))
        words.prepend(QStringLiteral("--"));
    return words;
}

QStringList setCardProfileByKey(const QString &cardKey, const QString &profile)
{
    return withoutOptions(
        QProcess::splitCommand(QStringLiteral("set-card-profile %1 %2").arg(cardKey, profile)));
}

QStringList setCardProfileByName(const QString &card, const QString &profile)
{
    return withoutOptions({ QStringLiteral("set-card-profile"), card, profile });
}

}
