// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/scenario.h"

#include "tests/support/files.h"

#include <QRegularExpression>

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

QList<Scenario> readScenarios(const QString &file)
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

QList<Step> stepsOf(const Scenario &scenario, const QString &file)
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
