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
        name = Eingabe(ordnerBild, ordnerTitel, ordnerFrage, "").value_or("");
        if (name.empty()) {
            Meldung(keinOrdnerAngelegt);
            return false;
        }
        if (!OrdnernameBrauchbar(name)) {
            Fehlerkasten(Laufzeitfehler(Fehler::DateinameFalsch));
            return false;
        }
        if (!OrdnerDa(PfadVerbinden(ordner, name))) {
            break;
        }
        Meldung(ordnerVorhanden, {name});
    }
    const bool angelegt = Versuchen([&] {
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
    if (Nachricht(ordnerLoeschen, {name}) != Antwort::Ja) {
        Meldung(ordnerBehaltenErst);
        return false;
    }
    if (Nachricht(ordnerWirklichLoeschen, {name}) != Antwort::Ja) {
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
