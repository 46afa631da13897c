// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/textfile.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"

#include <QRegularExpression>

#include <cstdlib>
#include <cstring>

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

/** What a tool lists, what a device calls itself, what a file holds: any bytes at all. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QString text = QString::fromUtf8(bytes);

    const AudioProfile profile(text);
    require(profile.sinks >= 0 && profile.sinks <= 9 && profile.sources >= 0 && profile.sources <= 9);
    require(!profile.name.contains(QLatin1Char(':')) || profile.description.isEmpty());
    const CardProfiles found = parseCards(text, QStringLiteral("x"));
    for (const QString &line : found.lines)
        require(text.contains(AudioProfile(line).name) || line.contains(QLatin1Char('\t')));
    require(text.contains(found.active));

    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9._: -]*\\z"));
    const QString word = audiocommands::record(text).mid(31).chopped(16);
    require(plain.match(word).hasMatch() ? word == text : isOneWord(word));

    const int length = static_cast<int>(strnlen(bytes.constData(), size));
    require(latin1Text(bytes).size() == length);
    require(utf8Text(bytes) == QString::fromUtf8(bytes.left(length)));
    return 0;
}
