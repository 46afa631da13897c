// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/run.h"

#include "app/debuglog.h"
#include "tests/support/files.h"
#include "tests/support/layout.h"

#include <BluezQt/InitManagerJob>
#include <QtDBus>
#include <QtTest>
#include <QtWidgets>

#include <csignal>
#include <unistd.h>

static QtMessageHandler s_otherHandler = nullptr;

/** The debug stream goes into the log. A slot that Qt does not find would otherwise be noticed by nobody. */
static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool isMistyped = text.contains("No matching signal") || text.contains("No such");
    if (type == QtDebugMsg)
        debugLog(3, ">%s", qUtf8Printable(text.left(900)));
    else if (isMistyped && !text.contains("on_onoff_clicked"))
        qFatal("%s", qUtf8Printable(text));
    else if (type != QtWarningMsg)
        s_otherHandler(type, context, text);
}

/** Blocks until the daemon has done what it was asked for and has told so. */
static void waitForDaemon()
{
    const char *peer = "org.freedesktop.DBus.Peer";
    QDBusConnection::systemBus().call(QDBusMessage::createMethodCall("org.bluez", "/", peer, "Ping"));
}

/** A file of this name in the folder of the daemon; "tools/" tells the stand-ins what to say. */
static QString path(const QString &name)
{
    return QDir(qEnvironmentVariable("PAIRDESK_DEMO_STATE")).absoluteFilePath(name);
}

Run::Run(QList<Step> steps, bool withLog)
    : User(steps << Step{ "leave", "end" } << Step{ "quit", "end" })
{
    const bool isSmall = qgetenv("QT_FONT_DPI") == "100"; // usual sizes: 10 points at 96 dpi, 9 points at 100
    QApplication::setFont(QFont(QFont().family(), isSmall ? 9 : 10));
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmapCache::setCacheLimit(1024); // as the program does
    s_otherHandler = qInstallMessageHandler(handleMessage);
    qputenv("PROGRAM", QApplication::applicationFilePath().toUtf8());
    // A process that nobody may signal could not look into a closed build folder either.
    const char *nobody = "setpriv --reuid=65534 --inh-caps=+dac_override --ambient-caps=+dac_override";
    qputenv("NOBODY", geteuid() == 0 ? nobody : "");
    startDaemon();
    m_manager.init()->exec();
    if (withLog)
        debugLogOpen("/tmp/log", 3);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, [this] { m_idleTurns = m_asked ? 0 : m_idleTurns + 1; });
    addDaemonVerbs();
    addProgramVerbs();
    addAgentVerbs();
    addMeasuringVerbs();
    verb("->", [this](const QString &effects) { return compare(effects); });
    verb("quit", &QApplication::quit);
}

Run::~Run()
{
    m_window.reset();
    killDaemon();
    qInstallMessageHandler(s_otherHandler);
}

bool Run::isSettled()
{
    if (!m_turn.isActive())
        m_turn.start(0); // BluezQt tells of a change only in the next turn of the loop
    return m_idleTurns >= 2 && (m_idleTurns = 0, true);
}

void Run::addDaemonVerbs()
{
    for (const QString name : { "device", "set", "name", "alias", "behaviour", "resume", "remove", "adapter",
                                "strangers", "gone", "agent" })
        verb(name, [=](const QString &object) { sim(name + ' ' + object); });
    verb("long", [this](const QString &name) { // "name LETTERS": a device whose name is that long
        sim("name " + QString(name.section(' ', 1).toInt(), 'x'));
    });
    verb("devices", [this](const QString &count) { return m_manager.devices().size() == count.toInt(); });
    verb("start", [this] { startDaemon(); });
    verb("kill", [this] { killDaemon(); });
    verb("operational", [this](const QString &on) { return m_manager.isOperational() == (on == "on"); });
    verb("block", [this](const QString &on) { emit m_manager.bluetoothBlockedChanged(on == "on"); });
    verb("drop", [this](const QString &name) { device(name)->disconnectFromDevice(); });
    // One answer arrives while the program reports the other.
    connect(&m_between, &QTimer::timeout, this, [this] {
        if (!device("Cans")->isConnected())
            return;
        m_between.stop();
        sim("resume Cans");
        waitForDaemon();
    });
    verb("between", [this] { m_between.start(0); });
    verb("stop", [](const QString & /*bus*/) {
        ::kill(int(QDBusConnection::systemBus().interface()->servicePid("org.freedesktop.DBus")), SIGKILL);
    });
    verb("disconnected", [] { return !QDBusConnection::systemBus().isConnected(); });
}

