// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/singleinstance.h"
#include "app/textfile.h"
#include "dialogs/audiocommands.h"
#include "dialogs/audioprofile.h"

#include <QRegularExpression>

#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

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
    const CardProfiles found = parseCards(text, QStringLiteral("x"));
    for (const QString &line : found.lines)
        require(text.contains(AudioProfile(line).name) || line.contains(QLatin1Char('\t')));
    require(text.contains(found.active));

    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9._: -]*\\z"));
    const QString word = audiocommands::record(text).mid(31).chopped(16);
    require(plain.match(word).hasMatch() ? word == text : isOneWord(word));
}

/** What the PID file holds: a number, or 0 for everything else. */
inline void pidText(const QByteArray &bytes)
{
    static const QRegularExpression decimal(QStringLiteral("\\A[+-]?[0-9]+\\z"));
    const qlonglong number = decimal.match(latin1Text(bytes).trimmed()).captured().toLongLong();
    require(processId(bytes) == (number == static_cast<int>(number) ? number : 0));
}

/** What lies in the style sheet's place. */
inline void styleSheet(const QByteArray &bytes)
{
    const int file = memfd_create("sheet", 0);
    require(write(file, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size());
    QByteArray content;
    require(readTrustedFile(QByteArray("/proc/self/fd/" + QByteArray::number(file)).constData(), &content));
    close(file);
    require(content == bytes);
    const QByteArray shown = bytes.left(static_cast<int>(qstrnlen(bytes, static_cast<uint>(bytes.size()))));
    require(latin1Text(content).toLatin1() == shown);
    require(utf8Text(content) == QString::fromUtf8(shown));
}

/** Any bytes at all are given to one of them. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    TARGET(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
