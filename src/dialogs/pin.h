// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace Ui {
class Pin;
}

/** Shows the PIN code or passkey that the user has to type on the device being paired. */
class Pin : public QDialog {
    Q_OBJECT

public:
    Pin(const QString &pin, QWidget *parent);
    ~Pin() override;

private:
    Ui::Pin *ui;

private Q_SLOTS:
    void on_pushButton_clicked();
};
