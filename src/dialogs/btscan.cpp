// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog and its list of devices; see btscan_connect.cpp for connecting one.
#include "dialogs/btscan.h"

#include "app/debuglog.h"
#include "app/text.h"
#include "bluetooth/adapters.h"
#include "bluetooth/btagent.h"
#include "bluetooth/devicetype.h"
#include "dialogs/pin.h"
#include "ui_btscan.h"
#include "widgets/devicetable.h"
#include "widgets/feedback.h"
#include "widgets/stylesheet.h"

#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <QDebug>
#include <QMovie>

namespace {
/**
 * A row's first item: the device's name, and its address under Qt::UserRole. The address is kept as a string
 * because that of each new device is compared with those of all rows.
 */
class DeviceItem : public QTableWidgetItem {
public:
    const QString address;

    explicit DeviceItem(const BluezQt::DevicePtr &device)
        : QTableWidgetItem(device->name())
        , address(device->address())
    {
    }

    QVariant data(int role) const override
    {
        return role == Qt::UserRole ? address : QTableWidgetItem::data(role);
    }
};
}

btscan::btscan(btagent *agent, AppSettings *settings, QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::btscan)
    , m_agent(agent)
    , settings(settings)
{
    debugLog(3, "btscan::btscan");
    ui->setupUi(this);
    setFixedSize(size());
    debugLog(3, "btscan::btscan in");
    setUpDeviceTable(ui->devices, { tr("Description"), tr("Type") }, { 180 });
    ui->pairconnect->setEnabled(false);
    ui->remove->setEnabled(false);
    setStyleSheet(windowStyleSheet());
    setWindowIcon(QIcon(QStringLiteral(":/images/btlogo64.png")));

    connect(m_agent, SIGNAL(deviceAdded()), this, SLOT(onDeviceFound()));
    connect(m_agent, SIGNAL(agentDeviceChanged()), this, SLOT(onDevicePropertyChanged()));
    connect(m_agent, SIGNAL(pairedChanged(bool)), this, SLOT(onPairedChanged(bool)));
    connect(m_agent, SIGNAL(displayPinCodeSlot(QString)), this, SLOT(onDisplayPinCode(QString)));
    connect(m_agent, SIGNAL(cancelSignal()), this, SLOT(onCancel()));

    startAnimation(ui->gif, nullptr);
    populateTable();
    m_agent->scanDevices();
    debugLog(3, "btscan::btscan out");
}

btscan::~btscan()
{
    debugLog(3, "btscan::~btscan");
    m_agent->stopScan();
    delete m_busyMovie;
    delete ui;
}

void btscan::startAnimation(QLabel *label, const char *file)
{
    m_busyLabel = label;
    m_busyMovie = new QMovie(QString::fromUtf8(file ? file : ":/images/loader4.gif"));
    m_busyMovie->setCacheMode(QMovie::CacheAll); // it runs as long as the dialog is open
    m_busyLabel->setMovie(m_busyMovie);
    m_busyLabel->show();
    m_busyMovie->start();
}

int btscan::appendRow(const BluezQt::DevicePtr &device)
{
    const int row = ui->devices->rowCount();
    ui->devices->insertRow(row);
    ui->devices->setItem(row, 0, new DeviceItem(device));
    return row;
}

bool btscan::isListed(const QString &address) const
{
    for (int row = 0; row < ui->devices->rowCount(); ++row) {
        const auto *item = static_cast<const DeviceItem *>(ui->devices->item(row, 0));
        debugLog(3, "btscan::onDeviceFound item: %x",
                 static_cast<unsigned>(reinterpret_cast<quintptr>(item)));
        if (item && item->address == address)
            return true;
    }
    return false;
}

void btscan::populateTable()
{
    qDebug() << "populateTable";
    debugLog(3, "btscan::populateTable in");
    ui->devices->clearContents(); // intentionally keeps the empty rows; new ones go below
    const QList<BluezQt::DevicePtr> devices = m_agent->manager->devices();
    for (const BluezQt::DevicePtr &device : devices) {
        const QString type = BluezQt::Device::typeToString(device->type());
        debugLog(3, "btscan::populateTable dev: %s, address: %s, type: %s", logPrintable(device->name()),
                 logPrintable(device->address()), logPrintable(type));
        if (device->type() == BluezQt::Device::Uncategorized || device->isPaired())
            continue;
        const int row = appendRow(device);
        qDebug() << "new item" << device->name();
        ui->devices->setItem(row, 1, new QTableWidgetItem(deviceTypeText(device->type())));
    }
    debugLog(3, "btscan::populateTable out");
}

