// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/options.h"

#include "app/appsettings.h"
#include "app/debuglog.h"
#include "app/paths.h"
#include "ui_options.h"

options::options(AppSettings *settings, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::options)
    , m_settings(settings)
{
    ui->setupUi(this);
    setFixedSize(size());
    ui->tray->setChecked(m_settings->showTrayIcon);
    ui->debug->setChecked(m_settings->debug);
    ui->profile->setCurrentText(m_settings->audioProfile);
}

options::~options() { delete ui; }

void options::on_ok_clicked()
{
    m_settings->showTrayIcon = ui->tray->isChecked();
    m_settings->debug = ui->debug->isChecked();
    m_settings->audioProfile = ui->profile->currentText();
    accept();
}

void options::on_cancel_clicked() { reject(); }

void options::on_debug_clicked(bool checked)
{
    debugLog(3, "pairdesk::on_debug_clicked %d", checked); // the main window's prefix is intentional
    if (checked)
        debugLogOpen(paths::debugLogFile, 3);
    else
        debugLogClose();
}
