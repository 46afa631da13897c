// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/application.h"

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
#include <QPixmapCache>

#include <csignal>
#include <cstdio>
#include <memory>
#include <unistd.h>

/** The only manager; it lives until the process ends. */
static BluezQt::Manager *s_manager = nullptr;

static void hupSignalHandler(int /*signal*/)
{
    // The agent's prefix is intentional.
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
 * Shows the first window. The xcb plugin of Qt 5 would load OpenGL for it, which plain widgets never use and
 * which takes half of the start-up time and of the memory; that of Qt 6 does so only for windows that use it.
 * Child processes do not inherit the setting.
 */
static void showWithoutOpenGl(QWidget *window)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    static const char integration[] = "QT_XCB_GL_INTEGRATION";
    const bool chosenByUser = qEnvironmentVariableIsSet(integration);
    if (!chosenByUser)
        qputenv(integration, "none");
    window->show();
    if (!chosenByUser)
        qunsetenv(integration);
#else
    window->show();
#endif
}

/** The windows have fixed sizes in pixels: where texts are larger, everything is scaled. */
static std::unique_ptr<QApplication> createApplication(int &argc, char **argv)
{
    const ScreenScale scale;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, scale.isLarge()); // always on in Qt 6
#endif
    using Policy = Qt::HighDpiScaleFactorRoundingPolicy;
    QApplication::setHighDpiScaleFactorRoundingPolicy(scale.isLarge() ? Policy::PassThrough : Policy::Round);
    return std::make_unique<QApplication>(argc, argv);
}

int runApplication(int argc, char **argv)
{
    if (anotherInstanceRuns()) {
        std::puts("Another instance is running. Exit.");
        return 0;
    }
    writePidFile();

    const std::unique_ptr<QApplication> application = createApplication(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("pairdesk"));
    installTranslators();
    // A style sheet gives each window a palette of its own, for which the style caches its pixmaps anew: with
    // every dialog the cache would grow, to 10 MiB. This many KiB hold what is open at a time.
    QPixmapCache::setCacheLimit(1024);

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
