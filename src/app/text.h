// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/** The bytes up to the first NUL, read as UTF-8; a null string for no bytes at all. */
QString utf8Text(const QByteArray &bytes);

/** The bytes up to the first NUL, read as Latin-1. */
QString latin1Text(const QByteArray &bytes);

/** The text in UTF-8, truncated at a character boundary to at most 1,000 bytes. */
QByteArray clippedUtf8(const QString &text);

/** Like qUtf8Printable(), for "%s" in a trace line, but never so long that the line overflows. */
#define logPrintable(text) clippedUtf8(text).constData()
