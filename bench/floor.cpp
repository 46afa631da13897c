// SPDX-License-Identifier: GPL-3.0-or-later
// The least that can be done with these libraries: a window of the program's size with its table of paired
// devices, and discovery whose finds are only counted. What the program costs is told as a ratio to this.
#include <BluezQt/Adapter>
#include <BluezQt/Device>
#include <BluezQt/InitManagerJob>
#include <BluezQt/Manager>
#include <BluezQt/PendingCall>
#include <QApplication>
#include <QPushButton>
#include <QTableWidget>

static void fill(QTableWidget &table, const QList<BluezQt::DevicePtr> &devices)
{
    table.setColumnCount(3);
    for (const BluezQt::DevicePtr &device : devices) {
        if (!device->isPaired())
            continue;
        const int row = table.rowCount();
        table.insertRow(row);
        table.setItem(row, 0, new QTableWidgetItem(device->name()));
        table.setItem(row, 1, new QTableWidgetItem(BluezQt::Device::typeToString(device->type())));
        table.setItem(row, 2, new QTableWidgetItem(QString::number(device->isConnected())));
    }
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    BluezQt::Manager manager;
    manager.init()->exec();

    QWidget window;
    window.setFixedSize(559, 515);
    QTableWidget table(&window);
    table.setGeometry(20, 110, 521, 281);
    fill(table, manager.devices());
    QPushButton scan(QStringLiteral("Scan"), &window);
    scan.setGeometry(20, 400, 89, 25);

    int found = 0;
    int changed = 0;
    QObject::connect(&scan, &QPushButton::clicked, &manager, [&] {
        const BluezQt::AdapterPtr adapter = manager.usableAdapter();
        QObject::connect(adapter.data(), &BluezQt::Adapter::deviceAdded, &manager, [&] { ++found; });
        QObject::connect(adapter.data(), &BluezQt::Adapter::deviceChanged, &manager, [&] { ++changed; });
        adapter->startDiscovery();
    });
    window.show();
    const int status = QApplication::exec();
    qInfo("%d found, %d changed", found, changed);
    return status;
}
