// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/desk.h"

#include "app/debuglog.h"

#include <BluezQt/InitManagerJob>
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

Desk::Desk()
{
    QApplication::setFont(QFont(QFont().family(), 10)); // a size that desktops have
    QApplication::setQuitOnLastWindowClosed(false); // which would end the event loops of the next desk
    manager.init()->exec();
    s_otherHandler = qInstallMessageHandler(hear);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, [this] { m_calm = isAsking() ? 0 : m_calm + 1; });

    for (const char *name :
         { "device", "set", "name", "alias", "how", "goon", "lose", "adapter", "strangers", "gone", "agent" })
        verb(name, [=](const QString &object) { sim(name + (' ' + object)); });
    verb("open", [this](const QString &) {
        window = std::make_unique<pairdesk>(&manager, nullptr);
        agent = window->findChild<btagent *>();
        table = window->findChild<QTableWidget *>("devices");
        window->show();
    });
    verb("file", [=](const QString &object) {
        put(path(object.section(' ', 0, 0)),
            object.section(' ', 1).replace("\\n", "\n").replace("\\t", "\t").toUtf8());
    });
    verb("devices", [=](const QString &count) { return manager.devices().size() == count.toInt(); });
    verb("look", [](const QString &) {});
    verb("kill", [=](const QString &) { kill(); });
    verb("start", [=](const QString &) { start(); });
    verb("operational", [=](const QString &on) { return manager.isOperational() == (on == "on"); });
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
    does(QStringList(m_sections).replaceInStrings(QRegularExpression("(?s)\n.*"), QString()));
    for (const QString &section : std::as_const(m_sections)) // not reached while recording
        m_record += ("# " + section + "\n\n").toUtf8();
    if (qEnvironmentVariableIsSet("PAIRDESK_RECORD"))
        put(file, m_record.trimmed() + '\n');
}

BluezQt::DevicePtr Desk::device(const QString &name) const
{
    for (const BluezQt::DevicePtr &device : manager.devices()) {
        if (device->name() == name)
            return device;
    }
    return {};
}

/** The size of a window, and the places and texts of its parts. */
static void tellLayout(QTextStream &out, const QWidget *window, const QList<QWidget *> &parts)
{
    out << "\n  " << window->windowTitle() << ' ' << window->width() << 'x' << window->height()
        << (window->minimumSize() == window->maximumSize() ? " fixed" : " free");
    for (const QWidget *part : parts) {
        const QRect place = part->geometry();
        const QString text = part->property("text").toString() + part->property("title").toString();
        out << "\n  " << part->objectName() << ' ' << place.x() << ',' << place.y() << ' ' << place.width()
            << 'x' << place.height() << ' ' << text;
        const int wanted = part->property("checkable").toBool()
                               ? part->sizeHint().width()
                               : part->fontMetrics().tightBoundingRect(text).width();
        out << (wanted > place.width() ? " TOO WIDE" : "");
        out << (!text.isEmpty() && part->fontMetrics().height() > place.height() ? " TOO HIGH" : "");
        const auto *table = qobject_cast<const QTableWidget *>(part);
        for (int column = 0; table && column < table->columnCount(); ++column) {
            const int width = table->columnWidth(column);
            out << ' ' << table->horizontalHeaderItem(column)->text() << ' ' << width;
            const QAbstractItemView *view = table; // names may be cut
            if (table->horizontalHeader()->sectionSizeHint(column) > width
                || (column > 0 && view->sizeHintForColumn(column) > width))
                out << " TOO WIDE";
        }
        if (table && (table->horizontalScrollBar()->isVisible() || table->verticalScrollBar()->isVisible()))
            out << " SCROLLS";
        for (const QWidget *other : parts) {
            const QRect common = place & other->geometry();
            if (part != other && part->parent() == other->parent() && common.width() > 1
                && common.height() > 1)
                out << " OVERLAPS " << other->objectName();
        }
    }
}

