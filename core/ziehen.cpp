#include "core/ziehen.h"

#include "core/oberflaeche.h"
#include "core/ziehbilder.h"
#include "core/zug.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

namespace {

// Format under which a dragged question travels, beside plain text for other programs.
constexpr QLatin1String ziehFormat("application/x-feldkranz-frage");

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
    daten->setData(ziehFormat, QByteArray::fromStdString(frage));
    daten->setText(Anzeige(frage));
    return daten;
}

void ZugAusfuehren(Zug& zug) {
    const Zugwaechter waechter;
    // Not the source's child: the source may be gone before the drag is.
    auto* drag = new QDrag(QCoreApplication::instance());
    drag->setMimeData(Ziehdaten(zug.wert.frage));
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

void Markieren(QWidget* element, ZiehBild bild, Ablegen ablegen) {
    delete EigeneMarke(element);
    new Zielmarke(element, bild, std::move(ablegen));
    element->setAcceptDrops(true);
}

// Listens to the presses on the text area of a box, and belongs to the box.
class Druckwaechter : public QObject {
public:
    Druckwaechter(QAbstractScrollArea* feld, std::function<bool(Qt::KeyboardModifiers)> druck)
        : QObject(feld), druck_(std::move(druck)) {
        feld->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::MouseButtonPress) {
            const auto& druck = *static_cast<QMouseEvent*>(ereignis);
            return druck.button() == Qt::LeftButton && druck_(druck.modifiers());
        }
        return QObject::eventFilter(objekt, ereignis);
    }

private:
    std::function<bool(Qt::KeyboardModifiers)> druck_;
};

} // namespace

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

ZiehBild AktuellesZiehBild() {
    return AktuellerZug().bild;
}

const Ziehwert& Gezogen() {
    return AktuellerZug().wert;
}

void Ziehen(QWidget* quelle, Ziehwert wert, Erneuerung erneuern) {
    Zug& zug = AktuellerZug();
    if (zug.drag != nullptr) {
        return;
    }
    zug.wert = std::move(wert);
    zug.erneuern = std::move(erneuern);
    zug.quelle = quelle;
    zug.getroffen = nullptr;
    zug.gehalten = zug.ohneMaus;
    if (zug.gehalten) {
        return;
    }
    zug.pixelverhaeltnis = quelle->devicePixelRatioF();
    ZugAusfuehren(zug);
    if (const Zielmarke* marke = zug.getroffen; marke != nullptr && zug.quelle != nullptr) {
        const Ziehwert gezogen = zug.wert; // the steps may begin another drag
        marke->ausfuehren(gezogen);
    }
}

void ZielEinrichten(QWidget* ziel, ZiehBild bild, Ablegen ablegen) {
    Markieren(ziel, bild, std::move(ablegen));
    ZieltastenEinrichten(ziel);
}

void DruckEinrichten(QAbstractScrollArea* feld, std::function<bool(Qt::KeyboardModifiers)> druck) {
    new Druckwaechter(feld, std::move(druck)); // belongs to the box it listens to
}

void KeinZiel(QWidget* steuerelement) {
    Markieren(steuerelement, ZiehBild::Nein, {});
}

std::optional<Zugart> ZugartFuer(Qt::KeyboardModifiers tasten) {
    return ZugartFuer(tasten.testFlag(Qt::ShiftModifier), tasten.testFlag(Qt::ControlModifier),
                      tasten.testFlag(Qt::AltModifier));
}
