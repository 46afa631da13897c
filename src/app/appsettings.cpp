// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/appsettings.h"

#include <QSettings>

static const QLatin1String organization("Zemra");
static const QLatin1String application("pairdesk");

static const QLatin1String enabledKey("enabled");
static const QLatin1String showTrayIconKey("showtrayicon");
static const QLatin1String debugKey("debug");
static const QLatin1String audioProfileKey("audioprofile");

int AppSettings::load()
{
    const QSettings store(organization, application);
    enabled = store.value(enabledKey).toBool();
    showTrayIcon = store.value(showTrayIconKey).toBool();
    debug = store.value(debugKey).toBool();
    audioProfile = store.value(audioProfileKey).toString();
    return 0;
}

int AppSettings::save()
{
    QSettings store(organization, application);
    store.setValue(enabledKey, enabled);
    store.setValue(showTrayIconKey, showTrayIcon);
    store.setValue(debugKey, debug);
    store.setValue(audioProfileKey, audioProfile);
    return 0;
}
