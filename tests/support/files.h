// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <cstdio>

/** The whole file; nothing when it cannot be read. */
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Writes the file whole, with the folders above it. */
inline bool put(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** Sets one of the program's fixed files aside; whatever lies there in the end goes, and the first one comes
 * back. */
class Aside {
public:
    explicit Aside(const char *path)
        : m_path(QString::fromLatin1(path))
        , m_kept(m_path + QStringLiteral(".aside"))
        , m_madeFolder(QDir().mkdir(QFileInfo(m_path).path()))
    {
        // What an interrupted test has kept is the first one.
        if (QFileInfo(m_kept).exists())
            remove();
        else
            std::rename(qPrintable(m_path), qPrintable(m_kept));
    }
    ~Aside()
    {
        remove();
        std::rename(qPrintable(m_kept), qPrintable(m_path));
        if (m_madeFolder)
            QDir().rmdir(QFileInfo(m_path).path());
    }
    Q_DISABLE_COPY(Aside)

private:
    void remove() const { std::remove(qPrintable(m_path)); }

    QString m_path;
    QString m_kept;
    bool m_madeFolder;
};
