// SPDX-License-Identifier: GPL-3.0-or-later
// tst_scenarios FILE: names the scenarios of scenarios/FILE.scenario. tst_scenarios FILE TITLE [log]:
// performs one of them, with the debug log closed or open. HACKING.md tells how they are written.
#include "app/application.h"
#include "app/debuglog.h"
#include "app/paths.h"
#include "tests/support/files.h"
#include "tests/support/run.h"
#include "tests/support/tracecontract.h"

#include <QApplication>
#include <QRegularExpression>

#include <csignal>
#include <unistd.h>

struct Scenario {
    QString title;
    QStringList lines; // each behind its number
};

/** The scenario for each row of its examples, with their words in place of the names in "<>". */
static QList<Scenario> withExamples(const Scenario &outline)
{
    QStringList lines;
    QList<QStringList> rows;
    for (const QString &line : outline.lines) {
        if (line.section(' ', 1, 1) == "|")
            rows += line.split(QRegularExpression(" *\\| +| *\\|$")).mid(1);
        else
            lines += line;
    }
    QList<Scenario> scenarios;
    for (const QStringList &row : rows.mid(1)) {
        scenarios += Scenario{ outline.title + " (" + row.first() + ')', lines };
        for (int i = 0; i < rows[0].size(); ++i)
            scenarios.last().lines.replaceInStrings('<' + rows[0][i] + '>', row.value(i));
    }
    return rows.isEmpty() ? QList<Scenario>{ outline } : scenarios;
}

static QList<Scenario> readScenarios(const QString &file)
{
    QList<Scenario> blocks; // first the background
    int number = 0;
    for (const QString &line : QString::fromUtf8(contentOf(file)).split('\n')) {
        const QString text = line.trimmed();
        ++number;
        if (text.isEmpty() || text.startsWith('#'))
            continue;
        if (text.startsWith("Background:") || text.startsWith("Scenario"))
            blocks += Scenario{ text.section(": ", 1), {} };
        else if (blocks.last().lines.value(blocks.last().lines.size() - 1).endsWith('\\'))
            blocks.last().lines.last().replace(QRegularExpression("\\\\$"), text);
        else
            blocks.last().lines += QString::number(number) + ' ' + text;
    }
    QList<Scenario> scenarios;
    for (const Scenario &block : blocks.mid(1)) {
        for (const Scenario &background : withExamples(blocks.first())) {
            for (const Scenario &scenario : withExamples(block))
                scenarios += Scenario{ scenario.title + background.title, background.lines + scenario.lines };
        }
    }
    return scenarios;
}

/** The steps of each line, and the comparison of what all of them together change. */
static QList<Step> stepsOf(const Scenario &scenario, const QString &file)
{
    QList<Step> steps;
    for (const QString &line : scenario.lines) {
        const QString place = file + ':' + line.section(' ', 0, 0), text = line.section(' ', 1);
        static const QRegularExpression repetition("^(\\d+) times ");
        const QRegularExpressionMatch times = repetition.match(text);
        if (text.startsWith("-> ")) {
            steps.last().text += text.mid(2);
            continue;
        }
        for (int i = times.hasMatch() ? times.captured(1).toInt() : 1; i > 0; --i) {
            for (const QString &step : text.mid(times.capturedLength()).split(", "))
                steps += Step{ step, place };
        }
        steps += Step{ "->", place };
    }
    return steps;
}

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