void Run::addProgramVerbs()
{
    verb("file", [](const QString &object) {
        put(path(object.section(' ', 0, 0)),
            object.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t").toUtf8());
    });
    verb("cards", [](const QString &active) {
        put(path("tools/pactl-list-cards.out"),
            contentOf(TEST_DATA "/pactl/pipewire-cards.txt")
                .replace("Profile: audio-gateway", "Profile: " + active.toUtf8()));
    });
    verb("sh", [this](const QString &command) { shell(command); });
    verb("run", [this](const QString &object) { // STEPS [with ENVIRONMENT]
        shell(QString("env PAIRDESK_TEST_STEPS='%1' %2 \"$PROGRAM\"; echo exits with $?")
                  .arg(object.section(" with ", 0, 0), object.section(" with ", 1)));
    });
    verb("open", [this] {
        m_window = std::make_unique<pairdesk>(&m_manager, nullptr);
        m_agent = m_window->findChild<btagent *>();
        m_window->show();
    });
    verb("switch", [this] { QTest::mousePress(m_window->findChild<QWidget *>("pushme"), Qt::LeftButton); });
    verb("refill", [this] { QMetaObject::invokeMethod(m_window.get(), "onPopupateTable"); });
    // A window that the user closes is no effect.
    verb("close", [this](const QString &name) {
        const QString window = describeWindow(front());
        return User::close(name) && (m_before.windows.removeOne(window), true);
    });
    verb("accept", [] { // the newest PIN, which is not modal
        const QWidget *pin = front()->findChildren<QDialog *>("Pin").last();
        pin->findChild<QPushButton *>()->click();
    });
    verb("leave", [] { // closes what runs an event loop of its own
        return QThread::currentThread()->loopLevel() == 1 || (front()->close(), false);
    });
    verb("watch", [this](const QString &group) { m_watched += group; });
}

void Run::addAgentVerbs()
{
    verb("pairDevice", [this](const QString &address) { m_agent->pairDevice(address); });
    verb("connectDevice", [this](const QString &address) { m_agent->connectDevice(address); });
    verb("disconnectDevice", [this](const QString &address) { m_agent->disconnectDevice(address); });
    verb("removeDevice", [this](const QString &address) { m_agent->removeDevice(address); });
    verb("scanDevices", [this] { m_agent->scanDevices(); });
    verb("stopScan", [this] { m_agent->stopScan(); });
    verb("onCallFinished", [this] { m_agent->onCallFinished(nullptr); });
    verb("onAdapterRemoved", [this] { m_agent->onAdapterRemoved(); });
    verb("forget", [this] { m_agent->device.clear(); }); // as when another device comes in
}

/** How many connections begin at the object's signals. */
static int connections(const QObject *object)
{
    struct Opened : QObject {
        using QObject::receivers;
    };
    const QMetaObject *type = object->metaObject();
    int count = 0;
    for (int index = 0; index < type->methodCount(); ++index) {
        if (type->method(index).methodType() == QMetaMethod::Signal)
            count += (object->*&Opened::receivers)("2" + type->method(index).methodSignature());
    }
    return count;
}

void Run::addMeasuringVerbs()
{
    verb("in", [](const QString &language) {
        auto *translator = new QTranslator(qApp);
        return translator->load(":/translations/pairdesk_" + language)
               && QApplication::installTranslator(translator);
    });
    verb("fits", [this](const QString &expected) { // "WINDOW WIDTHxHEIGHT [fixed]"
        QStringList found;
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            const QString size = QString(" %1x%2").arg(window->width()).arg(window->height());
            const bool isFixed = window->minimumSize() == window->maximumSize();
            if (window->isVisible() && window->objectName() == expected.section(' ', 0, 0))
                found += misfits(window) << window->objectName() + size + (isFixed ? " fixed" : "");
        }
        m_why = found.join('\n');
        return m_why == expected;
    });
    verb("answered", [this](const QString &name) {
        return device(name)->findChildren<BluezQt::PendingCall *>().isEmpty();
    });
    verb("measure", [this] { // what outlives the dialogs
        const int before = m_connections, kibibytes = m_kibibytes;
        m_connections = connections(&m_manager) + connections(m_agent) + connections(device("Cans").data())
                        + connections(m_manager.adapters().first().data())
                        + QApplication::topLevelWidgets().size();
        m_kibibytes = contentOf("/proc/self/statm").split(' ').value(1).toInt() * 4;
        printf("%d KiB\n", m_kibibytes);
        if (before >= 0 && m_connections != before)
            note(QString("%1 more connections").arg(m_connections - before));
        if (before >= 0 && m_kibibytes >= 1.05 * kibibytes)
            note(QString("%1 KiB instead of %2").arg(m_kibibytes).arg(kibibytes));
    });
}

void Run::startDaemon()
{
    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(DEMO_DIR "/simbluez", { "--empty" });
    if (!m_daemon.waitForReadyRead(20000)) // it prints a line as soon as it can be used
        fail("the daemon does not start");
    waitForDaemon(); // and what is told of the one before has come in: no new manager hears of it
}

void Run::killDaemon()
{
    const QByteArray pid = contentOf(path("simbluez.pid"));
    if (contentOf("/proc/" + pid + "/cmdline").contains("simbluez"))
        ::kill(pid.toInt(), SIGKILL);
    m_daemon.waitForFinished();
    for (int i = 0; i < 2000 && QDBusConnection::systemBus().interface()->isServiceRegistered("org.bluez");
         ++i)
        QThread::msleep(10); // its name is not free yet
}

