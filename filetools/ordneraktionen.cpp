#include "filetools/ordneraktionen.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/fehlerkasten.h"
#include "filetools/kopiername.h"

using namespace dateitexte;

bool OrdnerAnlegenMitFrage(const std::string& ordner, const std::function<void()>& aktualisieren) {
    std::string name;
    for (;;) {
        name = Eingabe(ordnerBild, ordnerTitel, ordnerFrage, "", 1111);
        if (name.empty()) {
            Meldung(keinOrdnerAngelegt);
            return false;
        }
        if (!OrdnerDa(PfadVerbinden(ordner, name))) {
            break;
        }
        Meldung(ordnerVorhanden, {name});
    }
    const bool angelegt = Versuchen([&] {
        if (!BleibtImOrdner(name)) {
            throw Laufzeitfehler(Fehler::DateinameFalsch);
        }
        OrdnerAnlegen(PfadVerbinden(ordner, name));
        return true;
    });
    if (angelegt) {
        aktualisieren();
        Meldung(ordnerAngelegt, {name, ordner});
    }
    return angelegt;
}

bool OrdnerLoeschenMitFrage(const std::string& ordner, const std::function<void()>& aktualisieren) {
    const std::string name = Ordnername(ordner);
    NachrichtAntwort = antwortAbbrechen;
    if (Nachricht(ordnerLoeschen, {name}) != antwortJa) {
        Meldung(ordnerBehaltenErst);
        return false;
    }
    NachrichtAntwort = antwortAbbrechen;
    if (Nachricht(ordnerWirklichLoeschen, {name}) != antwortJa) {
        Meldung(ordnerBehaltenDann);
        return false;
    }
    const bool geloescht = Versuchen([&] {
        OrdnerLoeschen(ordner);
        return true;
    });
    if (geloescht) {
        aktualisieren();
        Meldung(ordnerGeloescht, {name});
    }
    return geloescht;
}
