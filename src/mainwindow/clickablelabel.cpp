// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/clickablelabel.h"

#include "mainwindow/accessibleswitch.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

ClickableLabel::ClickableLabel(QWidget *parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{
    setFocusPolicy(Qt::TabFocus);
    makeSwitchesAccessible(); // before anybody asks what this label is
}

void ClickableLabel::mousePressEvent(QMouseEvent * /*event*/) { emit clicked(); }

void ClickableLabel::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            emit clicked();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void ClickableLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
