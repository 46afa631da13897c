// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

void whenModal(const std::function<void(QWidget *)> &step)
{
    auto *look = new QTimer(qApp);
    const QPointer<QWidget> known = QApplication::activeModalWidget();
    QObject::connect(look, &QTimer::timeout, [look, known, step] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || modal == known || !modal->isVisible())
            return;
        look->stop();
        look->deleteLater();
        step(modal);
    });
    look->start(5);
}

void closeBox(QStringList *seen)
{
    whenModal([seen](QWidget *modal) {
        auto *box = qobject_cast<QMessageBox *>(modal);
        QVERIFY2(box, modal->metaObject()->className());
        QCOMPARE(box->textFormat(), Qt::PlainText);
        seen->append(box->windowTitle() + QStringLiteral(": ") + box->text());
        box->accept();
    });
}

QStringList rows(const QTableWidget *table)
{
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column) {
            if (const QTableWidgetItem *item = table->item(row, column))
                cells.append(item->text());
        }
        texts.append(cells.join(QLatin1Char('|')));
    }
    return texts;
}

bool clickRow(QTableWidget *table, const QString &name)
{
    const QList<QTableWidgetItem *> found = table->findItems(name, Qt::MatchExactly);
    if (found.isEmpty())
        return false;
    table->scrollToItem(found.first());
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(found.first()).center());
    return true;
}

void press(QWidget *window, const char *button)
{
    QTest::mouseClick(window->findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
}
