#include "filling/frmFuellen.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "filling/befund.h"
#include "filling/fuellwahl.h"
#include "filling/texte.h"
#include "filling/vorschlagfeld.h"
#include "forms/einsetzen.h"
#include "forms/verlauf.h"
#include "quizform/feldbild.h"
#include "search/fragendienst.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>

#include <random>
#include <utility>

namespace {

std::uint64_t NeueSaat() {
    std::random_device quelle;
    return (static_cast<std::uint64_t>(quelle()) << 32) | quelle();
}

Vorschlagfeld::Art Bildart(const Fuellfeld& feld, bool vorgeschlagen, bool gesucht) {
    switch (feld.lage) {
    case Feldlage::Geschlossen:
        return Vorschlagfeld::Art::Geschlossen;
    case Feldlage::Besetzt:
        return Vorschlagfeld::Art::Besetzt;
    case Feldlage::Leer:
        break;
    }
    if (vorgeschlagen) {
        return Vorschlagfeld::Art::Vorgeschlagen;
    }
    return gesucht ? Vorschlagfeld::Art::OhneFrage : Vorschlagfeld::Art::Leer;
}

std::string Punktetext(int punkte) {
    const auto& text = fuelltexte::punkte;
    return Einsetzen(punkte == 1 ? text.eines : text.mehrere, {std::to_string(punkte)});
}

} // namespace

frmFuellen::frmFuellen() : stand_(FormularstandJetzt()), formular_(Formularnummer()) {
    Bauen();
    Verbinden();
    wahl_->StandZeigen(stand_);
    Fragen().Pruefen(); // of another program folder nothing is known any more
    KatalogGelesen();
}

void frmFuellen::Verbinden() {
    // A window that is going must not hear of the focus that another one's hiding moves.
    connect(OffenesFormular()->fenster(), &QObject::destroyed, this, &frmFuellen::Schliessen,
            Qt::QueuedConnection);
    connect(&Fragen(), &Fragendienst::bestandNeu, this, &frmFuellen::KatalogGelesen);
    connect(&Fragen(), &Fragendienst::benutzungNeu, this, &frmFuellen::KatalogGelesen);
    connect(&Fragen(), &Fragendienst::geprueft, this, [this] {
        if (vorrat_ == nullptr) { // there was nothing to be read, and so nothing new
            KatalogGelesen();
        }
    });
    connect(wahl_, &Fuellwahl::anders, this, &frmFuellen::AuftragErneuern);
    connect(cmdVorschlag_, &QPushButton::clicked, this, &frmFuellen::VorschlagMachen);
    connect(cmdUebernehmen_, &QPushButton::clicked, this, &frmFuellen::Uebernehmen);
    connect(cmdAbbruch_, &QPushButton::clicked, this, &frmFuellen::Schliessen);
    for (std::size_t n = 1; n < picVorschlag_.size(); ++n) {
        connect(picVorschlag_[n], &Vorschlagfeld::clicked, this, [this, n] { FeldNeuZiehen(n); });
        connect(picVorschlag_[n], &Vorschlagfeld::weiter, this,
                [this, n](int spalten, int zeilen) { NachbarBetreten(n, spalten, zeilen); });
    }
}

bool frmFuellen::IstBrett() const {
    return std::holds_alternative<Quizstand>(stand_.form);
}

std::string frmFuellen::Feldort(std::size_t n) const {
    const int nummer = static_cast<int>(n);
    return IstBrett() ? Zellenname(nummer, "Frage") : Zeilenname(nummer, "Frage");
}

// The numbers of a proposal belong to the catalogue that they were drawn from.
void frmFuellen::KatalogGelesen() {
    if (!Fragen().gelesen()) {
        Zeigen();
        return;
    }
    // What stands on this form is left out by what it says, so its own file doesn't count.
    auto neu = std::make_shared<const Fragenvorrat>(
        Fragen().bestand(), [](std::string_view frage) { return Fragen().benutzt(frage, true); });
    const bool erstmals = vorrat_ == nullptr;
    if (!erstmals) {
        vorschlag_ = Uebertragen(*vorrat_, *neu, std::move(vorschlag_));
    }
    vorrat_ = std::move(neu);
    AuftragErneuern();
    if (erstmals) {
        cmdVorschlag_->setFocus(); // it was out of use until now
    }
}

// A cell that was searched for in vain may find something by other wishes.
void frmFuellen::AuftragErneuern() {
    gemacht_ = false;
    if (vorrat_ != nullptr) {
        auftrag_ = wahl_->auftrag(vorrat_, stand_);
        vorschlag_ = Bereinigt(auftrag_, std::move(vorschlag_));
        wahl_->Zeigen(auftrag_);
    }
    Zeigen();
}

bool frmFuellen::gilt() const {
    return !schliesst_ && Formularnummer() == formular_;
}

void frmFuellen::Angleichen() {
    if (!gilt()) {
        QMetaObject::invokeMethod(this, &frmFuellen::Schliessen, Qt::QueuedConnection);
        return;
    }
    if (Formularstand jetzt = FormularstandJetzt();
        !Gleichgezeigt(jetzt, stand_) || !Gleichgespeichert(jetzt, stand_)) {
        stand_ = std::move(jetzt);
        wahl_->StandZeigen(stand_);
        AuftragErneuern();
    }
}

