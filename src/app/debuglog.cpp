// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debuglog.h"

#include "app/regularfile.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

static int s_open = 0;
static int s_level = 0;
static int s_openedOnce = 0;
static FILE *s_file = nullptr;

void debugLogOpen(const char *path, int level)
{
    if (level == 0)
        return;
    s_level = level;
    if (s_openedOnce)
        return;
    s_openedOnce = 1;
    const int descriptor = openRegularFile(path, O_RDWR | O_APPEND | O_CREAT);
    // In /tmp, anybody can prepare a file that others may write into.
    const bool isOurs = getuid() == 0 || ownerOf(descriptor) == getuid();
    if (descriptor >= 0 && isOurs)
        s_file = fdopen(descriptor, "a+");
    if (!s_file) {
        if (descriptor >= 0)
            close(descriptor);
        debugLogClose();
        return;
    }
    s_open = 1;
}

void debugLogClose()
{
    if (!s_open)
        return;
    if (s_file)
        std::fclose(s_file);
    s_file = nullptr;
    s_open = 0;
}

void debugLog(int level, const char *format, ...)
{
    if (!s_open || level != s_level)
        return;

    const time_t seconds = std::time(nullptr);
    const tm *local = std::localtime(&seconds);
    timeval now{};
    gettimeofday(&now, nullptr);

    char line[4096];
    const int prefix = std::snprintf(line, sizeof line, "%02d:%02d:%02d.%04d -(%05d)- ", local->tm_hour,
                                     local->tm_min, local->tm_sec, static_cast<int>(now.tv_usec / 1000),
                                     getpid());
    if (prefix < 0)
        std::abort();
    const size_t room = sizeof line - static_cast<size_t>(prefix) - 1; // for the line feed
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(line + prefix, room, format, arguments);
    va_end(arguments);
    if (length < 0 || static_cast<size_t>(length) >= room)
        std::abort();

    line[prefix + length] = '\n';
    line[prefix + length + 1] = '\0';
    std::fputs(line, s_file);
    std::fflush(s_file);
}
