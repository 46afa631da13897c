// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow/accessibleswitch.h"

#include "mainwindow/clickablelabel.h"

#include <QAccessibleWidget>

static const char stateProperty[] = "accessibleOn";

namespace {
class AccessibleSwitch : public QAccessibleWidget {
public:
    explicit AccessibleSwitch(QWidget *label)
        : QAccessibleWidget(label, QAccessible::CheckBox)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = object()->property(stateProperty).toBool();
        return state;
    }

    QStringList actionNames() const override { return { toggleAction(), setFocusAction() }; }

    void doAction(const QString &name) override
    {
        // Queued: a click runs commands, and the caller waits for the answer.
        if (name == toggleAction())
            QMetaObject::invokeMethod(object(), "clicked", Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }
};
}

static QAccessibleInterface *create(const QString & /*key*/, QObject *object)
{
    auto *label = qobject_cast<ClickableLabel *>(object);
    return label ? new AccessibleSwitch(label) : nullptr;
}

void installAccessibleSwitchFactory() { QAccessible::installFactory(create); }

void setAccessibleState(ClickableLabel *label, bool on)
{
    if (label->property(stateProperty).toBool() == on)
        return;
    label->setProperty(stateProperty, on);
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(label, changed);
    QAccessible::updateAccessibility(&event);
}
