// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/**
 * A label that reports a press of any mouse button on it and, while it has the focus, of Space or Return
 * without modifiers.
 */
class ClickableLabel : public QLabel {
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
