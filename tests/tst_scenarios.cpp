// SPDX-License-Identifier: GPL-3.0-or-later
// tst_scenarios FILE: names the scenarios of scenarios/FILE.scenario. tst_scenarios FILE TITLE [log]:
// performs one of them, with the debug log closed or open. HACKING.md tells how they are written.
#include "app/application.h"
#include "app/debuglog.h"
#include "app/paths.h"
#include "bluetooth/btagent.h"
#include "mainwindow/pairdesk.h"
#include "tests/support/files.h"
#include "tests/support/measure.h"
#include "tests/support/scenario.h"
#include "tests/support/state.h"
#include "tests/support/tracecontract.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <BluezQt/InitManagerJob>
#include <BluezQt/Manager>
#include <QtDBus>
#include <QtTest>
#include <QtWidgets>

#include <csignal>
#include <memory>
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
static QString path(const QString &name) { return QDir("/tmp/demo").absoluteFilePath(name); }

/** With Qt 6 the manager keeps devices in another order, and so do the tables. */
static QString comparable(const QString &effect)
{
    if (QT_VERSION_MAJOR == 5 || !effect.contains(" rows: "))
        return effect;
    QStringList rows = effect.section(": ", 1).split(", ");
    rows.sort();
    return effect.section(": ", 0, 0) + ": " + rows.join(", ");
}

/**
 * Performs a scenario: with a simulated daemon, a manager, and, once it is opened, the main window. The step
 * "-> EFFECTS" compares what has changed since the one before.
 */
class Run : public User {
public:
    Run(QList<Step> steps, bool withLog)
        : User(steps << Step{ "leave", "end" } << Step{ "quit", "end" })
    {
        // Usual sizes: 10 points at 96 dpi, 9 points at 100 dpi.
        QApplication::setFont(QFont(QFont().family(), qgetenv("QT_FONT_DPI") == "100" ? 9 : 10));
        QApplication::setQuitOnLastWindowClosed(false);
        QPixmapCache::setCacheLimit(1024); // as the program does
        s_otherHandler = qInstallMessageHandler(handleMessage);
        qputenv("PROGRAM", QApplication::applicationFilePath().toUtf8());
        // A process that nobody may signal could not look into a closed build folder either.
        const char *nobody = "setpriv --reuid=65534 --inh-caps=+dac_override --ambient-caps=+dac_override";
        qputenv("NOBODY", geteuid() == 0 ? nobody : "");
        shell("systemctl start bluetooth");
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
    ~Run() override { qInstallMessageHandler(s_otherHandler); }

protected:
    /** When the daemon has answered and the event loop has nothing left to do. */
    bool isSettled() override
    {
        if (!m_turn.isActive())
            m_turn.start(0); // BluezQt tells of a change only in the next turn of the loop
        return m_idleTurns >= 2 && (m_idleTurns = 0, true);
    }

private:
    void addDaemonVerbs()
    {
        for (const QString name : { "device", "set", "name", "alias", "behaviour", "resume", "remove",
                                    "adapter", "strangers", "gone", "agent" })
            verb(name, [=](const QString &object) { sim(name + ' ' + object); });
        verb("long", [this](const QString &name) { // "name LETTERS": a device whose name is that long
            sim("name " + QString(name.section(' ', 1).toInt(), 'x'));
        });
        verb("devices", [this](const QString &count) { return m_manager.devices().size() == count.toInt(); });
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
            ::kill(int(QDBusConnection::systemBus().interface()->servicePid("org.freedesktop.DBus")),
                   SIGKILL);
        });
        verb("disconnected", [] { return !QDBusConnection::systemBus().isConnected(); });
    }

    void addProgramVerbs()
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
        // STEPS [with ENVIRONMENT]. The pipe ends when all that the program has left running has ended, too.
        verb("run", [this](const QString &object) {
            shell(QString("{ env PAIRDESK_TEST_STEPS='%1' %2 \"$PROGRAM\"; echo exits with $?; } | cat")
                      .arg(object.section(" with ", 0, 0), object.section(" with ", 1)));
        });
        verb("open", [this] {
            m_window = std::make_unique<pairdesk>(&m_manager, nullptr);
            m_agent = m_window->findChild<btagent *>();
            m_window->show();
        });
        verb("switch",
             [this] { QTest::mousePress(m_window->findChild<QWidget *>("pushme"), Qt::LeftButton); });
        verb("refill", [this] { m_window->onPopupateTable(); });
        // A window that the user closes is no effect.
        verb("close", [this](const QString &name) {
            const QString window = describeWindow(front());
            return User::close(name) && (m_before.windows.removeOne(window), true);
        });
        verb("leave", [] { // closes what runs an event loop of its own
            return QThread::currentThread()->loopLevel() == 1 || (front()->close(), false);
        });
        verb("watch", [this](const QString &group) { m_watched += group; });
    }

    void addAgentVerbs()
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

    void addMeasuringVerbs()
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
        verb("answered", [this] { return device("Cans")->findChildren<BluezQt::PendingCall *>().isEmpty(); });
        verb("measure", [this] { // what outlives the dialogs
            const int before = m_connections, kibibytes = m_kibibytes;
            m_connections = connections(&m_manager) + connections(m_agent)
                            + connections(device("Cans").data())
                            + connections(m_manager.adapters().first().data())
                            + QApplication::topLevelWidgets().size();
            m_kibibytes = contentOf("/proc/self/statm").split(' ').value(1).toInt() * 4;
            printf("%d KiB\n", m_kibibytes);
            if (before >= 0)
                note(QString("%1 more connections").arg(m_connections - before));
            if (before >= 0 && m_kibibytes >= 1.05 * kibibytes)
                note(QString("%1 KiB instead of %2").arg(m_kibibytes).arg(kibibytes));
        });
    }

    /** Lets the daemon Do() something without waiting; a refusal fails the test. */
    void sim(const QString &line)
    {
        const auto message = QDBusMessage::createMethodCall("org.bluez", "/", "org.pairdesk.Sim1", "Do")
                             << line;
        auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(message), this);
        ++m_asked;
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
            --m_asked;
            call->deleteLater();
            if (call->error().name().startsWith("org.pairdesk"))
                fail(call->error().message());
        });
    }

    /** The device with this name in the manager, null when there is none. */
    BluezQt::DevicePtr device(const QString &name) const
    {
        for (const BluezQt::DevicePtr &device : m_manager.devices()) {
            if (device->name() == name)
                return device;
        }
        return {};
    }

    /** Appends to the calls that are compared. */
    void note(const QString &text)
    {
        QFile file(path("calls.log"));
        file.open(QIODevice::Append);
        file.write(text.toUtf8() + '\n');
    }

    /** Runs a shell command and notes its output, but none of the calls that it makes. */
    void shell(const QString &command)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start("sh", { "-c", command });
        process.waitForFinished();
        m_called += calls().size();
        note(process.readAllStandardOutput().trimmed());
    }

    /** The calls of BlueZ and of the tools since the last line, with devices by name. */
    QStringList calls()
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
    bool fireTimer()
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

    State current() const
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

    /** Whether the line before has changed this: calls in their order, the rest in any. */
    bool compare(const QString &effects)
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

    BluezQt::Manager m_manager;
    int m_asked = 0; // of the daemon, and not done yet: what it has changed has been told before
    QTimer m_turn; // over when whatever the event loop had to do is done
    int m_idleTurns = 0; // since the daemon has answered
    QTimer m_between;

    std::unique_ptr<pairdesk> m_window;
    btagent *m_agent = nullptr;

    QStringList m_watched; // groups that are compared on request only
    QMap<QString, QString> m_names; // of the devices, by their addresses
    State m_before;
    int m_called = 0; // calls before the line
    int m_noted = 0; // calls of the line up to now
    QElapsedTimer m_quiet; // since the last of them
    int m_connections = -1; // when they were last measured
    int m_kibibytes = 0;
};

