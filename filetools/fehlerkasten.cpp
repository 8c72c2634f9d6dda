#include "filetools/fehlerkasten.h"

#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"

void Fehlerkasten(const Laufzeitfehler& fehler) {
    Systemkasten(Kastenart::Ausruf, dateitexte::hinweisTitel,
                 std::to_string(fehler.nummer()) + " : " + fehler.text());
}

bool Versuchen(const std::function<bool()>& aktion) {
    try {
        return aktion();
    } catch (const Laufzeitfehler& fehler) {
        Fehlerkasten(fehler);
        return false;
    }
}
