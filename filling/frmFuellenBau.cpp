// What the window is made of, and in which order Tab goes through it.
#include "core/fensterzeichen.h"
#include "core/oberflaeche.h"
#include "filling/frmFuellen.h"
#include "filling/fuellwahl.h"
#include "filling/texte.h"
#include "filling/vorschlagfeld.h"
#include "quizform/quizformular.h"
#include "testform/testformular.h"
#include "tooltips/hinweise.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int saum = 8; // pixels, as all measures here
constexpr int spaltenAbstand = 6;
constexpr int zeilenAbstand = 3;
constexpr int wahlBreite = 300; // of a test form's choices
constexpr int tastenBreite = 104;

} // namespace

void frmFuellen::Bauen() {
    setObjectName(QStringLiteral("frmFuellen"));
    setProperty("tag", Anzeige(Fensterzeichen(Kindfenster::Fuellen)));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Anzeige(IstBrett() ? fuelltexte::fenstertitel : fuelltexte::testtitel));
    setFont(Schrift(8.25_pt));
    auto* gesamt = new QVBoxLayout(this);
    gesamt->setContentsMargins(saum, saum, saum, saum);
    gesamt->setSpacing(6);
    // A board stands below its choices, column for column; the rows of a test beside theirs.
    auto* mitte = new QBoxLayout(IstBrett() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    mitte->setSpacing(6);
    gesamt->addLayout(mitte, 1);
    wahl_ = Fuellwahl::Fuer(stand_, this);
    mitte->addWidget(wahl_);
    if (!IstBrett()) {
        wahl_->setFixedWidth(wahlBreite);
    }
    FelderBauen(*mitte);
    FusszeileBauen(*gesamt);
    TabfolgeSetzen();
    HinweiseSetzen(*this, fuelltexte::hinweise);
    setFocusProxy(cmdVorschlag_);
}

void frmFuellen::FelderBauen(QBoxLayout& gesamt) {
    auto* raster = new QGridLayout;
    raster->setHorizontalSpacing(spaltenAbstand);
    raster->setVerticalSpacing(zeilenAbstand);
    picVorschlag_.assign(static_cast<std::size_t>(IstBrett() ? anzahlFelder : anzahlTestfragen) + 1, nullptr);
    for (std::size_t n = 1; n < picVorschlag_.size(); ++n) {
        const int nummer = static_cast<int>(n);
        auto* feld = new Vorschlagfeld(this, QStringLiteral("picVorschlag(%1)").arg(nummer));
        picVorschlag_[n] = feld;
        const int spalte = IstBrett() ? GebietVon(nummer) - 1 : 0;
        raster->addWidget(feld, IstBrett() ? ZeileVon(nummer) - 1 : nummer - 1, spalte);
        raster->setColumnStretch(spalte, 1);
    }
    gesamt.addLayout(raster, 1);
}

QPushButton* frmFuellen::TasteBauen(const char* name, std::string_view aufschrift) {
    auto* taste = new QPushButton(Anzeige(aufschrift), this);
    taste->setObjectName(QLatin1String(name));
    taste->setFont(Schrift(8.25_pt));
    taste->setMinimumWidth(tastenBreite);
    taste->setAutoDefault(true); // Enter presses it, as in a dialog
    return taste;
}

void frmFuellen::FusszeileBauen(QBoxLayout& gesamt) {
    lblErgebnis_ = new QLabel(this);
    lblErgebnis_->setObjectName(QStringLiteral("lblErgebnis"));
    lblErgebnis_->setFont(Schrift(8.25_pt, true));
    lblErgebnis_->setTextFormat(Qt::PlainText);
    lblErgebnis_->setWordWrap(true);
    lblErgebnis_->setMinimumHeight(2 * lblErgebnis_->fontMetrics().lineSpacing());
    cmdVorschlag_ = TasteBauen("cmdVorschlag", fuelltexte::vorschlag);
    cmdUebernehmen_ = TasteBauen("cmdUebernehmen", fuelltexte::uebernehmen);
    cmdAbbruch_ = TasteBauen("cmdAbbruch", fuelltexte::abbruch);
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(6);
    reihe->addWidget(lblErgebnis_, 1);
    for (QPushButton* taste : {cmdVorschlag_, cmdUebernehmen_, cmdAbbruch_}) {
        reihe->addWidget(taste, 0, Qt::AlignBottom);
    }
    gesamt.addLayout(reihe);
}

// The choices were made first and go first; the cells follow area by area.
void frmFuellen::TabfolgeSetzen() {
    for (std::size_t n = 2; n < picVorschlag_.size(); ++n) {
        setTabOrder(picVorschlag_[n - 1], picVorschlag_[n]);
    }
    setTabOrder(picVorschlag_.back(), cmdVorschlag_);
    setTabOrder(cmdVorschlag_, cmdUebernehmen_);
    setTabOrder(cmdUebernehmen_, cmdAbbruch_);
}
