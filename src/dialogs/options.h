// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class AppSettings;

namespace Ui {
class options;
}

/**
 * Edits the settings record in place when accepted; saving it is left to the caller. The check box for the
 * debug log acts at once, also when the dialog is cancelled.
 */
class options : public QDialog {
    Q_OBJECT

public:
    /** The settings record stays the caller's and outlives the dialog. */
    options(AppSettings *settings, QWidget *parent);
    ~options() override;

private:
    Ui::options *ui;
    AppSettings *m_settings;

private Q_SLOTS:
    void on_ok_clicked();
    void on_cancel_clicked();
    void on_debug_clicked(bool checked);
};
