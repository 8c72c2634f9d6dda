#include "core/klappliste.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QWheelEvent>

#include <utility>

namespace {

class Escwaechter : public QObject {
public:
    Escwaechter(QComboBox* liste, std::function<void()> beenden)
        : QObject(liste), liste_(liste), beenden_(std::move(beenden)) {
        liste->installEventFilter(this);
        liste->view()->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(ereignis)->key() != Qt::Key_Escape) {
            return QObject::eventFilter(objekt, ereignis);
        }
        liste_->hidePopup();
        beenden_();
        return true;
    }

private:
    QComboBox* liste_;
    std::function<void()> beenden_;
};

} // namespace

Klappliste::Klappliste(QWidget* eltern, const QString& name) : QComboBox(eltern) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
}

// What lies around it scrolls instead.
void Klappliste::wheelEvent(QWheelEvent* ereignis) {
    ereignis->ignore();
}

void EscBeendet(QComboBox* liste, std::function<void()> beenden) {
    new Escwaechter(liste, std::move(beenden)); // belongs to the list
}
