// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/singleinstance.h"

#include "app/paths.h"
#include "app/textfile.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <unistd.h>

bool anotherInstanceRuns()
{
    QByteArray bytes;
    if (!readFile(paths::pidFile, &bytes))
        return false;
    // Whatever is no number reads as 0, which makes kill() test our own process group: refused on purpose.
    return kill(latin1Text(bytes).toInt(), 0) == 0;
}

void writePidFile()
{
    const QFileInfo info(QString::fromLatin1(paths::pidFile));
    if (info.exists() && !info.isFile())
        return;
    QFile file(info.filePath());
    if (file.open(QIODevice::ReadWrite | QIODevice::Truncate))
        file.write(QString::number(getpid()).toUtf8());
}
