// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/text.h"

QString utf8Text(const QByteArray &bytes)
{
    return bytes.isEmpty() ? QString() : QString::fromUtf8(bytes.constData());
}

QString latin1Text(const QByteArray &bytes) { return QString::fromLatin1(bytes.constData()); }

QByteArray clippedUtf8(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    int end = 1000;
    if (bytes.size() > end) {
        while ((bytes[end] & 0xc0) == 0x80) // a continuation byte
            --end;
        bytes.truncate(end);
    }
    return bytes;
}
