// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the dialogs.
#include "app/commandrunner.h"
#include "app/debuglog.h"
#include "bluetooth/btagent.h"
#include "dialogs/btscan.h"
#include "dialogs/options.h"
#include "mainwindow/pairdesk.h"

void pairdesk::on_add_clicked()
{
    debugLog(3, "pairdesk::on_add_clicked in");
    btscan dialog(m_agent, &m_settings, this);
    dialog.exec();
    populateTable();
    debugLog(3, "pairdesk::on_add_clicked out");
}

void pairdesk::on_options_clicked()
{
    debugLog(3, "pairdesk::on_options_clicked in");
    options dialog(&m_settings, this);
    if (dialog.exec() == QDialog::Accepted) {
        debugLog(3, "pairdesk::on_options_clicked options accepted");
        m_settings.save();
        runShellBlindly("pdtray &");
    }
    debugLog(3, "pairdesk::on_options_clicked out");
}
