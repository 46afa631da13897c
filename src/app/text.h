// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/** The bytes up to the first NUL, read as UTF-8; a null string for no bytes at all. */
QString utf8Text(const QByteArray &bytes);

/** The bytes up to the first NUL, read as Latin-1. */
QString latin1Text(const QByteArray &bytes);

/** The text in UTF-8, cut at a character's boundary to at most 1,000 bytes. */
QByteArray clippedUtf8(const QString &text);

/** A text for "%s" in a trace line, as qUtf8Printable() gives it, but never so long that a line overflows. */
#define logPrintable(text) clippedUtf8(text).constData()
