// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/testbus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
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

TestBus::TestBus()
{
    qputenv("PAIRDESK_DEMO_STATE", m_folder.path().toUtf8());
    qputenv("PAIRDESK_DEMO_SCENE", "--empty"); // for one that the switch starts
    qputenv("XDG_CONFIG_HOME", "/tmp/.config");
    QFile::remove(store);
    start();
}

void TestBus::start()
{
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(DEMO_DIR "/simbluez", { "--empty" });
    QVERIFY(m_daemon.waitForReadyRead(20000)); // it prints a line as soon as it can be used
    waitForDaemon(); // and what is told of the one before has come in: no new manager hears of it
}

void TestBus::kill()
{
    const QByteArray pid = contentOf(path("simbluez.pid"));
    if (contentOf("/proc/" + pid + "/cmdline").contains("simbluez"))
        ::kill(pid.toInt(), SIGKILL);
    m_daemon.waitForFinished();
    for (int i = 0; i < 2000 && QDBusConnection::systemBus().interface()->isServiceRegistered("org.bluez");
         ++i)
        QThread::msleep(10); // its name is not free yet
}

void TestBus::sim(const QString &line)
{
    const auto message = QDBusMessage::createMethodCall("org.bluez", "/", "org.pairdesk.Sim1", "Do") << line;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(message), &m_asked);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [line](QDBusPendingCallWatcher *call) {
        call->setParent(nullptr);
        call->deleteLater();
        if (call->error().name().startsWith("org.pairdesk"))
            QTest::qFail(qPrintable(line + ": " + call->error().message()), __FILE__, __LINE__);
    });
}

void TestBus::waitForDaemon()
{
    const char *peer = "org.freedesktop.DBus.Peer";
    QDBusConnection::systemBus().call(QDBusMessage::createMethodCall("org.bluez", "/", peer, "Ping"));
}
