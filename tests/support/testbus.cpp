// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <BluezQt/InitManagerJob>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QtTest>

static QDBusMessage call(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.bluez"), QStringLiteral("/"),
                                                          QStringLiteral("org.pairdesk.Sim1"), method);
    message.setArguments(arguments);
    return message;
}

TestBus::TestBus(const QString &scene)
    : m_scene(scene)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("tools"));
    qputenv("PAIRDESK_DEMO_STATE", m_folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", path(QStringLiteral("config")).toUtf8());
    if (!qgetenv("PATH").startsWith(DEMO_DIR))
        qputenv("PATH", DEMO_DIR "/bin:" + qgetenv("PATH"));
    start();
}

TestBus::~TestBus()
{
    m_manager.reset();
    kill();
}

void TestBus::start()
{
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(QStringLiteral(DEMO_DIR "/simbluez"), m_scene.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    auto *bus = QDBusConnection::systemBus().interface();
    QTRY_VERIFY(bus->isServiceRegistered(QStringLiteral("org.bluez")).value());
}

void TestBus::kill()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QVariant TestBus::sim(const QString &method, const QVariantList &arguments)
{
    const QDBusMessage answer = QDBusConnection::systemBus().call(call(method, arguments));
    if (answer.type() != QDBusMessage::ReplyMessage)
        QTest::qFail(qPrintable(method + QStringLiteral(": ") + answer.errorMessage()), __FILE__, __LINE__);
    return answer.arguments().value(0);
}

QDBusPendingCall TestBus::simLater(const QString &method, const QVariantList &arguments)
{
    return QDBusConnection::systemBus().asyncCall(call(method, arguments));
}

QString TestBus::addDevice(const QString &name, const QVariantMap &properties, const QVariantMap &how)
{
    const QString address = QStringLiteral("00:1A:7D:30:00:%1").arg(++m_added, 2, 10, QLatin1Char('0'));
    QVariantMap all = properties;
    all[QStringLiteral("Name")] = name;
    all[QStringLiteral("Address")] = address;
    sim(QStringLiteral("AddDevice"), { QStringLiteral("hci0"), all });
    sim(QStringLiteral("SetBehaviour"), { address, how });
    return address;
}

QStringList TestBus::takeCalls()
{
    const QStringList calls = sim(QStringLiteral("Calls")).toStringList();
    sim(QStringLiteral("ClearCalls"));
    return calls;
}

QStringList TestBus::toolCalls() const
{
    QFile file(path(QStringLiteral("tools.log")));
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void TestBus::scriptTool(const QString &name, const QByteArray &output, int status) const
{
    QFile out(path(QStringLiteral("tools/%1.out").arg(name)));
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(output) == output.size());
    QFile exit(path(QStringLiteral("tools/%1.status").arg(name)));
    QVERIFY(exit.open(QIODevice::WriteOnly) && exit.write(QByteArray::number(status)) > 0);
}

BluezQt::Manager *TestBus::manager()
{
    if (!m_manager) {
        m_manager = std::make_unique<BluezQt::Manager>();
        m_manager->init()->exec();
    }
    return m_manager.get();
}

BluezQt::DevicePtr TestBus::device(const QString &name)
{
    const QList<BluezQt::DevicePtr> devices = manager()->devices();
    for (const BluezQt::DevicePtr &device : devices) {
        if (device->name() == name)
            return device;
    }
    return {};
}

bool TestBus::hasAnswered(const QString &name)
{
    return device(name)->findChildren<BluezQt::PendingCall *>().isEmpty();
}
