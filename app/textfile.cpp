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

bool readFile(const char *path, QByteArray *bytes, Owner owner)
{
    // Opened first and examined afterwards, so that nobody swaps the file in between.
    const int descriptor = ::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;

    struct stat status { };
    const bool regular = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    const bool trusted = owner == Owner::Anyone || status.st_uid == getuid() || status.st_uid == 0;
    QFile file;
    if (!regular || !trusted || !file.open(descriptor, QIODevice::ReadOnly)) {
        ::close(descriptor);
        return false;
    }
    *bytes = file.readAll();
    file.close();
    ::close(descriptor);
    return true;
}

QString styleSheetText()
{
    QByteArray bytes;
    // The file lies in a folder that everybody may write to.
    readFile(paths::styleSheet, &bytes, Owner::UserOrRoot);
    return latin1Text(bytes) + QStringLiteral("QPushButton:disabled { background-color:#3f3f3f; }");
}
