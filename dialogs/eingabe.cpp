#include "dialogs/eingabe.h"

#include "core/oberflaeche.h"
#include "dialogs/einzelfenster.h"
#include "dialogs/frmInput.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"

const std::string& Eingabe(int bildNr, std::string_view titel, std::string_view text,
                           std::string_view vorgabe, int nummer) {
    frmInput& fenster = Einzelfenster<frmInput>("INPUT.bmp");
    NachrichtBild = static_cast<std::int16_t>(bildNr);
    InputVorgabe = vorgabe;
    NachrichtNummer = std::to_string(nummer);
    fenster.Fragen(Anzeige(text), Anzeige(titel));
    ModalZeigen(fenster);
    return InputErgebnis;
}
