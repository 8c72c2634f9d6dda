#include "core/panelansage.h"

#include "core/panel.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class Panelansage : public QAccessibleWidget {
public:
    explicit Panelansage(Panel* panel) : QAccessibleWidget(panel) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return Drueckbar() ? QAccessible::Button : QAccessible::StaticText;
    }
    [[nodiscard]] QString text(QAccessible::Text was) const override {
        return was == QAccessible::Value ? Das().caption().trimmed() : QAccessibleWidget::text(was);
    }
    [[nodiscard]] QStringList actionNames() const override {
        QStringList namen = QAccessibleWidget::actionNames();
        if (Drueckbar()) {
            namen.prepend(pressAction());
        }
        return namen;
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && Drueckbar()) {
            Q_EMIT Das().geklickt();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    [[nodiscard]] Panel& Das() const { return static_cast<Panel&>(*widget()); }
    [[nodiscard]] bool Drueckbar() const {
        return widget()->isEnabled() && widget()->focusPolicy() != Qt::NoFocus;
    }
};

QAccessibleInterface* AnsageFuer(const QString& /*klasse*/, QObject* objekt) {
    auto* panel = qobject_cast<Panel*>(objekt);
    return panel == nullptr ? nullptr : new Panelansage(panel); // the toolkit owns it
}

} // namespace

void PanelansageEinrichten() {
    static const bool einmal = [] {
        QAccessible::installFactory(AnsageFuer);
        return true;
    }();
    static_cast<void>(einmal);
}
