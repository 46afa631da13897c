// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/testbus.h"

#include <BluezQt/Device>
#include <BluezQt/InitManagerJob>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QtTest>

#include <csignal>

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void put(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), qPrintable(path));
}

TestBus::TestBus(const QString &scene)
    : m_scene(scene)
{
    qputenv("PAIRDESK_DEMO_STATE", m_folder.path().toUtf8());
    qputenv("PAIRDESK_DEMO_SCENE", scene.toUtf8());
    QFile::remove(store());
    start();
}

QString TestBus::store()
{
    // Settings stay where they were looked for first.
    static const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    return folder.filePath("Zemra/pairdesk.conf");
}

TestBus::~TestBus()
{
    m_manager.reset();
    kill();
}

void TestBus::start()
{
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(DEMO_DIR "/simbluez", m_scene.split(' ', Qt::SkipEmptyParts));
    QVERIFY(m_daemon.waitForReadyRead(20000)); // it prints a line as soon as it can be used
    waitForDaemon(); // and what is told of the one before has come in: no new manager hears of it
}

void TestBus::kill()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
    const QByteArray other = contentOf(path("simbluez.pid"));
    if (contentOf("/proc/" + other + "/cmdline").contains("simbluez"))
        ::kill(other.toInt(), SIGKILL);
    for (int i = 0; i < 2000 && QDBusConnection::systemBus().interface()->isServiceRegistered("org.bluez");
         ++i)
        QThread::msleep(10); // its name is not free yet
}

void TestBus::sim(const QString &method, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall("org.bluez", "/", "org.pairdesk.Sim1", method);
    message.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(message), &m_asked);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [method](QDBusPendingCallWatcher *call) {
        call->setParent(nullptr);
        call->deleteLater();
        const QDBusError error = call->error();
        if (error.name().startsWith("org.pairdesk"))
            QTest::qFail(qPrintable(method + ": " + error.message()), __FILE__, __LINE__);
    });
}

void TestBus::waitForDaemon()
{
    const char *peer = "org.freedesktop.DBus.Peer";
    QDBusConnection::systemBus().call(QDBusMessage::createMethodCall("org.bluez", "/", peer, "Ping"));
}

QStringList TestBus::takeCalls()
{
    const QString log = QString::fromUtf8(contentOf(path("calls.log")));
    const QStringList calls = log.split('\n', Qt::SkipEmptyParts).mid(m_looked);
    m_looked += calls.size();
    return calls;
}

void TestBus::scriptTool(const QString &name, const QByteArray &output, int status) const
{
    put(path("tools/" + name + ".out"), output);
    put(path("tools/" + name + ".status"), QByteArray::number(status));
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
    for (const BluezQt::DevicePtr &device : manager()->devices()) {
        if (device->name() == name)
            return device;
    }
    return {};
}
