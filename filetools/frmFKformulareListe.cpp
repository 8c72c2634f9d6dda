// What the list of forms shows: the names of its folder, which one is marked, and that one's numbers.
#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/dateiaktionen.h"
#include "filetools/formularlistetexte.h"
#include "filetools/frmFKformulare.h"
#include "filetools/ordnerwaechter.h"
#include "persistence/oeffnen.h"
#include "quizform/fkformular.h"
#include "settings/einstellungen.h"
#include "testform/hbformular.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

bool FormularOffen() {
    return FKFragenOffen() != nullptr || HBFragenOffen() != nullptr;
}

} // namespace

frmFKformulare::Kopfzahlen frmFKformulare::Kopfzahlen::Jetzt() {
    return {FormTyp, FelderGesamt, FragenProWissen, AnzahlWissen};
}

void frmFKformulare::Kopfzahlen::Einsetzen() const {
    FormTyp = formTyp;
    FelderGesamt = felderGesamt;
    FragenProWissen = fragenProWissen;
    AnzahlWissen = anzahlWissen;
}

void frmFKformulare::Auffrischen(bool melden) {
    waechter_->Beobachten(NativerPfad(ordner_)); // before reading, so that nothing slips between
    try {
        ListeFuellen(DateienIn(ordner_, muster_));
    } catch (const Laufzeitfehler& fehler) {
        ListeFuellen({});
        if (melden) {
            FehlerMelden(listentexte::ortDateiliste, fehler);
        }
    }
}

void frmFKformulare::ListeFuellen(std::vector<std::string> namen) {
    if (namen == namen_) {
        return;
    }
    namen_ = std::move(namen);
    const std::string markiert = Markiert();
    const int stelle = filDateiliste_->verticalScrollBar()->value();
    QStringList texte;
    texte.reserve(static_cast<qsizetype>(namen_.size()));
    std::ranges::transform(namen_, std::back_inserter(texte), [](const auto& n) { return Anzeige(n); });
    const QSignalBlocker still(filDateiliste_); // the preview stands as long as its file does
    filDateiliste_->clear();
    filDateiliste_->addItems(texte);
    const auto fund = std::ranges::find(namen_, markiert);
    if (!markiert.empty() && fund != namen_.end()) {
        filDateiliste_->setCurrentRow(static_cast<int>(fund - namen_.begin()));
        filDateiliste_->verticalScrollBar()->setValue(stelle);
    } else {
        vorschau_->stop();
        lblDateiInfo_->setText(Anzeige(listentexte::infoLeer));
    }
}

std::string frmFKformulare::Markiert() const {
    const auto markierte = filDateiliste_->selectedItems();
    return markierte.isEmpty() ? std::string() : markierte.first()->text().toStdString();
}

// The marked file becomes the program's current one, exactly the one of that name.
void frmFKformulare::DateiUebernehmen() {
    const Dateiort ort{ordner_, Markiert()};
    if (ort.name.empty()) {
        return;
    }
    DateiName = ort.pfad();
    AuswahlMerken(DateiName, ort.nativ());
}

void frmFKformulare::Markieren() {
    DateiUebernehmen();
    vorschau_->start(0);
}

// The reader changes the values in force. While a form is open they are its own, and a look at another file
// must not change what is saved with it: they come back. A file without such values goes on showing those of
// the file before.
void frmFKformulare::Vorschau() {
    if (Markiert().empty()) {
        return;
    }
    const Kopfzahlen eigene = Kopfzahlen::Jetzt();
    if (FormularOffen() && stand_ && stand_->eigene == eigene) {
        stand_->gezeigt.Einsetzen();
    }
    FormularInfoLesen();
    lblDateiInfo_->setText(Anzeige(Vorschautext(FelderGesamt, AnzahlWissen, FragenProWissen)));
    stand_.reset();
    if (FormularOffen()) {
        stand_ = {eigene, Kopfzahlen::Jetzt()};
        eigene.Einsetzen();
    }
}
