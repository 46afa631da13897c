// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/pairdesk.h"

#include "app/debuglog.h"
#include "app/paths.h"
#include "bluetooth/btagent.h"
#include "ui_pairdesk.h"
#include "widgets/devicetable.h"
#include "widgets/stylesheet.h"

#include <BluezQt/Adapter>
#include <BluezQt/Manager>
#include <BluezQt/PendingCall>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

/** Pending calls delete themselves; those rejected at once have no parent and would leak. */
static void freeIfRefused(BluezQt::PendingCall *call)
{
    if (!call->parent())
        delete call;
}

static void waitFor(BluezQt::PendingCall *call)
{
    call->waitForFinished();
    freeIfRefused(call);
}

pairdesk::pairdesk(BluezQt::Manager *manager, QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::pairdesk)
    , m_manager(manager)
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog);
    setFixedSize(size());
    setUpDeviceTable(ui->devices, { tr("Description"), tr("Type"), tr("Status") }, { 260, 120 });
    ui->devices->setContextMenuPolicy(Qt::CustomContextMenu);
    setStyleSheet(windowStyleSheet());
    setWindowIcon(QIcon(QStringLiteral(":/images/btlogo64.png")));

    m_settings.load();
    if (m_settings.debug)
        debugLogOpen(paths::debugLogFile, 3);
    debugLog(3, "pairdesk::pairdesk in");

    m_agent = new btagent(m_manager, &m_settings, this);
    waitFor(m_manager->registerAgent(m_agent));
    waitFor(m_manager->requestDefaultAgent(m_agent));
    connectSignals();

    m_bOn = m_settings.enabled;
    getBluetoothStatus();
    updateUi();
    connect(ui->pushme, SIGNAL(clicked()), this, SLOT(on_onoff_clicked()));
    onPopupateTable();
    ui->connect->setEnabled(false);
    ui->disconnect->setEnabled(false);
    ui->remove->setEnabled(false);
    centre();
    m_bOk = false;
    // The switch is last, so that the window opens with the focus on its first button. Qt 5 cannot insert a
    // widget directly behind the last one.
    setTabOrder(ui->ok, ui->pushme);
    setTabOrder(ui->ok, ui->options);
    debugLog(3, "pairdesk::pairdesk out");
    QTimer::singleShot(500, this, SLOT(hcitoollescan()));
}

pairdesk::~pairdesk()
{
    debugLogClose();
    delete ui;
}

void pairdesk::connectSignals()
{
    connect(m_agent, SIGNAL(connectedChanged(bool)), this, SLOT(onConnectedChanged(bool)));
    connect(m_manager, SIGNAL(bluetoothBlockedChanged(bool)), this, SLOT(onBlockedChanged(bool)));
    connect(m_manager, SIGNAL(operationalChanged(bool)), this, SLOT(onOperationalChanged(bool)));
    connect(m_manager, &BluezQt::Manager::adapterAdded, this, &pairdesk::onAdapterAdded);
    connect(m_manager, &BluezQt::Manager::adapterRemoved, this, &pairdesk::onAdapterRemoved);
    connect(m_agent, SIGNAL(callFinished(QString, QString)), this, SLOT(onCallFinished(QString, QString)));
    const QList<BluezQt::AdapterPtr> adapters = m_manager->adapters();
    for (const BluezQt::AdapterPtr &adapter : adapters)
        connect(adapter.data(), &BluezQt::Adapter::deviceChanged, this, &pairdesk::onDevicePropertyChanged);
    connect(m_manager, &BluezQt::Manager::operationalChanged, this, &pairdesk::registerAgentAgain);
}

/** A restarted bluetoothd has lost the registration. */
void pairdesk::registerAgentAgain()
{
    // The signal's argument may be outdated: events have been processed since.
    if (!m_manager->isOperational())
        return;
    freeIfRefused(m_manager->registerAgent(m_agent));
    freeIfRefused(m_manager->requestDefaultAgent(m_agent));
}

void pairdesk::centre()
{
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}
