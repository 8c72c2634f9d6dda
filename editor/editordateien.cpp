#include "editor/editordateien.h"

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "editor/editordaten.h"
#include "editor/editorjournal.h"
#include "editor/editorpfad.h"
#include "editor/frmEditor.h"
#include "editor/katalogtext.h"
#include "editor/texte.h"
#include "filetools/dateidialog.h"
#include "persistence/dateiblick.h"
#include "persistence/fremdfrage.h"
#include "persistence/journal.h"
#include "persistence/journalname.h"
#include "persistence/sicherung.h"
#include "persistence/texte.h"

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
            ordner.empty() ? Stand.AppPfad + "\\WISSEN" : ordner,
            "",
            false};
}

// Runs a step; a run-time error is told with that place, and the result is false then.
bool Gelungen(std::string_view ort, const std::function<void()>& schritt) {
    try {
        schritt();
        return true;
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(ort, fehler);
    } catch (const std::bad_alloc&) {
        FehlerMelden(ort, Laufzeitfehler(Fehler::SpeicherVoll));
    }
    return false;
}

// --- Loading ---

// The path chosen, "" for none.
std::string GewaehlteDatei() {
    Dateiauswahl auswahl = Auswahl(
        oeffnen, false, {"Feldkranz-Fragen (*.TXT)", "Feldkranz-Fragen (*.BAK)", "Alle Dateien (*.*)"},
        {"*.txt", "*.*"});
    auswahl.pfad = Editor.Pfad;
    return DateidialogZeigen(auswahl).value_or("");
}

struct Gelesenes {
    Katalogtext katalog;
    Dateistand stand;
};

// The text of a file, or nothing after the user was told why not.
std::optional<Gelesenes> Gelesen(const std::string& pfad) {
    std::optional<Gelesenes> gelesen;
    bool istText = true;
    Gelungen(ortLaden, [&] {
        const Wartezeiger warten;
        const std::string bytes = DateiLesen(pfad, groessterKatalogtext);
        istText = IstTextdatei(bytes);
        if (istText) {
            gelesen = Gelesenes{KatalogtextLesen(bytes), StandVon(bytes)};
        }
    });
    if (!istText) {
        Meldung(keinText, {NurDateiname(pfad)});
    }
    return gelesen;
}

// While a part of the text stands in the field, it belongs to no file: nothing could be saved over the whole.
void Zeigen(frmEditor& editor, const std::string& pfad, Gelesenes gelesen) {
    const Wartezeiger warten;
    EditorpfadVergessen();
    Editor.BemerkungMarke = std::move(gelesen.katalog.marke);
    Editor.Bemerkung = std::move(gelesen.katalog.text);
    editor.TextZeigen(Editor.Bemerkung, pfad);
    EditorpfadMerken(pfad);
    Editor.Kenntnis = Dateikenntnis(std::move(gelesen.stand));
    EditorStatusSetzen(false);
}

// A part of a text under the name of its file would be taken for the whole.
void Leeren(frmEditor& editor) {
    Editor.BemerkungMarke.clear();
    Editor.Bemerkung.clear();
    editor.txtNotiz->clear();
    editor.NamenZeigen("");
    EditorStatusSetzen(false);
}

// The text that was never saved, in place of the one just read: of this file, or the file is itself a journal
// and then belongs to none. One that can't be read stays where it is.
void UngesichertesHolen(frmEditor& editor, const std::string& pfad) {
    const bool selbst = IstJournalname(NurDateiname(pfad));
    const std::optional<QString> journal =
        selbst && JournalVerwaist(NativerPfad(pfad)) ? std::optional(NativerPfad(pfad)) : Editorjournal(pfad);
    if (selbst) {
        EditorpfadVergessen();
        editor.NamenZeigen("");
        EditorStatusSetzen(true);
    }
    if (!journal) {
        return;
    }
    if (!selbst) {
        const Dateikenntnis datei = Editor.Kenntnis; // the text comes from elsewhere
        std::optional<Gelesenes> text = Gelesen(EigenerPfad(*journal));
        if (!text) {
            return;
        }
        if (!Gelungen(ortLaden, [&] { Zeigen(editor, pfad, std::move(*text)); })) {
            Leeren(editor);
            return;
        }
        Editor.Kenntnis = datei;
    }
    EditorStatusSetzen(true);
    EditorjournalUebernehmen(*journal);
    HilfeText(Einsetzen(persistenztexte::journalText, {NurDateiname(pfad)}));
}

// --- Saving ---

// The name asked for, with that one proposed; none when the dialog was cancelled.
std::optional<std::string> ErfragterName(const std::string& bisher) {
    Dateiauswahl auswahl = Auswahl(speichernUnter, true, {"Feldkranz-Fragen (*.TXT)", "Alle Dateien (*.*)"},
                                   {"*.txt", "*.bak", "*.*"}); // two names face three patterns: it is meant
    auswahl.vorschlag = NurDateiname(bisher);
    auswahl.pfad = bisher;
    return DateidialogZeigen(auswahl);
}

