// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/** A label that tells when a mouse button, whichever, goes down on it. */
class ClickableLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
};
