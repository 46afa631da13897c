// SPDX-License-Identifier: GPL-3.0-or-later
// tst_scenarios FILE [log]: runs the scenarios of scenarios/FILE, each in a process of its own, with the
// debug log closed or open. HACKING.md tells how they are written.
#include "app/debuglog.h"
#include "dialogs/pin.h"
#include "tests/support/fixture.h"
#include "tests/support/state.h"
#include "tests/support/tracecontract.h"

#include <QPushButton>
#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/** Steps that are performed in turn, and what all of them together change. */
struct Line {
    int number;
    QStringList steps;
    QString effects;
    bool isCompared;
};

struct Scenario {
    QString title;
    QList<Line> lines;
};

static void addLine(QList<Line> *lines, int number, const QString &text, bool isCompared)
{
    if (text.startsWith("-> "))
        lines->last().effects += (lines->last().effects.isEmpty() ? "" : " ") + text.mid(3);
    else
        lines->append({ number, text.split(", "), {}, isCompared });
}

/** The scenario with a row of its examples in place of the names in "<>". */
static Scenario withExample(Scenario scenario, const QStringList &names, const QStringList &row)
{
    scenario.title += " (" + row.first() + ')';
    for (int i = 0; i < names.size(); ++i) {
        for (Line &line : scenario.lines) {
            line.steps.replaceInStrings('<' + names[i] + '>', row.value(i));
            line.effects.replace('<' + names[i] + '>', row.value(i));
        }
    }
    return scenario;
}

static QList<Scenario> readScenarios(const QString &file)
{
    QList<Scenario> scenarios;
    QList<Line> background;
    Scenario outline;
    QStringList names; // of the columns of examples
    QString text;
    int number = 0;
    for (const QString &line : QString::fromUtf8(contentOf(file)).split('\n')) {
        text = (text.endsWith('\\') ? text.chopped(1) : QString()) + line.trimmed();
        ++number;
        if (text.endsWith('\\'))
            continue;
        if (text.isEmpty() || text.startsWith('#') || text == "Background:")
            continue;
        if (text.startsWith("Scenario")) {
            outline = { text.section(": ", 1), background };
            names.clear();
            if (text.startsWith("Scenario:"))
                scenarios += outline;
        } else if (text.startsWith("| ")) {
            const QStringList row = text.split(QRegularExpression(" *\\| +| *\\|$")).mid(1);
            if (names.isEmpty())
                names = row;
            else
                scenarios += withExample(outline, names, row);
        } else {
            const bool isBackground = outline.title.isEmpty();
            const bool isOutline = scenarios.isEmpty() || scenarios.last().title != outline.title;
            addLine(isBackground ? &background
                    : isOutline  ? &outline.lines
                                 : &scenarios.last().lines,
                    number, text, !isBackground);
        }
    }
    return scenarios;
}

/** Performs the steps of a scenario and compares what they change. */
class Run : public Fixture {
public:
    Run(const Scenario &scenario, bool withLog);
    void perform();

protected:
    bool isOver(const QString &step, QString *why) override;

private:
    void addAgentVerbs();
    void addWindowVerbs();
    State current() const;
    QStringList calls();
    bool fireTimer();

    QList<Line> m_lines;
    bool m_withLog;
    QStringList m_values; // that may stand in the log
    QStringList m_watched; // groups that are compared on request only
    QMap<QString, QString> m_names; // of the devices, by their addresses
    State m_before;
    int m_called = 0; // calls before the line
    int m_stepsOver = 0; // of the line
    int m_noted = 0; // calls of the line up to now
    QElapsedTimer m_quiet; // since the last of them
    QTimer m_between;
};

Run::Run(const Scenario &scenario, bool withLog)
    : m_lines(scenario.lines)
    , m_withLog(withLog)
    , m_values({ "", "123456", "0000110B-0000-1000-8000-00805F9B34FB", "desk", "desk #2", "00:1A:7D:00:00:00",
                 "00:1A:7D:00:00:01" })
{
    for (const Line &line : m_lines) {
        for (const QString &word : line.steps.join(' ').split(QRegularExpression("[ =]")))
            m_values << word << word.rightJustified(6, '0'); // as the library writes passkeys
    }
    for (int type = 0; type <= BluezQt::Device::Uncategorized; ++type)
        m_values += BluezQt::Device::typeToString(BluezQt::Device::Type(type));
    verb("watch", [this](const QString &group) { m_watched += group; });
    addAgentVerbs();
    addWindowVerbs();
}