std::string frmFuellen::Ergebnis() const {
    if (vorrat_ == nullptr) {
        return std::string(fuelltexte::katalogKommt);
    }
    return gemacht_ || Anzahl(vorschlag_) > 0 ? wahl_->befund(auftrag_, vorschlag_) : Leerbefund(auftrag_);
}

void frmFuellen::Zeigen() {
    for (std::size_t n = 1; n < auftrag_.felder.size(); ++n) {
        FeldZeigen(n);
    }
    lblErgebnis_->setText(Anzeige(Ergebnis()));
    cmdVorschlag_->setEnabled(vorrat_ != nullptr && auftrag_.leere() > 0);
    cmdUebernehmen_->setEnabled(Anzahl(vorschlag_) > 0);
}

void frmFuellen::FeldZeigen(std::size_t n) {
    const Fuellfeld& feld = auftrag_.felder[n];
    const auto& nr = vorschlag_[n];
    const FeldBild bild = FeldBildFuer(feld.buchstabe, true, false);
    Vorschlagfeld::Inhalt inhalt{Bildart(feld, nr.has_value(), gemacht_), {}, {}, {}, bild.textGrund};
    int punkte = feld.punkte;
    if (nr) {
        inhalt.frage = Anzeige(vorrat_->frage(*nr).frage);
        inhalt.antwort = Anzeige(vorrat_->frage(*nr).antwort);
        punkte = vorrat_->punkte(*nr);
    } else if (!bild.frageMarke.empty()) {
        inhalt.frage = Anzeige(bild.frageMarke).simplified();
    } else if (feld.lage == Feldlage::Besetzt) {
        inhalt.frage = Anzeige(feld.frage);
        inhalt.antwort = Anzeige(feld.antwort);
    }
    inhalt.ecke = Anzeige(IstBrett() ? feld.buchstabe : Punktetext(punkte));
    picVorschlag_[n]->Zeigen(inhalt, Anzeige(Feldort(n)));
}

// The next cell in that direction that isn't closed; cells are numbered down the columns.
void frmFuellen::NachbarBetreten(std::size_t von, int spalten, int zeilen) {
    const int hoehe = IstBrett() ? fragenJeGebiet : anzahlTestfragen;
    const int breite = static_cast<int>(picVorschlag_.size() - 1) / hoehe;
    int spalte = static_cast<int>(von - 1) / hoehe + spalten;
    int zeile = static_cast<int>(von - 1) % hoehe + zeilen;
    for (; spalte >= 0 && spalte < breite && zeile >= 0 && zeile < hoehe;
         spalte += spalten, zeile += zeilen) {
        Vorschlagfeld* feld = picVorschlag_[static_cast<std::size_t>(spalte * hoehe + zeile) + 1];
        if (feld->isEnabled()) {
            feld->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void frmFuellen::VorschlagMachen() {
    Angleichen(); // a text that is being typed counts as well
    if (!gilt()) {
        return;
    }
    vorschlag_ = wahl_->vorschlag(auftrag_, NeueSaat());
    gemacht_ = true;
    Zeigen();
}

void frmFuellen::FeldNeuZiehen(std::size_t n) {
    if (vorrat_ == nullptr || auftrag_.felder[n].lage != Feldlage::Leer) {
        return;
    }
    if (NeuZiehen(auftrag_, vorschlag_, n, NeueSaat())) {
        Zeigen();
    } else {
        HilfeText(fuelltexte::keineAndere);
    }
}

// What stands on the form now counts, whatever stood there when the proposal was made.
void frmFuellen::Uebernehmen() {
    Angleichen();
    if (!gilt()) {
        return;
    }
    std::vector<Feldtext> texte;
    for (std::size_t n = 1; n < vorschlag_.size(); ++n) {
        if (vorschlag_[n]) {
            const Katalogfrage frage = vorrat_->frage(*vorschlag_[n]);
            Feldtext text{static_cast<int>(n), std::string(frage.frage), std::string(frage.antwort), {}};
            if (!IstBrett()) {
                text.punkte = static_cast<std::int16_t>(vorrat_->punkte(*vorschlag_[n]));
            }
            texte.push_back(std::move(text));
        }
    }
    if (texte.empty()) {
        return; // meanwhile everything was filled by hand
    }
    FelderSetzen(IstBrett() ? "Brett füllen" : "Test füllen", texte);
    Schliessen();
    HilfeText(Einsetzen(texte.size() == 1 ? fuelltexte::uebernommen.eines : fuelltexte::uebernommen.mehrere,
                        {std::to_string(texte.size())}));
}

// The window goes when the running work is done; the form comes to the front at once.
void frmFuellen::Schliessen() {
    if (std::exchange(schliesst_, true)) {
        return;
    }
    auto* rahmen = qobject_cast<QMdiSubWindow*>(parentWidget());
    QWidget* ganzes = rahmen != nullptr ? static_cast<QWidget*>(rahmen) : this;
    ganzes->hide();
    ganzes->deleteLater();
    if (OffenesFormular() != nullptr) {
        OffenesFormular()->NachVorn();
    }
}

void frmFuellen::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape && ereignis->modifiers() == Qt::NoModifier) {
        Schliessen();
        return;
    }
    QWidget::keyPressEvent(ereignis);
}
