// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/tracecontract.h"

#include "tests/support/testbus.h"

#include <QDebug>

/** The regular expression for the lines or the token of one item. */
static QString patternOf(QString item, const QString &function)
{
    const QString scope = function.section("::", 0, 0) + "::";
    if (item == "or")
        return "|";
    if (item == "...")
        return "(?:<.*>\n)*";
    if (item.startsWith('<'))
        return (item.contains("::") ? item : '<' + scope + item.mid(1)) + '\n';
    if (!item.startsWith('>'))
        item = item.startsWith('=') ? item.mid(1) : (function + ' ' + item).trimmed();
    else
        item.replace('@', function.section("::", 1));
    QString text = QRegularExpression::escape(item);
    text.replace("\\%d", "-?\\d+")
        .replace("\\%x", "[\\da-f]+")
        .replace("\\%\\*", ".*")
        .replace("\\%s", "(?&value)");
    return text + '\n';
}

TraceContract::TraceContract(const QString &file, const QStringList &values)
{
    QStringList escaped;
    for (const QString &value : values) {
        QString quoted;
        QDebug(&quoted).nospace() << value;
        escaped << QRegularExpression::escape(value) << QRegularExpression::escape(quoted);
    }
    escaped.removeDuplicates();
    const QString definition = "(?(DEFINE)(?<value>" + escaped.join('|') + "))";
    QString text = QString::fromUtf8(contentOf(file));
    text.remove(QRegularExpression("(?m)^#.*\n")).replace(QRegularExpression("\n +"), " ");
    for (const QString &line : text.split('\n', Qt::SkipEmptyParts)) {
        if (line == "---") {
            m_functions.append(QPair<QString, QRegularExpression>());
            continue;
        }
        const QString scope = line.section("::", 0, 0) + "::";
        for (QString function : line.section(": ", 0, 0).remove(scope).split(", ")) {
            function.prepend(scope);
            QString pattern;
            for (QString item : line.section(": ", 1).split(" / ")) {
                static const QRegularExpression edges("^(\\{*)(.*?)((?:\\}[*?]?)*)$");
                const QRegularExpressionMatch found = edges.match(item);
                pattern += found.captured(1).replace("{", "(?:") + patternOf(found.captured(2), function)
                           + found.captured(3).replace("}", ")");
            }
            m_functions.append(
                { '<' + function + ">\n",
                  QRegularExpression(definition + '^' + pattern, QRegularExpression::MultilineOption) });
        }
    }
}

QString TraceContract::violations(QString log) const
{
    for (bool isChanged = true; isChanged;) {
        isChanged = false;
        bool isLastResort = false;
        for (const auto &[token, pattern] : m_functions) {
            isLastResort = isLastResort || token.isEmpty();
            if (isLastResort && isChanged)
                break; // something may be complete now that was not before
            const QString before = log;
            log.replace(pattern, token);
            isChanged |= log != before;
        }
    }
    static const QRegularExpression surroundings("^(?:<.*>\n)*|(?:<.*>\n)*$");
    return log.remove(surroundings);
}
