#include "core/ziehen.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/ziehbilder.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace {

constexpr std::string_view hinweisGehalten = " Frage aufgenommen: mit [F8] ablegen, mit [Esc] loslassen.";

// Hangs below the control it speaks for, and goes with it. Without steps the control takes nothing.
class Zielmarke : public QObject {
public:
    Zielmarke(QWidget* element, ZiehBild bild, std::function<void()> ablegen)
        : QObject(element), bild_(bild), ablegen_(std::move(ablegen)) {
        element->installEventFilter(this);
    }

    [[nodiscard]] bool nimmt() const { return static_cast<bool>(ablegen_); }
    [[nodiscard]] ZiehBild bild() const { return bild_; }
    // The steps may take the control away, and the mark with it.
    void ausfuehren() const {
        const std::function<void()> schritte = ablegen_;
        schritte();
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    ZiehBild bild_;
    std::function<void()> ablegen_;
};

struct Zug {
    std::string frage;
    QPointer<QWidget> quelle;
    QPointer<Zielmarke> getroffen;
    QPointer<QDrag> drag;
    ZiehBild bild = ZiehBild::Keins;
    double pixelverhaeltnis = 1.0;
    bool ohneMaus = false; // a press by key is under way
    bool gehalten = false;
};

Zug& AktuellerZug() {
    static Zug zug;
    return zug;
}

Zielmarke* EigeneMarke(const QObject* element) {
    for (QObject* kind : element->children()) {
        if (auto* marke = dynamic_cast<Zielmarke*>(kind)) {
            return marke;
        }
    }
    return nullptr;
}

// The mark that counts at a control: its own or that of the nearest control around it.
Zielmarke* MarkeVon(const QWidget* element) {
    for (; element != nullptr; element = element->isWindow() ? nullptr : element->parentWidget()) {
        if (Zielmarke* marke = EigeneMarke(element)) {
            return marke;
        }
    }
    return nullptr;
}

Qt::DropAction Aktion(ZiehBild bild) {
    switch (bild) {
    case ZiehBild::Ablegen:
        return Qt::MoveAction;
    case ZiehBild::Atom:
        return Qt::LinkAction;
    default:
        return Qt::IgnoreAction;
    }
}

void BildZeigen(ZiehBild bild) {
    Zug& zug = AktuellerZug();
    if (bild != zug.bild && zug.drag != nullptr) {
        zug.bild = bild;
        zug.drag->setDragCursor(Ziehpixmap(bild, zug.pixelverhaeltnis), Aktion(bild));
    }
}

// The innermost control at a place of a window.
QWidget* ElementUnter(const QWindow& fenster, QPoint stelle) {
    QWidget* grund = QWidget::find(fenster.winId());
    QWidget* innen = grund != nullptr ? grund->childAt(stelle) : nullptr;
    return innen != nullptr ? innen : grund;
}

bool InQuelle(const QWidget* element) {
    const QWidget* quelle = AktuellerZug().quelle;
    return element != nullptr && quelle != nullptr && (element == quelle || quelle->isAncestorOf(element));
}

// Answers for every window of the program while a drag runs, ahead of the controls: the parts inside a
// control, such as the text area of a box, need no care then, and no text box takes the question as mere
// text.
class Zugwaechter : public QObject {
public:
    Zugwaechter() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (!objekt->isWindowType()) {
            return false;
        }
        switch (ereignis->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            Beantworten(*static_cast<QWindow*>(objekt), *static_cast<QDropEvent*>(ereignis));
            return true;
        case QEvent::DragLeave:
            BildZeigen(ZiehBild::Nein);
            return true;
        default:
            return false;
        }
    }

private:
    static void Beantworten(const QWindow& fenster, QDropEvent& fall) {
        QWidget* element = ElementUnter(fenster, fall.position().toPoint());
        Zielmarke* marke = MarkeVon(element);
        if (marke == nullptr || !marke->nimmt()) {
            BildZeigen(InQuelle(element) ? ZiehBild::Aufnehmen : ZiehBild::Nein);
            fall.setDropAction(Qt::IgnoreAction);
            fall.ignore();
            return;
        }
        BildZeigen(marke->bild());
        if (fall.type() == QEvent::Drop) {
            AktuellerZug().getroffen = marke;
        }
        fall.setDropAction(Aktion(marke->bild()));
        fall.accept();
    }
};

QMimeData* Ziehdaten(const std::string& frage) {
    auto* daten = new QMimeData;
    daten->setData(QLatin1String(ziehFormat), QByteArray::fromStdString(frage));
    daten->setText(Anzeige(frage));
    return daten;
}

