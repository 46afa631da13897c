// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/state.h"

#include "tests/support/files.h"

#include <QtWidgets>

QString describeWindow(const QWidget *window)
{
    QStringList actions;
    for (const QAction *action : window->actions())
        actions += action->text();
    if (qobject_cast<const QMenu *>(window))
        return "menu: " + actions.join(", ");
    if (window->objectName() == "Pin") {
        const auto *pin = window->findChild<QLabel *>("pin");
        return "PIN: " + pin->text() + (pin->textFormat() == Qt::PlainText ? "" : " (rich text)");
    }
    const auto *box = qobject_cast<const QMessageBox *>(window);
    if (!box)
        return window->objectName();
    const QString kind = box->icon() == QMessageBox::Critical ? "critical" : "information";
    const QString text = box->text().replace('\n', "\\n");
    return kind + " \"" + box->windowTitle() + "\": " + text
           + (box->textFormat() == Qt::PlainText ? "" : " (rich text)");
}

static QString describeRow(const QTableWidget *table, int row)
{
    QStringList cells;
    for (int column = 0; table->item(row, column); ++column)
        cells += table->item(row, column)->text().replace('\n', "\\n");
    return cells.join('|');
}

/** What a widget shows, where that can change. */
static QString shownBy(const QWidget *widget)
{
    static const QImage on = QPixmap(":/images/on32b.png").toImage();
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (widget->property("checkable").toBool())
        return widget->property("checked").toBool() ? "=on" : "=off";
    if (qobject_cast<const QComboBox *>(widget))
        return '=' + widget->property("currentText").toString();
    if (label && label->objectName() == "pushme")
        return label->pixmap(Qt::ReturnByValue).toImage() == on ? "=on" : "=off";
    if (label && label->movie())
        return label->movie()->state() == QMovie::Running ? "=moving" : "=still";
    return {};
}

static void addTable(State *state, const QString &window, const QTableWidget *table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row)
        rows += describeRow(table, row);
    state->values[window + " rows: "] = rows.replaceInStrings(QRegularExpression("^$"), "(empty)").join(", ");
    const int selected = table->selectedItems().size();
    // That the user has selected a row need not be told, only that it is none or not a whole one any more.
    state->values[window + " selection: none"] = selected == 0                      ? "none"
                                                 : selected == table->columnCount() ? ""
                                                                                    : "in part";
}

State State::current()
{
    State state;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->objectName().startsWith("qt_"))
            continue;
        const QString name = describeWindow(window);
        state.windows += name;
        if (name.contains(':'))
            continue;
        for (const QWidget *widget : window->findChildren<QWidget *>(QRegularExpression("^(?!qt_).+"))) {
            if (widget->window() != window)
                continue;
            const QString word = widget->objectName();
            const QString mark = widget->isHidden()                            ? "!"
                                 : widget->isEnabledTo(widget->parentWidget()) ? ""
                                                                               : "-";
            state.values[name + ": " + word] = mark + word + shownBy(widget);
            if (const auto *table = qobject_cast<const QTableWidget *>(widget))
                addTable(&state, name, table);
        }
    }
    const QCursor *cursor = QApplication::overrideCursor();
    state.values[": normal cursor"] = cursor && cursor->shape() == Qt::WaitCursor ? "wait cursor"
                                                                                  : "normal cursor";
    for (const QString line : contentOf(settingsFile).split('\n').mid(1)) {
        if (!line.isEmpty())
            state.values["stored: " + line.section('=', 0, 0)] = line;
    }
    return state;
}

QStringList State::changesSince(const State &before) const
{
    QStringList opened = windows, closed = before.windows, changes;
    for (const QString &window : windows) {
        if (closed.removeOne(window))
            opened.removeOne(window);
    }
    for (const QString &window : opened)
        changes += (window.contains(':') ? "" : "opens ") + window;
    for (const QString &window : closed)
        changes += "closes " + window;
    QMap<QString, QStringList> words;
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (!value->isEmpty() && *value != before.values.value(value.key(), value.key().section(": ", 1)))
            words[value.key().section(": ", 0, 0)] += *value;
    }
    for (auto group = words.begin(); group != words.end(); ++group)
        changes += (group.key().isEmpty() ? "" : group.key() + ": ") + group->join(' ');
    return changes;
}
