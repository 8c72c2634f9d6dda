#include "filling/brettwahl.h"

#include "catalogue/themen.h"
#include "core/klappliste.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "filling/befund.h"
#include "filling/texte.h"
#include "quizform/feldregeln.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace {

constexpr int spaltenAbstand = 6; // pixels, as between the columns of the board below

std::size_t Stelle(int gebiet) {
    return static_cast<std::size_t>(gebiet);
}

QLabel* SchildBauen(QWidget* eltern, const char* name, int gebiet, bool fett) {
    auto* schild = new QLabel(eltern);
    schild->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(gebiet));
    schild->setFont(Schrift(8.25_pt, fett));
    schild->setTextFormat(Qt::PlainText);
    schild->setMinimumWidth(1); // a long title doesn't widen its column
    return schild;
}

QComboBox* ListeBauen(QWidget* eltern, const char* name, int gebiet, const QString& zugang) {
    auto* liste = new Klappliste(eltern, QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(gebiet));
    liste->setFont(Schrift(8.25_pt));
    liste->setAccessibleName(zugang);
    liste->setMinimumContentsLength(8);
    liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    liste->setMaxVisibleItems(20);
    return liste;
}

// The first entry stands for all.
std::string Gewaehlt(const QComboBox& liste) {
    return liste.currentIndex() <= 0 ? std::string() : Modelltext(liste.currentText());
}

} // namespace

Brettwahl::Brettwahl(QWidget* eltern, const Quizstand& form) : Fuellwahl(eltern) {
    auto* raster = new QGridLayout(this);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setHorizontalSpacing(spaltenAbstand);
    raster->setVerticalSpacing(3);
    for (int a = 1; a <= anzahlGebiete; ++a) {
        SpalteBauen(*raster, a);
        WahlZeigen(spalten_.at(Stelle(a)), WahlAusTitel(form.gezeigt.WissenTitel.at(Stelle(a))));
    }
    chkPunkteWieZeile_ = SchalterBauen("chkPunkteWieZeile", fuelltexte::punkteWieZeile);
    raster->addWidget(chkPunkteWieZeile_, 4, 0, 1, 2);
    raster->addWidget(UnbenutztBauen(), 4, 2, 1, 2);
}

void Brettwahl::SpalteBauen(QGridLayout& raster, int gebiet) {
    Spalte& spalte = spalten_.at(Stelle(gebiet));
    const QString ort = QStringLiteral(" zu Gebiet %1").arg(gebiet);
    spalte.titel = SchildBauen(this, "lblGebiet", gebiet, true);
    spalte.thema = ListeBauen(this, "cmbFuellThema", gebiet, QStringLiteral("Thema") + ort);
    spalte.unter = ListeBauen(this, "cmbFuellUnter", gebiet, QStringLiteral("Unterthema") + ort);
    spalte.vorrat = SchildBauen(this, "lblVorrat", gebiet, false);
    spalte.thema->addItem(Anzeige(fuelltexte::alleThemen));
    for (const Thema& thema : Themen()) {
        spalte.thema->addItem(Anzeige(thema.name));
    }
    int zeile = 0;
    for (QWidget* teil :
         std::initializer_list<QWidget*>{spalte.titel, spalte.thema, spalte.unter, spalte.vorrat}) {
        raster.addWidget(teil, zeile++, gebiet - 1);
    }
    raster.setColumnStretch(gebiet - 1, 1);
    connect(spalte.thema, &QComboBox::currentIndexChanged, this, [this, &spalte] {
        UnterthemenFuellen(spalte);
        Q_EMIT anders();
    });
    connect(spalte.unter, &QComboBox::currentIndexChanged, this, &Fuellwahl::anders);
}

void Brettwahl::UnterthemenFuellen(const Spalte& spalte) {
    const QSignalBlocker still(spalte.unter);
    spalte.unter->clear();
    spalte.unter->addItem(Anzeige(fuelltexte::alleUnterthemen));
    if (const Thema* thema = ThemaSuchen(Gewaehlt(*spalte.thema)); thema != nullptr) {
        for (const Unterthema& unter : thema->unterthemen) {
            spalte.unter->addItem(Anzeige(unter.name));
        }
    }
    spalte.unter->setEnabled(spalte.unter->count() > 1);
}

void Brettwahl::WahlZeigen(const Spalte& spalte, const Themenwahl& wahl) {
    const QSignalBlocker still(spalte.thema);
    spalte.thema->setCurrentIndex(std::max(0, spalte.thema->findText(Anzeige(wahl.thema))));
    UnterthemenFuellen(spalte);
    const QSignalBlocker auchStill(spalte.unter);
    spalte.unter->setCurrentIndex(std::max(0, spalte.unter->findText(Anzeige(wahl.unterthema))));
}

Brettwunsch Brettwahl::Wunsch() const {
    Brettwunsch wunsch;
    for (std::size_t a = 1; a < spalten_.size(); ++a) {
        wunsch.gebiete.at(a) = {Gewaehlt(*spalten_.at(a).thema), Gewaehlt(*spalten_.at(a).unter)};
    }
    wunsch.punkteWieZeile = chkPunkteWieZeile_->isChecked();
    wunsch.nurUnbenutzte = nurUnbenutzte();
    return wunsch;
}

Fuellauftrag Brettwahl::auftrag(std::shared_ptr<const Fragenvorrat> vorrat,
                                const Formularstand& stand) const {
    return BrettauftragAus(std::move(vorrat), std::get<Quizstand>(stand.form).gezeigt, stand.spiel, Wunsch());
}

Vorschlag Brettwahl::vorschlag(const Fuellauftrag& auftrag, std::uint64_t saat) const {
    return Brettvorschlag(auftrag, saat);
}

std::string Brettwahl::befund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) const {
    return Brettbefund(auftrag, vorschlag);
}

void Brettwahl::Zeigen(const Fuellauftrag& auftrag) {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const auto erstes = static_cast<std::size_t>(Feldnummer(a, 1));
        const std::size_t passende = Passende(auftrag, erstes, erstes + fragenJeGebiet - 1);
        const auto& text = fuelltexte::vorrat;
        spalten_.at(Stelle(a)).vorrat->setText(
            Anzeige(Einsetzen(passende == 1 ? text.eines : text.mehrere, {std::to_string(passende)})));
    }
}

// The themes stay as the user has chosen them; only the titles and the closed areas follow.
void Brettwahl::StandZeigen(const Formularstand& stand) {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        const Spalte& spalte = spalten_.at(Stelle(a));
        spalte.titel->setText(Anzeige(std::get<Quizstand>(stand.form).gezeigt.WissenTitel.at(Stelle(a))));
        const bool offen = GebietOffen(stand.spiel, a);
        for (QWidget* teil :
             std::initializer_list<QWidget*>{spalte.titel, spalte.thema, spalte.unter, spalte.vorrat}) {
            teil->setEnabled(offen);
        }
        spalte.unter->setEnabled(offen && spalte.unter->count() > 1);
    }
}
