#include "core/panelansage.h"

#include "core/drehfeld.h"
#include "core/panel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

namespace {

constexpr const char* marke = "sagtAn";

bool SagtAn(const QObject* element) {
    return element->property(marke).toBool();
}

class Panelansage : public QAccessibleWidget {
public:
    explicit Panelansage(Panel* panel) : QAccessibleWidget(panel) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return SagtAn(widget()) ? QAccessible::Notification
               : Drueckbar()    ? QAccessible::Button
                                : QAccessible::StaticText;
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

// The number stands in a panel beside it, and a wanted one is reached step by step.
class Drehfeldansage : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit Drehfeldansage(Drehfeld* feld) : QAccessibleWidget(feld, QAccessible::SpinBox) {}

    void* interface_cast(QAccessible::InterfaceType art) override {
        return art == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(art);
    }
    [[nodiscard]] QString text(QAccessible::Text was) const override {
        return was == QAccessible::Value ? QString::number(Das().Zahl()) : QAccessibleWidget::text(was);
    }
    [[nodiscard]] QVariant currentValue() const override { return Das().Zahl(); }
    void setCurrentValue(const QVariant& wert) override {
        const int ziel = wert.toInt();
        const bool hinauf = ziel > Das().Zahl();
        for (int bisher = Das().Zahl(); hinauf ? bisher < ziel : bisher > ziel; bisher = Das().Zahl()) {
            if (hinauf) {
                Q_EMIT Das().hoch();
            } else {
                Q_EMIT Das().runter();
            }
            if (Das().Zahl() == bisher) {
                return; // refused: the end of the numbers
            }
        }
    }
    // What the ends are is the affair of whoever counts.
    [[nodiscard]] QVariant maximumValue() const override { return {}; }
    [[nodiscard]] QVariant minimumValue() const override { return {}; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    [[nodiscard]] Drehfeld& Das() const { return static_cast<Drehfeld&>(*widget()); }
};

QAccessibleInterface* AnsageFuer(const QString& /*klasse*/, QObject* objekt) {
    if (auto* panel = qobject_cast<Panel*>(objekt); panel != nullptr) {
        return new Panelansage(panel); // the toolkit owns it
    }
    if (auto* drehfeld = qobject_cast<Drehfeld*>(objekt); drehfeld != nullptr) {
        return new Drehfeldansage(drehfeld);
    }
    auto* schild = qobject_cast<QLabel*>(objekt);
    return schild == nullptr || !SagtAn(schild) ? nullptr
                                                : new QAccessibleWidget(schild, QAccessible::Notification);
}

} // namespace

void PanelansageEinrichten() {
    static const bool einmal = [] {
        QAccessible::installFactory(AnsageFuer);
        return true;
    }();
    static_cast<void>(einmal);
}

void WechselAnsagen(QWidget* element) {
    element->setProperty(marke, true);
}

// A notification is read out when it appears, so the one that has changed appears anew.
void GewechseltAnsagen(QWidget* element) {
    if (SagtAn(element) && element->isVisible()) {
        QAccessibleEvent ereignis(element, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&ereignis);
    }
}
