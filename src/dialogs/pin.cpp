// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/pin.h"

#include "ui_pin.h"

Pin::Pin(const QString &pin, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::Pin)
{
    ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/images/btlogo64.png")));
    ui->pin->setText(pin);
}

Pin::~Pin() { delete ui; }

void Pin::on_pushButton_clicked() { close(); }
