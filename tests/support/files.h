// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>

static constexpr char settingsFile[] = "/tmp/.config/Zemra/pairdesk.conf";

/** The whole file; nothing when it cannot be read. */
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Writes the file whole, with the folders above it. */
inline void put(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
}