/** A window's line and those below it: its own parts, less those inside Qt's widgets. */
static void tell(QTextStream &out, const QWidget *window, bool withLayout)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(window)) {
        out << "box" << box->icon() << ' ' << box->windowTitle() << ": " << box->text()
            << (box->textFormat() == Qt::PlainText ? "" : " RICH");
        return;
    }
    out << window->objectName();
    for (const QAction *action : window->actions())
        out << ' ' << action->text();
    QList<QWidget *> parts = window->findChildren<QWidget *>(QRegularExpression("^(?!qt_).+"));
    parts.erase(
        std::remove_if(parts.begin(), parts.end(),
                       [=](QWidget *part) { return !part->isVisibleTo(window) || part->window() != window; }),
        parts.end());
    QString rowLines;
    for (const QWidget *part : parts) {
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
        else if (label && label->movie())
            value = label->movie()->state() == QMovie::Running ? "=moving" : "=still";
        if (!label || !value.isEmpty())
            out << (part->isEnabled() ? " " : " -") << part->objectName() << (part->hasFocus() ? "*" : "")
                << value;
        const auto *table = qobject_cast<const QTableWidget *>(part);
        for (int row = 0; table && row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; table->item(row, column); ++column)
                cells += table->item(row, column)->text().replace('\n', "\\n");
            rowLines += (row == table->currentRow() ? "\n @" : "\n  ") + cells.join('|');
        }
    }
    out << rowLines;
    if (withLayout)
        tellLayout(out, window, parts);
}

QStringList Desk::view(bool withLayout)
{
    QStringList windows;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        QString told;
        QTextStream out(&told);
        if (window->isVisible() && !window->objectName().startsWith("qt_"))
            tell(out, window, withLayout);
        windows += told;
    }
    windows.sort();
    return windows.join('\n').split('\n', Qt::SkipEmptyParts);
}

/** What the deed has changed up to now. */
QStringList Desk::effect(bool withLayout)
{
    static const QRegularExpression same("^.*?\\)- | item: \\K(?!0$)[0-9a-f]+$",
                                         QRegularExpression::MultilineOption);
    const QString log = QString::fromUtf8(contentOf(path("log"))).remove(same);
    m_log = log.split('\n', Qt::SkipEmptyParts).mid(m_logged);
    const QString calls = QString::fromUtf8(contentOf(path("calls.log")));
    m_calls = calls.split('\n', Qt::SkipEmptyParts).mid(m_called);
    QString state = "stored " + contentOf(store).simplified();
    QTextStream out(&state);
    if (agent && agent->device)
        out << "\ncurrent device " << agent->device->name().simplified();
    if (agent && (agent->cancelled || agent->pinCodeRequested))
        out << "\nagent: pin " << agent->pinCode << " passkey " << agent->passkey << " entered "
            << agent->enteredPasskey << " confirmation " << agent->confirmationPasskey << " service "
            << agent->serviceUuid << " asked " << agent->pinCodeRequested << agent->passkeyRequested
            << " over " << agent->cancelled << agent->released;
    if (window && !window->isVisible())
        out << "\nleft" << (window->m_bOk ? " with OK" : "");
    if (QApplication::overrideCursor())
        out << "\ncursor " << QApplication::overrideCursor()->shape();
    QStringList shown = m_calls + view(withLayout) + state.split('\n');
    return m_log + shown.replaceInStrings(QRegularExpression("^"), "= ");
}

bool Desk::hasEffect(const QString &deed, QString *why)
{
    if (!m_turn.isActive())
        m_turn.start(0); // BluezQt tells of a change only in the next turn of the loop
    const bool isRecording = qEnvironmentVariableIsSet("PAIRDESK_RECORD");
    if (m_calm < (isRecording ? 300 : 2))
        return false;
    if (m_sections.isEmpty()) {
        m_calm = 0;
        return true;
    }
    const QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    int late = -1; // the user's own look
    for (QObject *child : dispatcher->children())
        late += child->inherits("QSingleShotTimer") && !dispatcher->registeredTimers(child).isEmpty();
    if (late > 0)
        return false;
    QStringList found = effect(deed == "look");
    QStringList wanted = m_sections.first().split('\n', Qt::SkipEmptyParts).mid(1);
    if (!m_withLog)
        wanted = wanted.filter(QRegularExpression("^= "));
    const QString all = found.join('\n');
    // With Qt 6 the hash table, and so the manager, keeps devices in another order; without a seat nothing
    // has the focus.
    const bool isExact = QT_VERSION_MAJOR == 5 && QGuiApplication::platformName() == "offscreen";
    static const QRegularExpression varying("(row:)\\d+|(^= )  |(^= ) @|\\*");
    for (QStringList *lines : { &found, &wanted }) {
        if (!isExact)
            lines->replaceInStrings(varying, "\\1\\2\\3").sort();
    }
    if (!isRecording && found != wanted) {
        *why = "after " + deed + " expected\n" + wanted.join('\n') + "\n\nbut found\n" + all;
        return false;
    }
    if (isRecording)
        m_record += ("# " + deed + '\n' + all + "\n\n").toUtf8();
    m_logged += m_log.size();
    m_called += m_calls.size();
    m_calm = 0;
    m_sections.removeFirst();
    return true;
}
