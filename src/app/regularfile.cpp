// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/regularfile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

int openRegularFile(const char *path, int flags)
{
    // Opened first and examined afterwards, so that nobody swaps the file in between.
    const int descriptor = ::open(path, flags | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
    struct stat status { };
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    ::close(descriptor);
    return -1;
}

uid_t ownerOf(int descriptor)
{
    struct stat status { };
    return fstat(descriptor, &status) == 0 ? status.st_uid : static_cast<uid_t>(-1);
}

bool openRegularFile(QFile *file, const char *path, int flags, QIODevice::OpenMode mode)
{
    const int descriptor = openRegularFile(path, flags);
    if (descriptor < 0)
        return false;
    if (file->open(descriptor, mode, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}