void ZugAusfuehren(Zug& zug) {
    const Zugwaechter waechter;
    // Not the source's child: the source may be gone before the drag is.
    auto* drag = new QDrag(QCoreApplication::instance());
    drag->setMimeData(Ziehdaten(zug.frage));
    QPixmap leer(1, 1); // the cursors say it all; without a picture the toolkit would add one of its own
    leer.fill(Qt::transparent);
    drag->setPixmap(leer);
    for (const ZiehBild bild : {ZiehBild::Ablegen, ZiehBild::Atom, ZiehBild::Aufnehmen}) {
        drag->setDragCursor(Ziehpixmap(bild, zug.pixelverhaeltnis), Aktion(bild));
    }
    zug.drag = drag;
    zug.bild = ZiehBild::Aufnehmen;
    drag->exec(Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
    zug.drag = nullptr;
    zug.bild = ZiehBild::Keins;
}

bool EscGedrueckt(const QKeyEvent& taste) {
    if (taste.key() != Qt::Key_Escape || !OhneMausGehalten()) {
        return false;
    }
    OhneMausLoslassen();
    return true;
}

bool Zielmarke::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() != QEvent::KeyPress || !OhneMausGehalten()) {
        return QObject::eventFilter(objekt, ereignis);
    }
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    if (taste->key() == Qt::Key_F8 && taste->modifiers() == Qt::NoModifier) {
        return OhneMausAblegen(static_cast<QWidget*>(objekt));
    }
    return EscGedrueckt(*taste) || QObject::eventFilter(objekt, ereignis);
}

// Turns the keys of a source into a press.
class Tastenquelle : public QObject {
public:
    Tastenquelle(QWidget* quelle, std::function<void(Qt::KeyboardModifiers)> druecken)
        : QObject(quelle), druecken_(std::move(druecken)) {
        quelle->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::KeyPress) {
            const auto* taste = static_cast<QKeyEvent*>(ereignis);
            const Qt::KeyboardModifiers zusatz = taste->modifiers();
            if (taste->key() == Qt::Key_F8 &&
                (zusatz == Qt::ShiftModifier || zusatz == Qt::ControlModifier)) {
                const auto druecken = druecken_;
                OhneMausAufnehmen([&] { druecken(zusatz); });
                return true;
            }
            if (EscGedrueckt(*taste)) {
                return true;
            }
        }
        return QObject::eventFilter(objekt, ereignis);
    }

private:
    std::function<void(Qt::KeyboardModifiers)> druecken_;
};

void Markieren(QWidget* element, ZiehBild bild, std::function<void()> ablegen) {
    delete EigeneMarke(element);
    new Zielmarke(element, bild, std::move(ablegen));
    element->setAcceptDrops(true);
}

} // namespace

ZiehBild AktuellesZiehBild() {
    return AktuellerZug().bild;
}

const std::string& GezogeneFrage() {
    return AktuellerZug().frage;
}

void Ziehen(QWidget* quelle, const std::string& frage) {
    Zug& zug = AktuellerZug();
    if (zug.drag != nullptr) {
        return;
    }
    zug.frage = frage;
    zug.quelle = quelle;
    zug.getroffen = nullptr;
    zug.gehalten = zug.ohneMaus;
    if (zug.gehalten) {
        HilfeText(hinweisGehalten);
        return;
    }
    zug.pixelverhaeltnis = quelle->devicePixelRatioF();
    ZugAusfuehren(zug);
    if (const Zielmarke* marke = zug.getroffen; marke != nullptr && zug.quelle != nullptr) {
        marke->ausfuehren();
    }
}

void ZielEinrichten(QWidget* ziel, ZiehBild bild, std::function<void()> ablegen) {
    Markieren(ziel, bild, std::move(ablegen));
}

void KeinZiel(QWidget* steuerelement) {
    Markieren(steuerelement, ZiehBild::Nein, {});
}

void TastenEinrichten(QWidget* quelle, std::function<void(Qt::KeyboardModifiers)> druecken) {
    new Tastenquelle(quelle, std::move(druecken));
}

bool OhneMausAufnehmen(const std::function<void()>& druecken) {
    Zug& zug = AktuellerZug();
    zug.gehalten = false;
    zug.ohneMaus = true;
    druecken();
    zug.ohneMaus = false;
    return zug.gehalten;
}

bool OhneMausAblegen(QWidget* ziel) {
    Zug& zug = AktuellerZug();
    Zielmarke* marke = EigeneMarke(ziel);
    if (!OhneMausGehalten() || marke == nullptr || !marke->nimmt()) {
        return false;
    }
    zug.gehalten = false;
    marke->ausfuehren();
    return true;
}

bool OhneMausGehalten() {
    return AktuellerZug().gehalten && AktuellerZug().quelle != nullptr;
}

void OhneMausLoslassen() {
    AktuellerZug().gehalten = false;
}
