// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes: as what tools list, what a sound server calls its things, what a PID file holds, as a text.
#include "app/singleinstance.h"
#include "app/text.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"

#include <QRegularExpression>

extern "C" int LLVMFuzzerTestOneInput(const char *data, size_t size)
{
    const QByteArray bytes(data, static_cast<int>(size));
    const QString text = QString::fromUtf8(bytes);
    const AudioProfile profile(text);
    Q_ASSERT(profile.sinks >= 0 && profile.sinks <= 9 && profile.sources >= 0 && profile.sources <= 9);
    const CardProfiles found = parseCards(text, "x", "00:1A");
    const QStringList names = { found.card, found.active.value_or(""), findMicrophone(text, "00:1A") };
    for (const QString &part : found.lines + names)
        Q_ASSERT(text.contains(part));
    // What sh reads as a single word: a plain text, or nothing but quoted pieces and quotes between them.
    static const QRegularExpression word("\\A(?:([A-Za-z0-9._: -]*)|((?:'[^']*'|\\\\')+))\\z");
    const auto given = word.match(audiocommands::record(text).mid(31).chopped(16));
    Q_ASSERT(given.hasMatch() && (!given.captured(2).isEmpty() || given.captured(1) == text));

    static const QRegularExpression decimal("\\A[+-]?[0-9]+\\z");
    const qlonglong number = decimal.match(latin1Text(bytes).trimmed()).captured().toLongLong();
    Q_ASSERT(pidFromText(bytes) == (number == static_cast<int>(number) ? number : 0));
    Q_ASSERT(latin1Text(bytes).toLatin1() == bytes.constData() && utf8Text(bytes) == bytes.constData());
    const QByteArray clipped = clippedUtf8(text);
    Q_ASSERT(clipped.size() <= 1000 && text.startsWith(clipped) && (clipped.size() > 996 || text == clipped));
    return 0;
}
