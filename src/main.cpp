// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debuglog.h"
#include "app/language.h"
#include "app/paths.h"
#include "app/screenscale.h"
#include "app/singleinstance.h"
#include "mainwindow/pairdesk.h"

#include <BluezQt/InitManagerJob>
#include <BluezQt/Manager>
#include <QApplication>
#include <QDBusConnection>

#include <csignal>
#include <cstdio>
#include <unistd.h>

/** The process' one manager; it lives until the process ends. */
static BluezQt::Manager *s_manager = nullptr;

static void hupSignalHandler(int /*signal*/)
{
    // The agent's prefix is meant.
    debugLog(3, "btagent::hupSignalHandler");
}

static bool catchHangup()
{
    struct sigaction action { };
    action.sa_handler = hupSignalHandler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    return sigaction(SIGHUP, &action, nullptr) == 0;
}

/**
 * Shows the first window. Qt's xcb plugin would load OpenGL for it, which a window of plain widgets never
 * uses and which takes half of the start-up and of the memory. No child process is to inherit the setting.
 */
static void showWithoutOpenGl(QWidget *window)
{
    static const char integration[] = "QT_XCB_GL_INTEGRATION";
    const bool chosenByUser = qEnvironmentVariableIsSet(integration);
    if (!chosenByUser)
        qputenv(integration, "none");
    window->show();
    if (!chosenByUser)
        qunsetenv(integration);
}

int main(int argc, char **argv)
{
    if (anotherInstanceRuns()) {
        std::puts("Another instance is running. Exit.");
        return 0;
    }
    writePidFile();

    // The window has a fixed size in pixels: with larger texts, everything in it has to grow alike.
    const bool scales = desktopScales();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, scales); // Qt 6 cannot but scale
#endif
    using Policy = Qt::HighDpiScaleFactorRoundingPolicy;
    QApplication::setHighDpiScaleFactorRoundingPolicy(scales ? Policy::PassThrough : Policy::Round);
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("pairdesk"));
    speakUsersLanguage();

    s_manager = new BluezQt::Manager;
    // Without a bus the job would never end.
    if (QDBusConnection::systemBus().isConnected())
        s_manager->init()->exec();

    pairdesk window(s_manager, nullptr);
    showWithoutOpenGl(&window);

    if (!catchHangup())
        return 1;
    QApplication::exec();
    unlink(paths::pidFile);
    return window.m_bOk ? 0 : 1;
}
