#include "dialogs/eingabe.h"

#include "core/oberflaeche.h"
#include "dialogs/einzelfenster.h"
#include "dialogs/frmInput.h"
#include "dialogs/modal.h"

std::optional<std::string> Eingabe(int bildNr, std::string_view titel, std::string_view text,
                                   std::string_view vorgabe) {
    frmInput& fenster = Einzelfenster<frmInput>("INPUT.bmp");
    fenster.Fragen(bildNr, Anzeige(titel), Anzeige(text), Anzeige(vorgabe));
    ModalZeigen(fenster);
    return fenster.ergebnis();
}
