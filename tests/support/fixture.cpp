// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/fixture.h"

#include "app/debuglog.h"

#include <BluezQt/InitManagerJob>
#include <QtTest>
#include <QtWidgets>

static QtMessageHandler s_otherHandler = nullptr;

/** The debug stream goes into the log. A slot that Qt does not find would otherwise be noticed by nobody. */
static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool isMistyped = text.contains("No matching signal") || text.contains("No such");
    if (type == QtDebugMsg)
        debugLog(3, ">%s", qUtf8Printable(text.left(900)));
    else if (isMistyped && !text.contains("on_onoff_clicked"))
        qFatal("%s", qUtf8Printable(text));
    else
        s_otherHandler(type, context, text);
}

Fixture::Fixture()
{
    QApplication::setFont(QFont(QFont().family(), 10)); // a size that desktops have
    QApplication::setQuitOnLastWindowClosed(false); // which would end the event loops of the next fixture
    manager.init()->exec();
    s_otherHandler = qInstallMessageHandler(handleMessage);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, [this] { m_idleTurns = isAsking() ? 0 : m_idleTurns + 1; });

    for (const QString name : { "device", "set", "name", "alias", "behaviour", "resume", "remove", "adapter",
                                "strangers", "gone", "agent" })
        verb(name, [=](const QString &object) { sim(name + ' ' + object); });
    verb("open", [this](const QString &) {
        window = std::make_unique<pairdesk>(&manager, nullptr);
        agent = window->findChild<btagent *>();
        table = window->findChild<QTableWidget *>("devices");
        window->show();
    });
    verb("file", [=](const QString &object) {
        put(path(object.section(' ', 0, 0)),
            object.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t").toUtf8());
    });
    verb("devices", [=](const QString &count) { return manager.devices().size() == count.toInt(); });
    verb("kill", [=](const QString &) { kill(); });
    verb("start", [=](const QString &) { start(); });
    verb("operational", [=](const QString &on) { return manager.isOperational() == (on == "on"); });
    verb("switch",
         [=](const QString &) { QTest::mousePress(window->findChild<QWidget *>("pushme"), Qt::LeftButton); });
}

Fixture::~Fixture()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    window.reset();
    qInstallMessageHandler(s_otherHandler);
}

BluezQt::DevicePtr Fixture::device(const QString &name) const
{
    for (const BluezQt::DevicePtr &device : manager.devices()) {
        if (device->name() == name)
            return device;
    }
    return {};
}

bool Fixture::isOver(const QString & /*step*/, QString * /*why*/)
{
    if (!m_turn.isActive())
        m_turn.start(0); // BluezQt tells of a change only in the next turn of the loop
    return m_idleTurns >= 2 && (m_idleTurns = 0, true);
}
