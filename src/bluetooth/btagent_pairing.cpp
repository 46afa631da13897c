// SPDX-License-Identifier: GPL-3.0-or-later
// The callbacks of the pairing agent: they accept everything before they return.
#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/btagent.h"

#include <BluezQt/Device>
#include <QDebug>

QDBusObjectPath btagent::objectPath() const
{
    debugLog(3, "btagent::objectPath");
    return QDBusObjectPath(QStringLiteral("/kvagent"));
}

void btagent::requestPinCode(BluezQt::DevicePtr device, const BluezQt::Request<QString> &request)
{
    debugLog(3, "btagent::requestPinCode in");
    if (device) {
        debugLog(3, "btagent::requestPinCode dev: %s, address: %s", logPrintable(device->name()),
                 logPrintable(device->address()));
    }
    qDebug() << "requestPinCode address" << device->address();
    this->device = device;
    pinCodeRequested = true;
    request.accept(QString());
    debugLog(3, "btagent::requestPinCode out");
}

void btagent::displayPinCode(BluezQt::DevicePtr device, const QString &pinCode)
{
    debugLog(3, "btagent::displayPinCode in");
    if (device) {
        debugLog(3, "btagent::displayPinCode dev: %s, address: %s, pin: %s", logPrintable(device->name()),
                 logPrintable(device->address()), logPrintable(pinCode));
    }
    qDebug() << "displayPinCode address" << device->address() << ", pin:" << pinCode;
    this->device = device;
    this->pinCode = pinCode;
    Q_EMIT displayPinCodeSlot(pinCode);
    debugLog(3, "btagent::displayPinCode out");
}

void btagent::requestPasskey(BluezQt::DevicePtr device, const BluezQt::Request<quint32> &request)
{
    debugLog(3, "btagent::requestPasskey in");
    if (device) {
        debugLog(3, "btagent::requestPasskey dev: %s, address: %s", logPrintable(device->name()),
                 logPrintable(device->address()));
    }
    qDebug() << "requestPasskey address" << device->address();
    this->device = device;
    passkeyRequested = true;
    request.accept(0);
    debugLog(3, "btagent::requestPasskey out");
}

void btagent::displayPasskey(BluezQt::DevicePtr device, const QString &passkey, const QString &entered)
{
    debugLog(3, "btagent::displayPasskey dev: %s, address: %s, passkey: %s, enterd: %s",
             logPrintable(device->name()), logPrintable(device->address()), logPrintable(passkey),
             logPrintable(entered));
    qDebug() << "displayPasskey address" << device->address() << ", passkey:" << passkey
             << ", entered:" << entered;
    this->device = device;
    this->passkey = passkey;
    enteredPasskey = entered;
    pinCode = passkey;
    Q_EMIT displayPinCodeSlot(passkey);
}

void btagent::requestConfirmation(BluezQt::DevicePtr device, const QString &passkey,
                                  const BluezQt::Request<> &request)
{
    debugLog(3, "btagent::requestConfirmation in");
    if (device) {
        debugLog(3, "btagent::requestConfirmation dev: %s, address: %s, passkey: %s",
                 logPrintable(device->name()), logPrintable(device->address()), logPrintable(passkey));
    }
    qDebug() << "requestConfirmation address" << device->address() << ", passkey:" << passkey;
    this->device = device;
    confirmationPasskey = passkey;
    request.accept();
    debugLog(3, "btagent::requestConfirmation out");
}

void btagent::requestAuthorization(BluezQt::DevicePtr device, const BluezQt::Request<> &request)
{
    debugLog(3, "btagent::requestAuthorization in");
    if (device) {
        debugLog(3, "btagent::requestAuthorization dev: %s, address: %s", logPrintable(device->name()),
                 logPrintable(device->address()));
    }
    qDebug() << "requestAuthorization address" << device->address();
    this->device = device;
    request.accept();
    debugLog(3, "btagent::requestAuthorization out");
}

void btagent::authorizeService(BluezQt::DevicePtr device, const QString &uuid,
                               const BluezQt::Request<> &request)
{
    debugLog(3, "btagent::authorizeService in");
    if (device) {
        // The name of the other request is intentional.
        debugLog(3, "btagent::requestAuthorization dev: %s, address: %s, uuid: %s",
                 logPrintable(device->name()), logPrintable(device->address()), logPrintable(uuid));
    }
    qDebug() << "authorizeService address" << device->address() << ", uuid:" << uuid;
    this->device = device;
    serviceUuid = uuid;
    request.accept();
    debugLog(3, "btagent::authorizeService out");
}

void btagent::cancel()
{
    debugLog(3, "btagent::cancel in");
    qDebug() << "cancel";
    cancelled = true;
    Q_EMIT cancelSignal();
    debugLog(3, "btagent::cancel out");
}

void btagent::release()
{
    debugLog(3, "btagent::release in");
    qDebug() << "release";
    released = true;
    debugLog(3, "btagent::release out");
}
