// What the list of forms shows: the names of its folder, which one is marked, and that one's numbers.
#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "filetools/dateiaktionen.h"
#include "filetools/formularlistetexte.h"
#include "filetools/frmFKformulare.h"
#include "filetools/ordnerwaechter.h"
#include "persistence/journal.h"
#include "persistence/journalname.h"
#include "persistence/rettungsname.h"
#include "persistence/texte.h"
#include "rules/spielwerte.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

// The numbers in force, which a file without its own leaves standing in the preview.
FKIni InKraft() {
    return {Spiel.FelderGesamt, Spiel.FragenProWissen, Spiel.AnzahlWissen};
}

// The last count characters of a text in UTF-8.
std::string Schluss(const std::string& text, int zeichen) {
    std::size_t anfang = text.size();
    while (anfang > 0 && zeichen > 0) {
        --anfang;
        zeichen -= (static_cast<unsigned char>(text[anfang]) & 0xC0U) == 0x80U ? 0 : 1;
    }
    return text.substr(anfang);
}

// The names of the folder, the forms that were rescued ahead.
std::vector<std::string> NamenLesen(const std::string& ordner, const std::string& muster) {
    std::vector<std::string> namen = DateienIn(ordner, muster);
    // What a running program still writes is nobody's to open.
    std::erase_if(namen, [&ordner](const std::string& name) {
        return IstJournalname(name) && JournalInArbeit(NativerPfad(PfadVerbinden(ordner, name)));
    });
    RettungenVoranstellen(namen, [&ordner](const std::string& name) -> std::int64_t {
        try {
            return DateiZeit(PfadVerbinden(ordner, name));
        } catch (const Laufzeitfehler&) {
            return 0; // it has gone meanwhile
        }
    });
    return namen;
}

// The numbers of the file, none where it has none; one that can't be read is reported.
std::optional<FKIni> FormularInfoLesen(const Dateiort& ort) {
    using namespace persistenztexte;
    AuswahlMerken(ort.pfad(), ort.nativ()); // exactly the file of that name
    HilfeText(std::string(ichLade) + Schluss(ort.pfad(), 12));
    try {
        const Wartezeiger warten;
        // A file that is too large for a form isn't searched for the numbers of one.
        return FKIniAusBytes(DateiLesen(ort.pfad(), groesstesFormular));
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden("DATEI : Oeffnen_Vorschau", fehler);
        return std::nullopt;
    }
}

} // namespace

void frmFKformulare::Auffrischen(bool melden) {
    waechter_->Beobachten(NativerPfad(ordner_)); // before reading, so that nothing slips between
    try {
        ListeFuellen(NamenLesen(ordner_, muster_));
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

void frmFKformulare::Markieren() {
    vorschau_->start(0);
}

// A look at a file changes no value of the program. A file without such numbers goes on showing those of the
// file before, as long as the numbers in force are the same.
void frmFKformulare::Vorschau() {
    const Dateiort ort{ordner_, Markiert()};
    if (ort.name.empty()) {
        return;
    }
    if (!stand_ || stand_->inKraft != InKraft()) {
        stand_ = {InKraft(), InKraft()};
    }
    if (const auto zahlen = FormularInfoLesen(ort)) {
        stand_->gezeigt = *zahlen;
    }
    const FKIni& z = stand_->gezeigt;
    lblDateiInfo_->setText(Anzeige(Vorschautext(z.felderGesamt, z.anzahlWissen, z.fragenProWissen)));
}
