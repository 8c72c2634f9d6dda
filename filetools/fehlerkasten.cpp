#include "filetools/fehlerkasten.h"

#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"

bool Versuchen(const std::function<bool()>& aktion) {
    try {
        return aktion();
    } catch (const Laufzeitfehler& fehler) {
        Systemkasten(Kastenart::Ausruf, dateitexte::hinweisTitel,
                     std::to_string(fehler.nummer()) + " : " + fehler.text());
        return false;
    }
}
