// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/desk.h"

#include "app/debuglog.h"
#include "bluetooth/btagent.h"

#include <BluezQt/Device>
#include <QtTest>
#include <QtWidgets>

static QtMessageHandler s_otherHandler = nullptr;

/** The debug stream goes into the log. A slot that Qt does not find would otherwise be seen by nobody. */
static void hear(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool isMistyped = text.contains("No matching signal") || text.contains("No such");
    if (type == QtDebugMsg)
        debugLog(3, ">%s", qUtf8Printable(text.left(900)));
    else if (isMistyped && !text.contains("on_onoff_clicked"))
        qFatal("%s", qUtf8Printable(text));
    else
        s_otherHandler(type, context, text);
}

Desk::Desk(const QString &scene)
    : TestBus(scene)
{
    QFont font; // of a size that desktops have
    font.setPointSize(10);
    QApplication::setFont(font);
    QApplication::setQuitOnLastWindowClosed(false); // which would end the event loops of the next desk
    manager(); // its job runs one
    s_otherHandler = qInstallMessageHandler(hear);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, [this] { m_calm = isAsking() ? 0 : m_calm + 1; });

    verb("open", [this](const QString &) {
        window = std::make_unique<pairdesk>(manager(), nullptr);
        agent = window->findChild<btagent *>();
        table = window->findChild<QTableWidget *>("devices");
        window->show();
    });
    for (const char *name :
         { "device", "set", "how", "goon", "lose", "adapter", "strangers", "gone", "agent" })
        verb(name, [=](const QString &object) { sim("Do", { name + (' ' + object) }); });
    verb("name", [=](const QString &name) {
        sim("AddDevice", { "hci0", QVariantMap{ { "Name", QString(name).replace("\\n", "\n\t") } } });
    });
    verb("alias", [=](const QString &object) {
        sim("SetDevice", { object.section(' ', 0, 0), QVariantMap{ { "Alias", object.section(' ', 1) } } });
    });
    verb("tool", [=](const QString &object) {
        put(path("tools/" + object.section(' ', 0, 0)),
            object.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t").toUtf8());
    });
    verb("devices", [=](const QString &count) { return manager()->devices().size() == count.toInt(); });
    verb("look", [](const QString &) {});
    verb("kill", [=](const QString &) { kill(); });
    verb("start", [=](const QString &) { start(); });
    verb("operational", [=](const QString &on) { return manager()->isOperational() == (on == "on"); });
    verb("switch",
         [=](const QString &) { QTest::mousePress(window->findChild<QWidget *>("pushme"), Qt::LeftButton); });
}

Desk::~Desk()
{
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    window.reset();
    qInstallMessageHandler(s_otherHandler);
}

void Desk::walk(const QString &road, bool withLog)
{
    const QString file = TEST_DATA "/roads/" + road + ".log";
    m_sections = QString::fromUtf8("\n\n" + contentOf(file)).split("\n\n# ").mid(1);
    m_withLog = withLog;
    if (withLog)
        debugLogOpen(path("log").toUtf8(), 3);
    QStringList deeds;
    for (const QString &section : std::as_const(m_sections))
        deeds += section.section('\n', 0, 0);
    does(deeds);
    for (const QString &section : std::as_const(m_sections)) // not reached while recording
        m_record += ("# " + section + "\n\n").toUtf8();
    if (qEnvironmentVariableIsSet("PAIRDESK_RECORD"))
        put(file, m_record.trimmed() + '\n');
}

QStringList rows(const QTableWidget *table)
{
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount() && table->item(row, column); ++column)
            cells += table->item(row, column)->text();
        texts += cells.join('|');
    }
    return texts;
}

/** The size of a window, and the places and texts of its parts. */
static QStringList layout(const QWidget *window, const QList<QWidget *> &parts)
{
    const QString size = window->minimumSize() == window->maximumSize() ? "fixed" : "free";
    QStringList lines(QString("  %1 %2x%3 %4")
                          .arg(window->windowTitle())
                          .arg(window->width())
                          .arg(window->height())
                          .arg(size));
    for (const QWidget *part : parts) {
        const QRect place = part->geometry();
        QString text = part->property("text").toString() + part->property("title").toString();
        const bool hasBox = part->property("checkable").toBool();
        if (place.width()
            < (hasBox ? part->sizeHint().width() : part->fontMetrics().tightBoundingRect(text).width()))
            text += " TOO WIDE";
        const auto *table = qobject_cast<const QTableWidget *>(part);
        for (int column = 0; table && column < table->columnCount(); ++column) {
            const QString title = table->horizontalHeaderItem(column)->text();
            const int width = table->columnWidth(column);
            text += title + QString(" %1 ").arg(width);
            if (table->horizontalHeader()->fontMetrics().horizontalAdvance(title) + 8 > width)
                text += "TOO WIDE";
            for (int row = 0; column > 0 && row < table->rowCount(); ++row) { // names may be cut
                const QTableWidgetItem *item = table->item(row, column);
                if (item && table->fontMetrics().horizontalAdvance(item->text()) + 8 > width)
                    text += "TOO WIDE " + item->text();
            }
        }
        if (table && (table->horizontalScrollBar()->isVisible() || table->verticalScrollBar()->isVisible()))
            text += "SCROLLS";
        for (const QWidget *other : parts) {
            const QRect common = place & other->geometry();
            if (part != other && part->parent() == other->parent() && common.width() > 1
                && common.height() > 1)
                text += " OVERLAPS " + other->objectName();
        }
        lines += QString("  %1 %2,%3 %4x%5 ")
                     .arg(part->objectName())
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height())
                 + text;
    }
    return lines;
}