void Run::sim(const QString &line)
{
    const auto message = QDBusMessage::createMethodCall("org.bluez", "/", "org.pairdesk.Sim1", "Do") << line;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(message), this);
    ++m_asked;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        --m_asked;
        call->deleteLater();
        if (call->error().name().startsWith("org.pairdesk"))
            fail(call->error().message());
    });
}

BluezQt::DevicePtr Run::device(const QString &name) const
{
    for (const BluezQt::DevicePtr &device : m_manager.devices()) {
        if (device->name() == name)
            return device;
    }
    return {};
}

void Run::note(const QString &text)
{
    QFile file(path("calls.log"));
    file.open(QIODevice::Append);
    file.write(text.toUtf8() + '\n');
}

void Run::shell(const QString &command)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start("sh", { "-c", command });
    process.waitForFinished();
    m_called += calls().size();
    note(process.readAllStandardOutput().trimmed());
}

/** The calls of BlueZ and of the tools since the last line, with devices by name. */
QStringList Run::calls()
{
    QStringList calls =
        QString::fromUtf8(contentOf(path("calls.log"))).split('\n', Qt::SkipEmptyParts).mid(m_called);
    for (const BluezQt::DevicePtr &device : m_manager.devices())
        m_names[device->address()] = device->name();
    for (QString &call : calls) {
        if (!call.startsWith("BlueZ: "))
            continue;
        call.remove(0, 7);
        for (auto name = m_names.begin(); name != m_names.end(); ++name)
            call.replace(name.key(), *name);
    }
    return calls;
}

/** Lets what the program has put off happen now, and notes for how long it was put off. */
bool Run::fireTimer()
{
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    for (QObject *child : dispatcher->children()) {
        const auto timers = dispatcher->registeredTimers(child);
        if (!child->inherits("QSingleShotTimer") || timers.isEmpty() || timers.first().interval < 100)
            continue;
        note(QString("after %1 ms").arg(timers.first().interval));
        QTimerEvent event(timers.first().timerId);
        QApplication::sendEvent(child, &event);
        return true;
    }
    return false;
}

State Run::current() const
{
    State state = State::current();
    if (m_window && !m_window->isVisible())
        state.values[": not left"] = m_window->m_bOk ? "left with OK" : "left";
    const QWidget *focus = QApplication::focusWidget();
    if (m_watched.contains("focus"))
        state.values["focus: none"] = focus ? focus->objectName() : "none";
    if (m_watched.contains("agent")) {
        const QMap<QString, QString> kept = {
            { "device", m_agent->device ? m_agent->device->name() : QString() },
            { "pinCode", m_agent->pinCode },
            { "passkey", m_agent->passkey },
            { "entered", m_agent->enteredPasskey },
            { "confirmation", m_agent->confirmationPasskey },
            { "service", m_agent->serviceUuid },
            { "pinCodeRequested", m_agent->pinCodeRequested ? "yes" : "" },
            { "passkeyRequested", m_agent->passkeyRequested ? "yes" : "" },
            { "cancelled", m_agent->cancelled ? "yes" : "" },
            { "released", m_agent->released ? "yes" : "" },
        };
        for (auto field = kept.begin(); field != kept.end(); ++field)
            state.values["agent: " + field.key() + '='] = field.key() + '=' + *field;
    }
    return state;
}

/** With Qt 6 the manager keeps devices in another order, and so do the tables. */
static QString comparable(const QString &effect)
{
    if (QT_VERSION_MAJOR == 5 || !effect.contains(" rows: "))
        return effect;
    QStringList rows = effect.section(": ", 1).split(", ");
    rows.sort();
    return effect.section(": ", 0, 0) + ": " + rows.join(", ");
}

/** Whether the line before has changed this: calls in their order, the rest in any. */
bool Run::compare(const QString &effects)
{
    waitForDaemon();
    const QStringList called = calls();
    if (!m_quiet.isValid() || called.size() != m_noted) {
        m_quiet.start();
        m_noted = called.size();
    }
    if (!m_quiet.hasExpired(50) || fireTimer()) // the daemon answers some calls after 20 ms
        return false;
    const State state = current();
    const QStringList changes = state.changesSince(m_before);
    QStringList missing = effects.split("; ", Qt::SkipEmptyParts), unexpected;
    for (const QString &effect : changes) {
        const auto equal = [&](const QString &other) { return comparable(other) == comparable(effect); };
        const auto found = std::find_if(missing.begin(), missing.end(), equal);
        if (found == missing.end())
            unexpected += effect;
        else
            missing.erase(found);
    }
    if (effects != "..." && (missing != called || !unexpected.isEmpty())) {
        m_why = "found: " + (called + changes).join("; ");
        return false;
    }
    m_quiet.invalidate();
    m_before = state;
    m_called += called.size();
    m_noted = 0;
    return true;
}
