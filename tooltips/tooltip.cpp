#include "tooltips/tooltip.h"

#include "core/oberflaeche.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace {

constexpr const char* mittigkeit = "tippmittig";

tipp::Flaeche Flaeche(const QRect& rechteck) {
    return {{rechteck.x(), rechteck.y()}, {rechteck.width(), rechteck.height()}};
}

// The screen on which the tip's anchor lies, not the one on which its window began.
QRect Schirm(QPoint stelle, const QWidget& steuerelement) {
    const QScreen* schirm = QGuiApplication::screenAt(stelle);
    return (schirm != nullptr ? schirm : steuerelement.screen())->geometry();
}

} // namespace

clsToolTipDeluxe::clsToolTipDeluxe(QObject* eltern) : QObject(eltern) {}

clsToolTipDeluxe::~clsToolTipDeluxe() = default;

void clsToolTipDeluxe::MaxWidth(int pixel) {
    aussehen_.breite = pixel;
    Uebernehmen();
}

void clsToolTipDeluxe::VisibleTime(int millisekunden) {
    sichtzeit_ = tipp::Sichtzeit(millisekunden);
}

void clsToolTipDeluxe::DelayTime(int millisekunden) {
    wartezeit_ = tipp::Wartezeit(millisekunden);
}

void clsToolTipDeluxe::ToolTipTextColor(Farbe farbe) {
    aussehen_.stil.schrift = farbe;
    Uebernehmen();
}

void clsToolTipDeluxe::ToolTipBackColor(Farbe farbe) {
    aussehen_.stil.grund = farbe;
    Uebernehmen();
}

void clsToolTipDeluxe::Create(QWidget* fenster, bool ballon, int /*ungenutzt*/) {
    aussehen_.ballon = ballon;
    tippfenster_ = std::make_unique<Tippfenster>();
    if (fenster != nullptr) {
        tippfenster_->setPalette(fenster->palette());
    }
}

void clsToolTipDeluxe::Destroy() {
    tippfenster_.reset();
}

void clsToolTipDeluxe::AddControl(QWidget* steuerelement, std::string_view text, bool mittig) {
    if (steuerelement == nullptr) {
        return; // gets no tip, and nothing is reported
    }
    const QString anzeige = Anzeige(text);
    steuerelement->setToolTip(anzeige);
    steuerelement->setAccessibleDescription(anzeige);
    if (mittig) {
        steuerelement->setProperty(mittigkeit, true);
    }
}

void clsToolTipDeluxe::SetToolTipTitle(std::string_view titel, int symbol) {
    aussehen_.titel = Anzeige(titel);
    aussehen_.stil.symbol = symbol;
    Uebernehmen();
}

void clsToolTipDeluxe::Zeigen(const QWidget& steuerelement, const QString& text, bool amZeiger) {
    if (tippfenster_ == nullptr || text.isEmpty()) {
        return;
    }
    tippfenster_->Stellen(aussehen_, text);
    const tipp::Groesse groesse{tippfenster_->width(), tippfenster_->height()};
    const QPoint zeiger = QCursor::pos();
    const QRect platz(steuerelement.mapToGlobal(QPoint(0, 0)), steuerelement.size());
    const bool mittig = steuerelement.property(mittigkeit).toBool();
    const bool beimZeiger = amZeiger && !mittig;
    const QRect schirm = Schirm(beimZeiger ? zeiger : platz.center(), steuerelement);
    const tipp::Ort ort = beimZeiger ? tipp::OrtAmZeiger({zeiger.x(), zeiger.y()}, groesse, Flaeche(schirm))
                                     : tipp::OrtAmElement(Flaeche(platz), groesse, Flaeche(schirm), mittig);
    tippfenster_->move(ort.x, ort.y);
    // Some window systems place a tip only in relation to a window.
    tippfenster_->winId();
    tippfenster_->windowHandle()->setTransientParent(steuerelement.window()->windowHandle());
    tippfenster_->show();
    tippfenster_->raise();
}

void clsToolTipDeluxe::Verbergen() {
    if (tippfenster_ != nullptr) {
        tippfenster_->hide();
    }
}

bool clsToolTipDeluxe::sichtbar() const {
    return tippfenster_ != nullptr && tippfenster_->isVisible();
}

// What is set while a tip stands shows at once.
void clsToolTipDeluxe::Uebernehmen() {
    if (sichtbar()) {
        tippfenster_->Stellen(aussehen_, tippfenster_->text());
    }
}