void btscan::onDeviceFound()
{
    debugLog(3, "btscan::onDeviceFound in");
    const BluezQt::DevicePtr device = m_agent->device;
    if (!device)
        return;
    const QString type = BluezQt::Device::typeToString(device->type());
    debugLog(3, "btscan::onDeviceFound dev: %s, address: %s, type: %s, appearance: %04x",
             logPrintable(device->name()), logPrintable(device->address()), logPrintable(type),
             device->appearance());
    if (device->type() == BluezQt::Device::Uncategorized) {
        qDebug() << "Uncategarized with appearance:" << device->appearance();
        debugLog(3, "btscan::onDeviceFound out");
        return;
    }
    if (isListed(device->address())) {
        debugLog(3, "btscan::onDeviceFound found, skip");
        return;
    }
    ui->devices->setItem(appendRow(device), 1, new QTableWidgetItem(deviceTypeText(device->type())));
    debugLog(3, "btscan::onDeviceFound out");
}

void btscan::onDevicePropertyChanged()
{
    debugLog(3, "btscan::onDevicePropertyChanged in");
    if (const BluezQt::DevicePtr device = m_agent->device) {
        debugLog(3, "btscan::onDevicePropertyChanged dev: %s, type: %s", logPrintable(device->name()),
                 logPrintable(BluezQt::Device::typeToString(device->type())));
    }
    debugLog(3, "btscan::onDevicePropertyChanged out");
}

QString btscan::getDeviceAddress()
{
    debugLog(3, "btscan::getDeviceAddress in");
    const QList<QTableWidgetItem *> selected = ui->devices->selectedItems();
    if (selected.isEmpty()) {
        debugLog(3, "btscan::getDeviceAddress out1");
        return {};
    }
    QString address = selected.first()->data(Qt::UserRole).toString();
    debugLog(3, "btscan::getDeviceAddress out2");
    return address;
}

void btscan::on_devices_clicked(QModelIndex /*index*/)
{
    debugLog(3, "btscan::on_devices_clicked");
    if (ui->devices->selectedItems().isEmpty() || m_busy) {
        ui->remove->setEnabled(false);
    } else {
        ui->pairconnect->setEnabled(true);
        ui->remove->setEnabled(true);
    }
    debugLog(3, "btscan::on_devices_clicked out");
}

void btscan::on_close_clicked()
{
    debugLog(3, "btscan::on_close_clicked in");
    restoreCursor();
    close();
    debugLog(3, "btscan::on_close_clicked out");
}

void btscan::on_remove_clicked()
{
    debugLog(3, "pairdesk::on_remove_clicked in"); // the main window's prefix is intentional
    removeSelected();
    debugLog(3, "pairdesk::on_remove_clicked out");
}

void btscan::removeSelected()
{
    const QString address = getDeviceAddress();
    BluezQt::Manager *manager = m_agent->manager;
    if (!manager || address.isEmpty())
        return;
    showWaitCursor();
    const BluezQt::DevicePtr device = manager->deviceForAddress(address);
    if (!device)
        return;
    const BluezQt::AdapterPtr adapter = ensureUsableAdapter(manager);
    if (!adapter)
        return;
    // Intentionally disconnects all receivers, so that a removal is reported once.
    QObject::disconnect(adapter.data(), nullptr, nullptr, nullptr);
    connect(adapter.data(), &BluezQt::Adapter::deviceRemoved, this, &btscan::onDeviceRemoved);
    adapter->removeDevice(device);
}

void btscan::onDeviceRemoved(BluezQt::DevicePtr /*device*/)
{
    debugLog(3, "btscan::onDeviceRemoved in");
    populateTable();
    restoreCursorAfterRemoval(m_agent->manager);
    debugLog(3, "btscan::onDeviceRemoved out");
}

void btscan::onDisplayPinCode(QString pin)
{
    debugLog(3, "btscan::onDisplayPinCode %s", logPrintable(pin));
    m_pin = new Pin(pin, this);
    m_pin->show();
    debugLog(3, "btscan::onDisplayPinCode out");
}

void btscan::onCancel()
{
    debugLog(3, "btscan::onCancel");
    closePin();
    debugLog(3, "btscan::onCancel out");
}

void btscan::closePin()
{
    if (m_pin)
        m_pin->close();
    m_pin = nullptr;
}
