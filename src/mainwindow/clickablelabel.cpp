// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/clickablelabel.h"

ClickableLabel::ClickableLabel(QWidget *parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{
}

void ClickableLabel::mousePressEvent(QMouseEvent * /*event*/) { emit clicked(); }