// Where a text goes, and the content there that may be replaced without a question.
struct Ziel {
    std::string pfad;
    Dateikenntnis bekannt;
};

// Nothing when the existing file is to stay.
std::optional<Ziel> DarfUeberschreiben(const std::string& pfad) {
    if (!DateiDa(pfad)) {
        return Ziel{pfad, {}};
    }
    Ziel ziel{pfad, Angesehen(pfad)};
    if (NachrichtJaNein(ueberschreiben, {NurDateiname(pfad)})) {
        return ziel;
    }
    Meldung(abgebrochen);
    return std::nullopt;
}

// The path of the editor's file. A slow disk is waited for here already.
std::string EigenerPfad() {
    const Wartezeiger warten;
    return Editorpfad();
}

// A place for the text, or nothing, which the user knows.
std::optional<Ziel> Speicherziel(Namensfrage wann) {
    const std::string eigener = EigenerPfad();
    if (wann == Namensfrage::NurOhneDatei && !eigener.empty()) {
        return Ziel{eigener, Editor.Kenntnis};
    }
    std::optional<std::string> pfad = ErfragterName(eigener);
    if (!pfad) {
        return std::nullopt;
    }
    if (NurDateiname(*pfad).empty()) {
        Systemkasten(Kastenart::Schlicht, kastentitel, nameFehlt);
        return std::nullopt;
    }
    if (!NameBrauchbar(NurDateiname(*pfad))) {
        FehlerMelden(ortDatei, Laufzeitfehler(Fehler::DateinameFalsch));
        return std::nullopt;
    }
    if (!Grossschreiben(*pfad).ends_with(".TXT")) {
        *pfad += ".TXT";
    }
    return DarfUeberschreiben(*pfad);
}

// The path that the text is going to be written to, its backup made; or nothing, which the user knows.
std::optional<std::string> Schreibpfad(Namensfrage wann) {
    const Fremdworte worte{persistenztexte::dieFragendatei, persistenztexte::neinAndererName};
    for (;;) {
        const std::optional<Ziel> ziel = Speicherziel(wann);
        const Antwort antwort = ziel
                                    ? FremdesFragen(ziel->pfad, worte, ziel->bekannt, SicherungAnlegenKatalog)
                                    : Antwort::Abbrechen;
        if (antwort != Antwort::Nein) {
            return antwort == Antwort::Ja ? std::optional(ziel->pfad) : std::nullopt;
        }
        wann = Namensfrage::Immer;
    }
}

// Writes mark and text. The old file is whole until the new one is. False after a failure, which is told.
bool Geschrieben(const std::string& pfad) {
    return Gelungen(ortDatei, [&pfad] {
        const Wartezeiger warten;
        BekanntSchreiben(pfad, KatalogtextBytes(Editor.BemerkungMarke, Editor.Bemerkung), Editor.Kenntnis);
    });
}

} // namespace

void KatalogLaden(frmEditor& editor) {
    if (!TextGesichert(editor)) {
        return;
    }
    const std::string pfad = GewaehlteDatei();
    if (pfad.empty()) {
        Meldung(keineDatei);
        return;
    }
    std::optional<Gelesenes> gelesen = Gelesen(pfad);
    if (gelesen && !Gelungen(ortLaden, [&] { Zeigen(editor, pfad, std::move(*gelesen)); })) {
        Leeren(editor);
    } else if (gelesen) {
        UngesichertesHolen(editor, pfad);
    }
}

bool KatalogSpeichern(frmEditor& editor, Namensfrage wann) {
    if (!Gelungen(ortDatei, [&] { Editor.Bemerkung = editor.txtNotiz->text(); })) {
        return false;
    }
    std::erase(Editor.Bemerkung, '\0'); // one pasted just now: the file wouldn't be opened again
    const std::optional<std::string> pfad = Schreibpfad(wann);
    if (!pfad) {
        EditorpfadEinsetzen(); // the editor keeps the file it had
        return false;
    }
    if (Editor.Pfad.empty()) {
        Editor.BemerkungMarke = KatalogkopfAus(NurDateiname(*pfad));
    }
    if (!Geschrieben(*pfad)) {
        EditorpfadEinsetzen();
        EditorStatusSetzen(true); // what the field shows may stand in no file by now
        return false;
    }
    EditorpfadMerken(*pfad);
    editor.NamenZeigen(*pfad);
    Meldung(gespeichert, {NurDateiname(*pfad)});
    EditorStatusSetzen(false);
    return true;
}

bool TextGesichert(frmEditor& editor) {
    if (!Stand.EditorGeaendert) {
        return true;
    }
    const Antwort antwort = Nachricht(textSpeichern);
    if (antwort == Antwort::Nein) {
        Meldung(nichtGespeichert);
        return true;
    }
    // A save that did not come about counts as Abbrechen.
    return antwort == Antwort::Ja && KatalogSpeichern(editor, Namensfrage::NurOhneDatei);
}
