// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/feedback.h"

#include <QApplication>
#include <QMessageBox>

void showWaitCursor()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::processEvents();
}

void restoreCursor()
{
    QApplication::restoreOverrideCursor();
    QApplication::processEvents();
}

static void showBox(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(icon, title, QString(), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}

void showInformation(QWidget *parent, const QString &title, const QString &text)
{
    showBox(QMessageBox::Information, parent, title, text);
}

void showCritical(QWidget *parent, const QString &title, const QString &text)
{
    showBox(QMessageBox::Critical, parent, title, text);
}
