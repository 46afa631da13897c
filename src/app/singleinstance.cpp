// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/singleinstance.h"

#include "app/paths.h"
#include "app/regularfile.h"
#include "app/text.h"

#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

/** A link is refused, since anybody can lay one at that place. */
static bool openPidFile(QFile *file, int flags, QIODevice::OpenMode mode)
{
    const int descriptor = openRegularFile(paths::pidFile, flags | O_NOFOLLOW);
    return descriptor >= 0 && file->open(descriptor, mode, QFileDevice::AutoCloseHandle);
}

int pidFromText(const QByteArray &text) { return latin1Text(text).toInt(); }

bool anotherInstanceRuns()
{
    QFile file;
    if (!openPidFile(&file, O_RDONLY, QIODevice::ReadOnly))
        return false;
    // 0 makes kill() test our own process group: what is no number is refused on purpose.
    return kill(pidFromText(file.readAll()), 0) == 0;
}

void writePidFile()
{
    QFile file;
    // Emptied only once it is known for a regular file.
    if (openPidFile(&file, O_RDWR | O_CREAT, QIODevice::ReadWrite) && file.resize(0))
        file.write(QString::number(getpid()).toUtf8());
}
