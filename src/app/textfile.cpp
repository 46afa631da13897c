// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/textfile.h"

#include "app/paths.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QString utf8Text(const QByteArray &bytes)
{
    return bytes.isEmpty() ? QString() : QString::fromUtf8(bytes.constData());
}

QString latin1Text(const QByteArray &bytes) { return QString::fromLatin1(bytes.constData()); }

int openRegularFile(const char *path, int flags)
{
    // Opened first and examined afterwards, so that nobody swaps the file in between.
    const int descriptor = ::open(path, flags | O_NONBLOCK | O_CLOEXEC, 0666);
    struct stat status { };
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    ::close(descriptor);
    return -1;
}

bool readTrustedFile(const char *path, QByteArray *bytes)
{
    QFile file;
    const int descriptor = openRegularFile(path, O_RDONLY);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return false;
    struct stat status { };
    if (fstat(descriptor, &status) != 0 || (status.st_uid != getuid() && status.st_uid != 0))
        return false;
    *bytes = file.readAll();
    return true;
}

const char disabledButtonRule[] = "QPushButton:disabled { background-color:#3f3f3f; }";

QString userStyleSheet()
{
    QByteArray bytes;
    readTrustedFile(paths::styleSheet, &bytes); // it lies in a folder that everybody may write to
    return latin1Text(bytes);
}
