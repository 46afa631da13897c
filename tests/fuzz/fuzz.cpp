// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/singleinstance.h"
#include "app/text.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"

#include <QRegularExpression>

#include <cstdlib>

static void require(bool holds)
{
    if (!holds)
        std::abort();
}

/** Whether sh reads this as a single word: nothing but quoted pieces and quotes between them. */
static bool isOneWord(const QString &text)
{
    static const QRegularExpression quoted(QStringLiteral("\\A('[^']*'|\\\\')+\\z"));
    return quoted.match(text).hasMatch();
}

/** What a tool lists and what a sound server calls its things. */
inline void profiles(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const AudioProfile profile(text);
    require(profile.sinks >= 0 && profile.sinks <= 9 && profile.sources >= 0 && profile.sources <= 9);
    require(!profile.name.contains(QLatin1Char(':')) || profile.description.isEmpty());
    const CardProfiles found = parseCards(text, QStringLiteral("x"), QStringLiteral("00:1A"));
    for (const QString &line : found.lines)
        require(text.contains(AudioProfile(line).name) || line.contains(QLatin1Char('\t')));
    require(text.contains(found.card) && text.contains(findMicrophone(text, QStringLiteral("00:1A"))));
    require(!found.active || text.contains(*found.active));

    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9._: -]*\\z"));
    const QString word = audiocommands::record(text).mid(31).chopped(16);
    require(plain.match(word).hasMatch() ? word == text : isOneWord(word));
}

/** What the PID file holds: a number, or 0 for everything else. */
inline void pidText(const QByteArray &bytes)
{
    static const QRegularExpression decimal(QStringLiteral("\\A[+-]?[0-9]+\\z"));
    const qlonglong number = decimal.match(latin1Text(bytes).trimmed()).captured().toLongLong();
    require(pidFromText(bytes) == (number == static_cast<int>(number) ? number : 0));
}

/** Bytes and texts of any length and encoding. */
inline void texts(const QByteArray &bytes)
{
    const QByteArray shown = bytes.left(static_cast<int>(qstrnlen(bytes, static_cast<uint>(bytes.size()))));
    require(latin1Text(bytes).toLatin1() == shown);
    require(utf8Text(bytes) == QString::fromUtf8(shown));
    const QString text = QString::fromUtf8(bytes);
    const QByteArray clipped = clippedUtf8(text);
    require(clipped.size() <= 1000 && text.startsWith(QString::fromUtf8(clipped)));
    require(clipped.size() > 996 || clipped == text.toUtf8());
}

/** Any bytes at all are given to one of them. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    TARGET(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
