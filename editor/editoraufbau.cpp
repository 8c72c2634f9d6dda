// What the editor's window is made of, and where it stands: the toolbar in as many rows as the width asks
// for, the file's names below it, the text in the rest.
#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "editor/frmEditor.h"
#include "editor/texte.h"

#include <QFontMetrics>
#include <QResizeEvent>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int luft = 4; // pixels, as all measures here
constexpr int tastenHoehe = 25;
constexpr int namenHoehe = 24;
constexpr int gruppenAbstand = 9;

bool IstLampe(const editortexte::Taste& zeile) {
    return zeile.aufschrift.empty();
}

// Room for the picture, a gap, the caption and what the frame takes.
int Tastenbreite(const editortexte::Taste& zeile) {
    if (IstLampe(zeile)) {
        return tastenHoehe;
    }
    const QFontMetrics mass(Schrift(8.25_pt));
    return tastenbildKante + 4 + mass.horizontalAdvance(Anzeige(zeile.aufschrift)) + 10;
}

void TasteBauen(QWidget* leiste, const editortexte::Taste& zeile) {
    auto* taste = new QToolButton(leiste);
    taste->setObjectName(Anzeige(zeile.name));
    TastenbildSetzen(taste, zeile.bild);
    if (IstLampe(zeile)) {
        taste->setAutoRaise(true);
        taste->setFocusPolicy(Qt::NoFocus); // it tells and does nothing
        return;
    }
    taste->setText(Anzeige(zeile.aufschrift));
    taste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    taste->setFont(Schrift(8.25_pt));
    // A click leaves the cursor in the text; Tab reaches the buttons all the same.
    taste->setFocusPolicy(Qt::TabFocus);
    taste->setCheckable(zeile.schalter);
}

// Widths of the places: what shares one takes the wider of the two.
int Platzbreite(std::size_t i) {
    const auto& tasten = editortexte::tasten;
    const int breite = Tastenbreite(tasten.at(i));
    const bool geteilt = i + 1 < tasten.size() && tasten.at(i + 1).vorher == editortexte::Vorher::SelberPlatz;
    return geteilt ? std::max(breite, Tastenbreite(tasten.at(i + 1))) : breite;
}

// Places the buttons in rows of that width and returns the height they take.
int TastenAnordnen(const QWidget* leiste, int breite) {
    using editortexte::Vorher;
    int x = luft;
    int y = luft;
    int platz = 0;
    for (std::size_t i = 0; i < editortexte::tasten.size(); ++i) {
        const editortexte::Taste& zeile = editortexte::tasten.at(i);
        if (zeile.vorher != Vorher::SelberPlatz) {
            x += platz + (zeile.vorher == Vorher::Luecke ? gruppenAbstand : 0);
            platz = Platzbreite(i);
            if (zeile.vorher == Vorher::NeueReihe || x + platz > breite - luft) {
                x = luft;
                y += tastenHoehe + 1;
            }
        }
        leiste->findChild<QToolButton*>(Anzeige(zeile.name))->setGeometry(x, y, platz, tastenHoehe);
    }
    return y + tastenHoehe + luft;
}

} // namespace

void frmEditor::ToolbarBauen() {
    pnlToolbar_ = new Panel(this, QStringLiteral("pnlToolbar"));
    for (const editortexte::Taste& zeile : editortexte::tasten) {
        TasteBauen(pnlToolbar_, zeile);
    }
    pnlLaufname = new Panel(this, QStringLiteral("pnlLaufname"));
    pnlDatei = new Panel(this, QStringLiteral("pnlDatei"));
    for (Panel* panel : {pnlLaufname, pnlDatei}) {
        panel->setFrameShadow(QFrame::Sunken);
        panel->setAusrichtung(Qt::AlignLeft);
        panel->setFont(Schrift(9_pt));
    }
    pnlLaufname->setFont(Schrift(9_pt, true));
}

void frmEditor::FeldBauen() {
    pnlEdit_ = new Panel(this, QStringLiteral("pnlEdit"));
    pnlNotiz_ = new Panel(pnlEdit_, QStringLiteral("pnlNotiz"));
    pnlNotiz_->setFrameShadow(QFrame::Sunken);
    txtNotiz = new Notizfeld(pnlNotiz_);
    txtNotiz->setFrameShape(QFrame::NoFrame);
    txtNotiz->setFont(Schrift(10_pt));
    txtNotiz->setAccessibleName(QStringLiteral("Text der Datei"));
    txtNotiz->document()->setDocumentMargin(5);
    setMinimumSize(300, 240);
}

void frmEditor::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    const int breite = width() - 2 * luft;
    pnlToolbar_->setGeometry(luft, luft, breite, TastenAnordnen(pnlToolbar_, breite));
    const int oben = pnlToolbar_->geometry().bottom() + 1 + luft;
    const int dateiBreite = std::clamp(breite / 4, 90, 260);
    pnlLaufname->setGeometry(luft, oben, breite - dateiBreite - luft, namenHoehe);
    pnlDatei->setGeometry(width() - luft - dateiBreite, oben, dateiBreite, namenHoehe);
    const int feldOben = oben + namenHoehe + luft;
    pnlEdit_->setGeometry(luft, feldOben, breite, std::max(60, height() - feldOben - luft));
    pnlNotiz_->setGeometry(pnlEdit_->rect().adjusted(3, 3, -3, -3));
    txtNotiz->setGeometry(pnlNotiz_->rect().adjusted(1, 1, -1, -1));
}
