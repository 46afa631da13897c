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
    installAccessibleSwitchFactory(); // before the first query for this label
}

void ClickableLabel::mousePressEvent(QMouseEvent * /*event*/) { Q_EMIT clicked(); }

void ClickableLabel::keyPressEvent(QKeyEvent *event)
{
    const bool isClick = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return
                         || event->key() == Qt::Key_Enter; // on the keypad
    if (!isClick || (event->modifiers() & ~Qt::KeypadModifier))
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Q_EMIT clicked();
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
