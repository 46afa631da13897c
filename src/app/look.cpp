// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/look.h"

#include "app/paths.h"
#include "app/regularfile.h"
#include "app/text.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/** What is in the file, nothing when somebody else has put it into a folder that everybody may write to. */
static QByteArray trustedContent(const char *path)
{
    QFile file;
    const int descriptor = openRegularFile(path, O_RDONLY);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    struct stat status { };
    const bool known = fstat(descriptor, &status) == 0;
    return known && (status.st_uid == getuid() || status.st_uid == 0) ? file.readAll() : QByteArray();
}

QString windowStyleSheet()
{
    return latin1Text(trustedContent(paths::styleSheet))
           + QLatin1String("QPushButton:disabled { background-color:#3f3f3f; }");
}