void Run::addAgentVerbs()
{
    verb("pair", [this](const QString &address) { agent->pairDevice(address); });
    verb("connect", [this](const QString &address) { agent->connectDevice(address); });
    verb("disconnect", [this](const QString &address) { agent->disconnectDevice(address); });
    verb("delete", [this](const QString &address) { agent->removeDevice(address); });
    verb("scan", [this](const QString &) { agent->scanDevices(); });
    verb("stop", [this](const QString &) { agent->stopScan(); });
    verb("finish", [this](const QString &) { agent->onCallFinished(nullptr); });
    verb("forget", [this](const QString &) { agent->onAdapterRemoved(); });
    verb("drop", [this](const QString &name) { device(name)->disconnectFromDevice(); });
    verb("listen",
         [this](const QString &name) { // as another part of the program, which an operation cuts off
             connect(device(name).data(), &BluezQt::Device::pairedChanged, this,
                     [] { qDebug("still connected"); });
         });
    // One answer arrives while the program reports the other.
    connect(&m_between, &QTimer::timeout, this, [this] {
        if (!device("Cans")->isConnected())
            return;
        m_between.stop();
        sim("resume Cans");
        waitForDaemon();
    });
    verb("between", [this](const QString &) { m_between.start(0); });
}

void Run::addWindowVerbs()
{
    // A window that the user closes is no effect.
    verb("close", [this](const QString &name) {
        const QString window = describeWindow(front());
        return User::close(name) && (m_before.windows.removeOne(window), true);
    });
    verb("accept", [](const QString &) { // the newest PIN, which is not modal
        front()->findChildren<Pin *>().last()->findChild<QPushButton *>("pushButton")->click();
    });
    verb("mouse", [this](const QString &what) { // EVENT NAME: in the row of that device
        const auto found = table->findItems(what.section(' ', 1), Qt::MatchExactly);
        if (found.isEmpty())
            return false;
        const QPointF place = table->visualItemRect(found.first()).center();
        const QString event = "MouseButton" + what.section(' ', 0, 0);
        const int type = QMetaEnum::fromType<QEvent::Type>().keyToValue(qPrintable(event));
        QMouseEvent mouse(QEvent::Type(type), place, place, Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(table->viewport(), &mouse);
        return true;
    });
    verb("block", [this](const QString &on) { emit manager.bluetoothBlockedChanged(on == "on"); });
    verb("refill", [this](const QString &) { QMetaObject::invokeMethod(window.get(), "onPopupateTable"); });
    verb("cards", [this](const QString &active) {
        put(path("tools/pactl-list-cards.out"),
            contentOf(TEST_DATA "/pactl/pipewire-cards.txt")
                .replace("Profile: audio-gateway", "Profile: " + active.toUtf8()));
    });
}

void Run::perform()
{
    QStringList steps;
    for (const Line &line : std::as_const(m_lines))
        steps += line.steps;
    if (m_withLog)
        debugLogOpen(path("log").toUtf8(), 3);
    Fixture::perform(steps << "leave");
    if (!m_withLog || QTest::currentTestFailed())
        return;
    for (auto name = m_names.begin(); name != m_names.end(); ++name)
        m_values << name.key() << *name;
    static const QRegularExpression prefix("^[0-9:.]{13} -\\(\\d+\\)- ", QRegularExpression::MultilineOption);
    const QString log = QString::fromUtf8(contentOf(path("log"))).remove(prefix);
    const QString violations = TraceContract(SOURCE_DIR "/trace-contract", m_values).violations(log);
    QVERIFY2(violations.isEmpty(), qPrintable("not in the trace contract:\n" + violations));
}

State Run::current() const
{
    State state = State::current();
    if (window && !window->isVisible())
        state.values[": not left"] = window->m_bOk ? "left with OK" : "left";
    if (m_watched.contains("focus"))
        state.values["focus: none"] = QApplication::focusWidget() ? QApplication::focusWidget()->objectName()
                                                                  : "none";
    if (m_watched.contains("agent")) {
        state.values["agent: device="] = "device=" + (agent->device ? agent->device->name() : QString());
        const QList<std::pair<const char *, QString>> kept = {
            { "pinCode", agent->pinCode },
            { "passkey", agent->passkey },
            { "entered", agent->enteredPasskey },
            { "confirmation", agent->confirmationPasskey },
            { "service", agent->serviceUuid },
            { "pinCodeRequested", agent->pinCodeRequested ? "yes" : "" },
            { "cancelled", agent->cancelled ? "yes" : "" },
            { "released", agent->released ? "yes" : "" },
            { "passkeyRequested", agent->passkeyRequested ? "yes" : "" }
        };
        for (const auto &[name, value] : kept)
            state.values[QString("agent: ") + name + '='] = name + ('=' + value);
    }
    return state;
}

/** The calls of BlueZ and of the tools since the last line, with devices by name. */
QStringList Run::calls()
{
    QStringList calls =
        QString::fromUtf8(contentOf(path("calls.log"))).split('\n', Qt::SkipEmptyParts).mid(m_called);
    for (const BluezQt::DevicePtr &device : manager.devices())
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
        QFile file(path("calls.log"));
        file.open(QIODevice::Append);
        file.write("after " + QByteArray::number(timers.first().interval) + " ms\n");
        file.close();
        QTimerEvent event(timers.first().timerId);
        QApplication::sendEvent(child, &event);
        return true;
    }
    return false;
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

bool Run::isOver(const QString &step, QString *why)
{
    if (!Fixture::isOver(step, why))
        return false;
    if (m_lines.isEmpty()) // everything is to be closed
        return true;
    const Line &line = m_lines.first();
    if (m_stepsOver + 1 < line.steps.size()) {
        ++m_stepsOver;
        return true;
    }
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
    QStringList missing = line.effects.split("; ", Qt::SkipEmptyParts), unexpected;
    for (const QString &effect : changes) { // in any order
        const auto equal = [&](const QString &other) { return comparable(other) == comparable(effect); };
        const auto found = std::find_if(missing.begin(), missing.end(), equal);
        if (found == missing.end())
            unexpected += effect;
        else
            missing.erase(found);
    }
    if (line.isCompared && (missing != called || !unexpected.isEmpty())) {
        *why = QString("line %1: %2\nexpected: %3\nfound:    %4")
                   .arg(QString::number(line.number), line.steps.join(", "), line.effects,
                        (called + changes).join("; "));
        return false;
    }
    m_quiet.invalidate();
    m_before = state;
    m_called += called.size();
    m_noted = m_stepsOver = 0;
    m_lines.removeFirst();
    return true;
}

class Scenarios : public QObject {
    Q_OBJECT

public:
    Scenario scenario;
    bool withLog = false;

private Q_SLOTS:
    void runs_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow(qPrintable(scenario.title)) << 0;
    }
    void runs()
    {
        QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        Run(scenario, withLog).perform();
        QVERIFY(QDir(folder.path()).isEmpty()); // no name was run by a shell
        QDir::setCurrent("/"); // the folder goes
    }
};

int main(int argc, char **argv)
{
    const QStringList arguments(argv + 1, argv + argc);
    const QList<Scenario> scenarios = readScenarios(SOURCE_DIR "/scenarios/" + arguments.value(0)
                                                    + ".scenario");
    int failed = 0;
    for (const Scenario &scenario : scenarios) {
        if (arguments.size() > 2 && !scenario.title.contains(arguments[2]))
            continue;
        int status = 0;
        const pid_t child = fork();
        if (child == 0) {
            setpgid(0, 0);
            QApplication application(argc, argv);
            Scenarios test;
            test.scenario = scenario;
            test.withLog = arguments.value(1) == "log";
            return QTest::qExec(&test, { argv[0], "-silent" });
        }
        waitpid(child, &status, 0);
        kill(-child, SIGKILL); // the daemon, when the scenario has crashed
        failed += status != 0;
    }
    printf("%d scenarios, %d failed\n", int(scenarios.size()), failed);
    return scenarios.isEmpty() || failed;
}

#include "tst_scenarios.moc"