/** A window's line and those below it: its own parts, less those inside Qt's widgets. */
static QStringList told(const QWidget *window, bool withLayout)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(window))
        return QString("box%1 %2: %3%4")
            .arg(box->icon())
            .arg(box->windowTitle(), box->text(), box->textFormat() == Qt::PlainText ? "" : " RICH")
            .split('\n');
    QStringList words(window->objectName()), rowLines;
    for (const QAction *action : window->actions())
        words += action->text();
    QList<QWidget *> parts;
    for (QWidget *part : window->findChildren<QWidget *>(QRegularExpression("^(?!qt_).+"))) {
        if (!part->isVisibleTo(window) || part->window() != window)
            continue;
        parts += part;
        QString value = part->property("currentText").toString();
        const auto *label = qobject_cast<const QLabel *>(part);
        if (part->property("checkable").toBool())
            value = part->property("checked").toBool() ? "=on" : "=off";
        else if (label && label->objectName() == "pin")
            value = '=' + label->text() + (label->textFormat() == Qt::PlainText ? "" : " RICH");
        else if (label && label->objectName() == "pushme")
            value = label->pixmap(Qt::ReturnByValue).toImage() == QPixmap(":/images/on32b.png").toImage()
                        ? "=on"
                        : "=off";
        if (!label || !value.isEmpty())
            words += (part->isEnabled() ? "" : "-") + part->objectName() + (part->hasFocus() ? "*" : "")
                     + value;
        if (const auto *table = qobject_cast<const QTableWidget *>(part)) {
            const QStringList texts = rows(table);
            for (int row = 0; row < texts.size(); ++row)
                rowLines += (row == table->currentRow() ? " @" : "  ")
                            + QString(texts[row]).replace('\n', "\\n");
        }
    }
    return words.join(' ').split('\n', Qt::SkipEmptyParts) + rowLines
           + (withLayout ? layout(window, parts) : QStringList());
}

QStringList Desk::view(bool withLayout)
{
    QStringList windows;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !window->objectName().startsWith("qt_"))
            windows += told(window, withLayout).join("\n= ");
    }
    windows.sort();
    return windows;
}

/** What the deed has changed up to now. */
QStringList Desk::effect(bool withLayout)
{
    static const QRegularExpression same("^.*?\\)- | item: \\K(?!0$)[0-9a-f]+$",
                                         QRegularExpression::MultilineOption);
    const QString log = QString::fromUtf8(contentOf(path("log"))).remove(same);
    QStringList lines = log.split('\n', Qt::SkipEmptyParts).mid(m_logged);
    m_calls += takeCalls();
    QStringList shown = m_calls + view(withLayout) + QStringList("stored " + contentOf(store()).simplified());
    if (agent && agent->device)
        shown += "current device " + agent->device->name().simplified();
    if (agent && (agent->cancelled || agent->pinCodeRequested))
        shown += QString(
                     "agent: pin %1 passkey %2 entered %3 confirmation %4 service %5 asked %6%7 over %8%9")
                     .arg(agent->pinCode, agent->passkey, agent->enteredPasskey, agent->confirmationPasskey,
                          agent->serviceUuid)
                     .arg(agent->pinCodeRequested)
                     .arg(agent->passkeyRequested)
                     .arg(agent->cancelled)
                     .arg(agent->released);
    if (window && !window->isVisible())
        shown += window->m_bOk ? "left with OK" : "left";
    if (QApplication::overrideCursor())
        shown += QString("cursor %1").arg(QApplication::overrideCursor()->shape());
    for (const QString &line : std::as_const(shown))
        lines += ("= " + line).split('\n');
    return lines;
}

bool Desk::hasEffect(const QString &deed, QString *why)
{
    if (!m_turn.isActive())
        m_turn.start(0); // BluezQt tells of a change only in the next turn of the loop
    if (m_calm < 2)
        return false;
    if (m_sections.isEmpty()) {
        m_calm = 0;
        return true;
    }
    QStringList found = effect(deed == "look");
    QStringList wanted = m_sections.first().split('\n', Qt::SkipEmptyParts).mid(1);
    if (!m_withLog)
        wanted = wanted.filter(QRegularExpression("^= "));
    const int logged = found.filter(QRegularExpression("^(?!= )")).size();
    const bool isRecording = qEnvironmentVariableIsSet("PAIRDESK_RECORD");
    if (isRecording && !m_seen.isValid())
        m_seen.start();
    const QString all = found.join('\n');
#if QT_VERSION_MAJOR > 5 // whose hash table, and so the manager, keeps devices in another order
    found.sort();
    wanted.sort();
#endif
    if (isRecording ? !m_seen.hasExpired(1000) : found != wanted) {
        *why = "after " + deed + " expected\n" + wanted.join('\n') + "\n\nbut found\n" + all;
        return false;
    }
    if (isRecording)
        m_record += ("# " + deed + '\n' + all + "\n\n").toUtf8();
    m_logged += logged;
    m_calls.clear();
    m_calm = 0;
    m_seen.invalidate();
    m_sections.removeFirst();
    return true;
}
