// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/tracecontract.h"

#include "tests/support/files.h"

#include <QRegularExpression>

/** The regular expression for one item: a line of the log, the token "<NAME>" of a function, or a sign. */
static QString patternOf(QString item, const QString &function)
{
    const QString scope = function.section("::", 0, 0) + "::";
    if (item == "or")
        return "|";
    if (item == "...")
        return "(?:<.*>\n)*";
    if (item.startsWith('<'))
        return (item.contains("::") ? item : '<' + scope + item.mid(1)) + '\n';
    if (item.startsWith('>'))
        item.replace('@', function.section("::", 1));
    else
        item = item.startsWith('=') ? item.mid(1) : (function + ' ' + item).trimmed();
    // The debug stream quotes texts.
    return QRegularExpression::escape(item)
               .replace("\\%a", "\"?(?:(?:[\\dA-F]{2}:){5}[\\dA-F]{2})?\"?")
               .replace("\\%t", "[a-z]*")
               .replace("\\%d", "\"?-?\\d+\"?")
               .replace("\\%x", "[\\da-f]+")
               .replace("\\%s", ".*(?:\n\t.*)?")
           + '\n';
}

/** The functions of the contract, an empty pair before the last resorts: the token and what it stands for. */
static QList<QPair<QString, QRegularExpression>> functions()
{
    QList<QPair<QString, QRegularExpression>> functions;
    QString text = QString::fromUtf8(contentOf(SOURCE_DIR "/trace-contract"));
    text.remove(QRegularExpression("(?m)^#.*\n")).replace(QRegularExpression("\n +"), " ");
    for (const QString &line : text.split('\n', Qt::SkipEmptyParts)) {
        const QString scope = line.section("::", 0, 0) + "::";
        for (const QString &name : line.section(": ", 0, 0).remove(scope).split(", ")) {
            QString pattern = "^";
            for (const QString &item : line.section(": ", 1).split(" / ")) {
                static const QRegularExpression edges("^(\\{*)(.*?)((?:\\}[*?]?)*)$");
                const QRegularExpressionMatch found = edges.match(item);
                pattern += found.captured(1).replace("{", "(?:") + patternOf(found.captured(2), scope + name)
                           + found.captured(3).replace("}", ")");
            }
            functions.append({ '<' + scope + name + ">\n",
                               QRegularExpression(pattern, QRegularExpression::MultilineOption) });
        }
        if (line == "---")
            functions.last() = {};
    }
    return functions;
}

QString violations(QString log)
{
    static const QRegularExpression prefix("^[0-9:.]{13} -\\(\\d+\\)- ", QRegularExpression::MultilineOption);
    log.remove(prefix);
    for (bool isChanged = true; isChanged;) {
        isChanged = false;
        bool isLastResort = false;
        for (const auto &[token, pattern] : functions()) {
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
