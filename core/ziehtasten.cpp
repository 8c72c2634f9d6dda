// The way of a question without a mouse: held by one key, dropped by another.
#include "core/hauptfenster.h"
#include "core/zug.h"

#include <QKeyEvent>
#include <QScopeGuard>

#include <utility>

namespace {

constexpr std::string_view hinweisGehalten = " Frage aufgenommen: mit [F8] ablegen, mit [Esc] loslassen.";
constexpr std::string_view hinweisVergangen = " Die Frage, die ich halten sollte, steht dort nicht mehr.";

bool EscGedrueckt(const QKeyEvent& taste) {
    if (taste.key() != Qt::Key_Escape || !OhneMausGehalten()) {
        return false;
    }
    OhneMausLoslassen();
    return true;
}

// Turns the keys of a source into a press.
class Quelltasten : public QObject {
public:
    Quelltasten(QWidget* quelle, std::function<void(Qt::KeyboardModifiers)> druecken)
        : QObject(quelle), druecken_(std::move(druecken)) {
        quelle->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::KeyPress) {
            return QObject::eventFilter(objekt, ereignis);
        }
        const auto& taste = *static_cast<QKeyEvent*>(ereignis);
        const Qt::KeyboardModifiers zusatz = taste.modifiers();
        if (taste.key() == Qt::Key_F8 && (zusatz == Qt::ShiftModifier || zusatz == Qt::ControlModifier)) {
            const auto druecken = druecken_;
            OhneMausAufnehmen([&] { druecken(zusatz); });
            return true;
        }
        return EscGedrueckt(taste);
    }

private:
    std::function<void(Qt::KeyboardModifiers)> druecken_;
};

class Zieltasten : public QObject {
public:
    explicit Zieltasten(QWidget* ziel) : QObject(ziel) { ziel->installEventFilter(this); }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::KeyPress || !OhneMausGehalten()) {
            return QObject::eventFilter(objekt, ereignis);
        }
        const auto& taste = *static_cast<QKeyEvent*>(ereignis);
        if (taste.key() == Qt::Key_F8 && taste.modifiers() == Qt::NoModifier) {
            return OhneMausAblegen(static_cast<QWidget*>(objekt));
        }
        return EscGedrueckt(taste);
    }
};

} // namespace

void ZieltastenEinrichten(QWidget* ziel) {
    for (QObject* kind : ziel->children()) {
        if (dynamic_cast<Zieltasten*>(kind) != nullptr) {
            return;
        }
    }
    new Zieltasten(ziel);
}

void TastenEinrichten(QWidget* quelle, std::function<void(Qt::KeyboardModifiers)> druecken) {
    new Quelltasten(quelle, std::move(druecken));
}

bool OhneMausAufnehmen(const std::function<void()>& druecken) {
    Zug& zug = AktuellerZug();
    zug.gehalten = false;
    zug.ohneMaus = true;
    {
        const auto danach = qScopeGuard([&zug] { zug.ohneMaus = false; });
        druecken();
    }
    if (zug.gehalten) {
        HilfeText(hinweisGehalten);
    }
    return zug.gehalten;
}

bool OhneMausAblegen(QWidget* ziel) {
    const Zielmarke* marke = EigeneMarke(ziel);
    if (!OhneMausGehalten() || marke == nullptr || !marke->nimmt()) {
        return false;
    }
    Zug& zug = AktuellerZug();
    zug.gehalten = false;
    if (zug.erneuern) {
        const std::optional<Ziehwert> neu = zug.erneuern();
        if (!neu) {
            HilfeText(hinweisVergangen);
            return true;
        }
        zug.wert = *neu;
    }
    const Ziehwert wert = zug.wert; // the steps may begin another drag
    marke->ausfuehren(wert);
    return true;
}

bool OhneMausGehalten() {
    return AktuellerZug().gehalten && AktuellerZug().quelle != nullptr;
}

void OhneMausLoslassen() {
    AktuellerZug().gehalten = false;
}

void OhneMausLoslassen(Formart herkunft) {
    if (AktuellerZug().wert.herkunft == herkunft && AktuellerZug().wert.feld > 0) {
        OhneMausLoslassen();
    }
}
