#include "editor/editordateien.h"

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "editor/editordaten.h"
#include "editor/editorpfad.h"
#include "editor/frmEditor.h"
#include "editor/katalogtext.h"
#include "editor/texte.h"
#include "filetools/dateidialog.h"
#include "persistence/speichern.h"
#include "persistence/wartezeiger.h"

#include <functional>
#include <new>
#include <optional>

namespace {

using namespace editortexte;

// The catalogue's folder, or the one in which the editor's file lies. The forms' dialogs go on starting where
// they were.
Dateiauswahl Auswahl(std::string_view titel, bool backupBenutzbar, std::vector<std::string> filter,
                     std::vector<std::string> muster) {
    const std::string ordner = Editorordner();
    return {std::string(titel),
            backupBenutzbar,
            std::move(filter),
            std::move(muster),
            "*.TXT",
            ordner.empty() ? AppPfad + "\\WISSEN" : ordner,
            "",
            false};
}

// Runs a step; a run-time error is told, and the result is false then.
bool Gelungen(const std::function<void()>& schritt) {
    try {
        schritt();
        return true;
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(ortDatei, fehler);
    } catch (const std::bad_alloc&) {
        FehlerMelden(ortDatei, Laufzeitfehler(Fehler::SpeicherVoll));
    }
    return false;
}

// --- Loading ---

// The chosen path in DateiName; false for none.
bool DateiWaehlen() {
    DateidialogZeigen(Auswahl(oeffnen, false,
                              {"Feldkranz-Fragen (*.TXT)", "Feldkranz-Fragen (*.BAK)", "Alle Dateien (*.*)"},
                              {"*.txt", "*.*"}));
    DateiAbbruch = 0; // a cancelled dialog has left its mark in the empty DateiName
    return !DateiName.empty();
}

// The text of DateiName, or nothing after the user was told why not.
std::optional<Katalogtext> Gelesen() {
    std::optional<Katalogtext> gelesen;
    bool istText = true;
    Gelungen([&] {
        const Wartezeiger warten;
        const std::string bytes = DateiLesen(DateiName, groessterKatalogtext);
        istText = IstTextdatei(bytes);
        if (istText) {
            gelesen = KatalogtextLesen(bytes);
        }
    });
    if (!istText) {
        Meldung(keinText, {NurDateiname(DateiName)});
    }
    return gelesen;
}

// While a part of the text stands in the field, it belongs to no file: nothing could be saved over the whole.
void Zeigen(frmEditor& editor, Katalogtext gelesen) {
    const Wartezeiger warten;
    EditorpfadVergessen();
    BemerkungMarke = std::move(gelesen.marke);
    Bemerkung = std::move(gelesen.text);
    DateiAlt = DateiName;
    editor.TextZeigen(Bemerkung, DateiAlt);
    EditorpfadMerken();
    DateiAlt.clear();
    EditorStatusSetzen(0);
}

// A part of a text under the name of its file would be taken for the whole.
void Leeren(frmEditor& editor) {
    BemerkungMarke.clear();
    Bemerkung.clear();
    DateiName.clear();
    editor.txtNotiz->clear();
    editor.NamenZeigen("");
    EditorStatusSetzen(0);
}

// --- Saving ---

// A name in DateiName; false when the dialog was cancelled.
bool NameErfragt() {
    DateiAbbruch = 0;
    Dateiauswahl auswahl = Auswahl(speichernUnter, true, {"Feldkranz-Fragen (*.TXT)", "Alle Dateien (*.*)"},
                                   {"*.txt", "*.bak", "*.*"}); // two names face three patterns: it is meant
    auswahl.vorschlag = NurDateiname(DateiName);
    DateidialogZeigen(auswahl);
    const bool abgelehnt = DateiAbbruch == 1;
    DateiAbbruch = 0;
    return !abgelehnt;
}

// Asks until the answer is Ja or Nein. False when the existing file is to stay.
bool DarfUeberschreiben() {
    if (!DateiDa(DateiName)) {
        return true;
    }
    do {
        NachrichtAntwort = antwortAbbrechen;
        Nachricht(ueberschreiben, {NurDateiname(DateiName)});
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortNein);
    if (NachrichtAntwort == antwortNein) {
        Meldung(abgebrochen);
    }
    return NachrichtAntwort == antwortJa;
}

// A path for the text in DateiName; false when there is none, which the user knows.
bool NameGefunden() {
    if (SpeichernMitDialog == 0 && !DateiName.empty()) {
        return true;
    }
    if (!NameErfragt()) {
        return false;
    }
    if (NurDateiname(DateiName).empty()) {
        Systemkasten(Kastenart::Schlicht, kastentitel, nameFehlt);
        return false;
    }
    if (!Grossschreiben(DateiName).ends_with(".TXT")) {
        DateiName += ".TXT";
    }
    return DarfUeberschreiben();
}

// Writes mark and text to DateiName. The old file is whole until the new one is. False after a failure, which
// is told.
bool Geschrieben() {
    SicherungAnlegenKatalog();
    return Gelungen([] {
        const Wartezeiger warten;
        DateiSchreiben(DateiName, KatalogtextBytes(BemerkungMarke, Bemerkung));
    });
}

} // namespace

void KatalogLaden(frmEditor& editor) {
    if (!TextGesichert(editor)) {
        return;
    }
    const std::string vorher = DateiName;
    if (!DateiWaehlen()) {
        Meldung(keineDatei);
    } else if (std::optional<Katalogtext> gelesen = Gelesen(); gelesen) {
        if (!Gelungen([&] { Zeigen(editor, std::move(*gelesen)); })) {
            Leeren(editor);
        }
        return;
    }
    DateiName = vorher;
}

bool KatalogSpeichern(frmEditor& editor, int mitDialog) {
    SpeichernMitDialog = static_cast<std::int16_t>(mitDialog);
    if (!Gelungen([&] { Bemerkung = editor.txtNotiz->text(); })) {
        return false;
    }
    std::erase(Bemerkung, '\0'); // one pasted just now: the file wouldn't be opened again
    EditorpfadEinsetzen();
    if (!NameGefunden()) {
        EditorpfadEinsetzen(); // the editor keeps the file it had
        return false;
    }
    if (!Geschrieben()) {
        EditorpfadEinsetzen();
        EditorStatusSetzen(1); // what the field shows may stand in no file by now
        return false;
    }
    EditorpfadMerken();
    editor.NamenZeigen(DateiName);
    Meldung(gespeichert, {NurDateiname(DateiName)});
    EditorStatusSetzen(0);
    return true;
}

bool TextGesichert(frmEditor& editor) {
    if (EditorGeaendert != 1) {
        return true;
    }
    do {
        NachrichtAntwort = antwortAbbrechen;
        Nachricht(textSpeichern);
        if (NachrichtAntwort == antwortAbbrechen) {
            return false;
        }
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortNein);
    if (NachrichtAntwort == antwortNein) {
        Meldung(nichtGespeichert);
        return true;
    }
    return KatalogSpeichern(editor, 0); // a save that did not come about counts as Abbrechen
}

bool DarfSchliessen(frmEditor& editor) {
    return Gelungen([&] { EditorText = editor.txtNotiz->text(); }) && TextGesichert(editor);
}
