// Printing the test form as a command: the checks and questions before it, the texts of the window on their
// way to the layout, and what the user is told afterwards. The stored copy of the form isn't touched.
#include "core/hauptfenster.h"
#include "core/laufzeitfehler.h"
#include "core/pfadname.h"
#include "dialogs/meldung.h"
#include "printing/drucken.h"
#include "printing/druckseite.h"
#include "printing/pdfpfad.h"
#include "printing/testseite.h"
#include "printing/testtexte.h"
#include "printing/texte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "testform/texte.h"

#include <algorithm>
#include <new>

namespace {

// The progress bar, from start to end whatever way the routine is left.
class Fortschritt {
public:
    Fortschritt() { FortschrittStart(drucktexte::status); }
    ~Fortschritt() { FortschrittEnde(); }
    Fortschritt(const Fortschritt&) = delete;
    Fortschritt& operator=(const Fortschritt&) = delete;
};

std::string OhneRand(const std::string& text) {
    return QString::fromStdString(text).trimmed().toStdString();
}

// What the window shows; without one an untouched form, which the first check refuses.
Testdruckdaten DatenHolen() {
    Testdruckdaten daten;
    const frmHBFragen* form = HBFragenOffen();
    if (form == nullptr) {
        daten.fach = hbtexte::fach;
        return daten;
    }
    daten.titel = form->titel.panel->caption().toStdString();
    daten.fach = form->fach.panel->caption().toStdString();
    daten.gruppenwort = form->gruppe.panel->caption().toStdString();
    daten.gruppe = form->lblGruppe->text().toStdString();
    daten.name = form->pnlName->caption().toStdString();
    daten.dateiname = OhneRand(NurDateiname(HBDateiName));
    daten.gesamtpunkte = HBGesamtpunkte;
    for (std::size_t i = 1; i < daten.zeilen.size(); ++i) {
        daten.zeilen[i] = {form->txtFrage.at(i)->text(), form->txtAntwort.at(i)->text(),
                           form->pnlPunkte.at(i)->caption().toStdString()};
    }
    return daten;
}

bool Bestaetigt(const NachrichtText& frage, std::initializer_list<std::string_view> werte = {}) {
    NachrichtAntwort = antwortAbbrechen;
    return Nachricht(frage, werte) != antwortAbbrechen;
}

// False when something is missing or the user wants to add it first.
bool Vollstaendig(const Testdruckdaten& daten) {
    if (OhneRand(daten.fach) == testdrucktexte::keinFach) {
        Meldung(testdrucktexte::fachFehlt);
        return false;
    }
    if (OhneRand(daten.gruppe) == testdrucktexte::keineGruppe) {
        Meldung(testdrucktexte::gruppeFehlt);
        return false;
    }
    // Asked once for each such row.
    return std::all_of(daten.zeilen.begin(), daten.zeilen.end(), [](const Testdruckzeile& zeile) {
        return zeile.frage.empty() || !zeile.punkte.empty() || Bestaetigt(testdrucktexte::punkteFehlen);
    });
}

bool Gefragt(int anzahl) {
    return anzahl == 0 ? Bestaetigt(testdrucktexte::leer)
                       : Bestaetigt(testdrucktexte::mitFragen, {std::to_string(anzahl)});
}

bool AntwortenGewuenscht(const Testdruckdaten& daten) {
    const bool vorhanden = std::any_of(daten.zeilen.begin(), daten.zeilen.end(),
                                       [](const Testdruckzeile& zeile) { return !zeile.antwort.empty(); });
    return vorhanden && Bestaetigt(testdrucktexte::antworten) && NachrichtAntwort == antwortJa;
}

std::string Auftragstitel() {
    return HBDateiName.empty() ? std::string("Test") : NurDateiname(HBDateiName);
}

// Returns the path of the PDF file, "" for a printer and after a cancelled question.
std::string Ablauf(Testdruckdaten& daten) {
    const Fortschritt fortschritt;
    const int anzahl = AnzahlTestfragen(daten);
    if (!Gefragt(anzahl)) {
        return {};
    }
    Druckseite seite(QPageLayout::Portrait, PdfPfadHB(), Auftragstitel());
    // Meant: the measures of the page come up at every print of a test.
    Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, SeitenmasseText(seite.masse()));
    daten.mitAntworten = AntwortenGewuenscht(daten);
    const Testgeometrie geometrie = TestGeometrieRechnen(anzahl, seite.masse().links, seite.masse().oben);
    FortschrittSchritt(4);
    return seite.Drucken(TestZeichnen(daten, geometrie, seite.schriftmass()), [] { FortschrittSchritt(1); });
}

} // namespace

void TestFormularDrucken() {
    Testdruckdaten daten = DatenHolen();
    if (!Vollstaendig(daten)) {
        return;
    }
    try {
        const std::string pdf = Ablauf(daten);
        if (!pdf.empty()) {
            HilfeText(Einsetzen(drucktexte::alsPdf, {pdf}));
        }
    } catch (const Laufzeitfehler& fehler) {
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, fehler.text());
    } catch (const std::bad_alloc&) {
        Systemkasten(Kastenart::Schlicht, drucktexte::kastentitel, FehlerText(Fehler::SpeicherVoll));
    }
}
