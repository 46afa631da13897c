// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/pairdesk.h"

#include "app/debuglog.h"
#include "app/look.h"
#include "app/paths.h"
#include "app/tablekeys.h"
#include "bluetooth/btagent.h"
#include "ui_pairdesk.h"

#include <BluezQt/Adapter>
#include <BluezQt/Manager>
#include <BluezQt/PendingCall>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QScreen>
#include <QTimer>

/** A call deletes itself, but one that was refused for want of a daemon belongs to nobody. */
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
    , m_bOk(false)
    , ui(new Ui::pairdesk)
    , m_exitCode(-1) // so that a systemctl which crashes at the very first call does not read as "on"
    , m_bOn(false)
    , m_manager(manager)
    , m_agent(nullptr)
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog);
    setFixedSize(size());
    setUpTable();
    setStyleSheet(windowStyleSheet());
    // A style sheet gives every window colours of its own, under which the style keeps what it has drawn:
    // each dialog adds to the store, which may grow to 10 MiB. This many KiB are enough for what is open at a
    // time.
    QPixmapCache::setCacheLimit(1024);
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
    addTableKeys(ui->devices);
    // The switch comes last, so that the window opens with the focus on its first button. Qt 5 puts nothing
    // directly behind the last widget.
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

void pairdesk::setUpTable()
{
    QTableWidget *table = ui->devices;
    table->setHorizontalHeaderLabels({ tr("Description"), tr("Type"), tr("Status") });
    table->horizontalHeader()->setStretchLastSection(true);
    table->setColumnWidth(0, 260);
    table->setColumnWidth(1, 120);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
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

/** A daemon that comes back knows nothing of the agent that its predecessor had. */
void pairdesk::registerAgentAgain()
{
    // Not what the signal told: events have been processed since, and the daemon may be gone again.
    if (!m_manager->isOperational())
        return;
    freeIfRefused(m_manager->registerAgent(m_agent));
    freeIfRefused(m_manager->requestDefaultAgent(m_agent));
}

void pairdesk::centre()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    move(available.center() - rect().center());
}
