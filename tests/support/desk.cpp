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

Desk::Desk(const QString &record, const QString &scene)
    : TestBus(scene)
    , m_record(record)
    , m_sections(QString::fromUtf8("\n\n" + contentOf(TEST_DATA "/" + record + ".log")).split("\n\n# "))
    , m_log(!record.isEmpty() && QByteArray(QTest::currentDataTag()) == "log open")
{
    if (m_log)
        debugLogOpen(path("log").toUtf8(), 3);
    QFont font; // of a size that desktops have
    font.setPointSize(10);
    QApplication::setFont(font);
    QApplication::setQuitOnLastWindowClosed(false); // which would end the event loops of the next desk
    manager(); // its job runs one
    s_otherHandler = qInstallMessageHandler(hear);

    verb("open", [this](const QString &) {
        window = std::make_unique<pairdesk>(manager(), nullptr);
        agent = window->findChild<btagent *>();
        table = window->findChild<QTableWidget *>("devices");
        window->show();
    });
    for (const char *name :
         { "device", "set", "how", "goon", "lose", "adapter", "strangers", "gone", "agent" })
        verb(name, [=](const QString &object) { sim("Do", { name + (' ' + object) }); });
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

void Desk::logClosedAndOpen()
{
    QTest::addColumn<bool>("log");
    QTest::newRow("log closed") << false; // first: it is opened only once
    QTest::newRow("log open") << true;
}

/** A window's line, and what belongs to it: its own parts, less those inside Qt's widgets. */
static QStringList told(const QWidget *window, bool withLayout)
{
    const auto *box = qobject_cast<const QMessageBox *>(window);
    QStringList words(window->objectName());
    if (box)
        words = QStringList{ "box" + QString::number(box->icon()), box->windowTitle() + ':', box->text() };
    if (box && box->textFormat() != Qt::PlainText)
        words += "RICH";
    for (const QAction *action : window->actions())
        words += action->text();
    const QString size = window->minimumSize() == window->maximumSize() ? "fixed" : "free";
    QStringList lines(QString("  %1 %2x%3 %4")
                          .arg(window->windowTitle())
                          .arg(window->width())
                          .arg(window->height())
                          .arg(size));
    const auto parts = box ? QList<QWidget *>()
                           : window->findChildren<QWidget *>(QRegularExpression("^(?!qt_).+"));
    for (const QWidget *part : parts) {
        if (!part->isVisibleTo(window) || part->window() != window)
            continue;
        const QRect place = part->geometry();
        const auto *table = qobject_cast<const QTableWidget *>(part);
        const auto *label = qobject_cast<const QLabel *>(part);
        QString text = part->property("text").toString() + part->property("title").toString();
        QString value = part->property("currentText").toString();
        if (table)
            value = '[' + rows(table).join(" / ")
                    + (table->currentRow() < 0 ? "" : " @" + QString::number(table->currentRow())) + ']';
        else if (part->property("checkable").toBool())
            value = part->property("checked").toBool() ? "=on" : "=off";
        else if (label && label->objectName() == "pin")
            value = '=' + std::exchange(text, QString())
                    + (label->textFormat() == Qt::PlainText ? "" : " RICH");
        else if (label && label->objectName() == "pushme")
            value = label->pixmap(Qt::ReturnByValue).toImage() == QPixmap(":/images/on32b.png").toImage()
                        ? "=on"
                        : "=off";
        if (!label || !value.isEmpty())
            words += (part->isEnabled() ? "" : "-") + part->objectName() + value;
        if (part->fontMetrics().horizontalAdvance(text) > place.width())
            text += " TOO WIDE";
        for (int column = 0; table && column < table->columnCount(); ++column)
            text += QString("%1 %2 ")
                        .arg(table->horizontalHeaderItem(column)->text())
                        .arg(table->columnWidth(column));
        if (table && (table->horizontalScrollBar()->isVisible() || table->verticalScrollBar()->isVisible()))
            text += "SCROLLS";
        for (const QWidget *other : parts) {
            const QRect common = place & other->geometry();
            if (part != other && part->parent() == other->parent() && other->isVisibleTo(window)
                && !other->isWindow() && common.width() > 1 && common.height() > 1)
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
    const QString line = words.join(' ').replace('\n', "\\n");
    return withLayout && !box ? QStringList(line) + lines : QStringList(line);
}

/** What the deed has changed up to now. */
QStringList Desk::effect(bool withLayout)
{
    static const QRegularExpression same("^.*?\\)- | item: \\K(?!0$)[0-9a-f]+$",
                                         QRegularExpression::MultilineOption);
    const QString log = QString::fromUtf8(contentOf(path("log"))).remove(same);
    QStringList lines = log.split('\n', Qt::SkipEmptyParts).mid(m_logged);
    m_calls += takeCalls();
    QStringList windows;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !window->objectName().startsWith("qt_"))
            windows += told(window, withLayout).join("\n= ");
    }
    windows.sort();
    windows += "stored " + contentOf(store()).simplified();
    if (agent && agent->device)
        windows += "current device " + agent->device->name().simplified();
    if (window && !window->isVisible())
        windows += window->m_bOk ? "left with OK" : "left";
    if (QApplication::overrideCursor())
        windows += QString("cursor %1").arg(QApplication::overrideCursor()->shape());
    for (const QString &shown : m_calls + windows)
        lines += ("= " + shown).split('\n');
    return lines;
}

bool Desk::hasEffect(const QString &deed, QString *why)
{
    m_calm = isAsking() ? 0 : m_calm + 1; // BluezQt tells of a change only in the next turn of the loop
    if (m_record.isEmpty() || m_calm < 3)
        return m_calm >= 3;
    const QStringList found = effect(deed == "look");
    const QString folder = qEnvironmentVariable("PAIRDESK_RECORD");
    if (!folder.isEmpty() && !m_seen.isValid())
        m_seen.start();
    QStringList expected = m_sections.value(m_section).split('\n', Qt::SkipEmptyParts);
    const QStringList wanted = m_log ? expected
                                     : expected.filter(QRegularExpression(
                                         "^= |^" + QRegularExpression::escape(deed) + '$'));
    if (folder.isEmpty() ? QStringList(deed) + found != wanted : !m_seen.hasExpired(1800)) {
        *why = "expected " + wanted.join('\n') + "\n\nbut found\n" + found.join('\n');
        return false;
    }
    QFile record(folder + '/' + m_record + ".log");
    if (!folder.isEmpty() && record.open(QIODevice::Append))
        record.write(("# " + deed + '\n' + found.join('\n') + "\n\n").toUtf8());
    m_logged += found.filter(QRegularExpression("^(?!= )")).size();
    m_calls.clear();
    m_calm = 0;
    m_seen.invalidate();
    ++m_section;
    return true;
}