/** Performs the steps in the program's own main(), which this binary runs as a second process. */
static void startUser()
{
    QList<Step> steps;
    for (const QString &step : qEnvironmentVariable("PAIRDESK_TEST_STEPS").split(" then "))
        steps += Step{ step, "run" };
    auto *user = new User(steps);
    user->setParent(qApp);
    user->verb("own", [] { return contentOf(paths::pidFile) == QByteArray::number(getpid()); });
    user->verb("hang", [] { raise(SIGHUP); });
    user->verb("overflow", [] { debugLog(3, "%s", QByteArray(4072, 'x').constData()); });
}

static int perform(int argc, char **argv, const QList<Step> &steps, bool withLog)
{
    QApplication application(argc, argv);
    Run run(steps, withLog);
    const QString empty = "/tmp/empty";
    if (!QDir().mkdir(empty) || !QDir::setCurrent(empty))
        run.fail("no folder to work in");
    QApplication::exec();
    if (!QDir(empty).isEmpty())
        run.fail("a name was run by a shell");
    const QString rest = violations(QString::fromUtf8(contentOf("/tmp/log")));
    if (!rest.isEmpty())
        run.fail("not in the trace contract:\n" + rest);
    return 0;
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("PAIRDESK_TEST_STEPS")) {
        qAddPreRoutine(startUser);
        return runApplication(argc, argv);
    }
    const QStringList arguments(argv + 1, argv + argc);
    const QString file = SOURCE_DIR "/scenarios/" + arguments.value(0) + ".scenario";
    for (const Scenario &scenario : readScenarios(file)) {
        if (arguments.size() == 1)
            printf("%s\n", qPrintable(scenario.title));
        else if (scenario.title == arguments[1])
            return perform(argc, argv, stepsOf(scenario, file), arguments.value(2) == "log");
    }
    return arguments.size() != 1;
}
