// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"

#include <QSettings>

static const char organization[] = "Zemra";
static const char application[] = "pairdesk";

AppSettings::AppSettings()
    : enabled(false)
    , showTrayIcon(false)
    , debug(false)
    , audioProfile(QStringLiteral("A2DP"))
{
}

int AppSettings::load()
{
    const QSettings store(organization, application);
    enabled = store.value("enabled").toBool();
    showTrayIcon = store.value("showtrayicon").toBool();
    debug = store.value("debug").toBool();
    audioProfile = store.value("audioprofile").toString();
    return 0;
}

int AppSettings::save()
{
    QSettings store(organization, application);
    store.setValue("enabled", enabled);
    store.setValue("showtrayicon", showTrayIcon);
    store.setValue("debug", debug);
    store.setValue("audioprofile", audioProfile);
    return 0;
}
