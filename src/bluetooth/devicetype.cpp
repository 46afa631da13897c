// SPDX-License-Identifier: GPL-3.0-or-later
#include "bluetooth/devicetype.h"

#include <QCoreApplication>

/** All the words of the library, so that lupdate finds them. */
[[maybe_unused]] static const char *const s_words[] = {
    QT_TRANSLATE_NOOP("DeviceType", "phone"),      QT_TRANSLATE_NOOP("DeviceType", "modem"),
    QT_TRANSLATE_NOOP("DeviceType", "computer"),   QT_TRANSLATE_NOOP("DeviceType", "network"),
    QT_TRANSLATE_NOOP("DeviceType", "headset"),    QT_TRANSLATE_NOOP("DeviceType", "headphones"),
    QT_TRANSLATE_NOOP("DeviceType", "audiovideo"), QT_TRANSLATE_NOOP("DeviceType", "keyboard"),
    QT_TRANSLATE_NOOP("DeviceType", "mouse"),      QT_TRANSLATE_NOOP("DeviceType", "joypad"),
    QT_TRANSLATE_NOOP("DeviceType", "tablet"),     QT_TRANSLATE_NOOP("DeviceType", "peripheral"),
    QT_TRANSLATE_NOOP("DeviceType", "camera"),     QT_TRANSLATE_NOOP("DeviceType", "printer"),
    QT_TRANSLATE_NOOP("DeviceType", "imaging"),    QT_TRANSLATE_NOOP("DeviceType", "wearable"),
    QT_TRANSLATE_NOOP("DeviceType", "toy"),        QT_TRANSLATE_NOOP("DeviceType", "health"),
};

QString deviceTypeText(BluezQt::Device::Type type)
{
    return QCoreApplication::translate("DeviceType", qUtf8Printable(BluezQt::Device::typeToString(type)));
}
