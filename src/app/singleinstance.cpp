// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/singleinstance.h"

#include "app/paths.h"
#include "app/regularfile.h"
#include "app/text.h"

#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

int pidFromText(const QByteArray &text) { return latin1Text(text).toInt(); }

bool anotherInstanceRuns()
{
    QFile file;
    if (!openRegularFile(&file, paths::pidFile, O_RDONLY, QIODevice::ReadOnly))
        return false;
    // Text that is not a number gives 0, for which kill() tests our own process group: intentionally, such a
    // file refuses every start. Its size is limited, since anybody can put a huge one there.
    return kill(pidFromText(file.read(4096)), 0) == 0;
}

void writePidFile()
{
    QFile file;
    // Truncated only once it is known to be a regular file.
    if (openRegularFile(&file, paths::pidFile, O_RDWR | O_CREAT, QIODevice::ReadWrite) && file.resize(0))
        file.write(QString::number(getpid()).toUtf8());
}
