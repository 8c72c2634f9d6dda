#include "forms/quizformulare.h"

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "filetools/formularliste.h"
#include "forms/formulare.h"
#include "forms/formularjournal.h"
#include "forms/formularpfad.h"
#include "forms/speichern.h"
#include "printing/drucken.h"
#include "quizform/fkformular.h"
#include "quizform/texte.h"
#include "rules/wertebereiche.h"

namespace {

void Fenster() {
    static const FKAnlass anlass{[] { return SchliessenPruefen(Formart::Quiz); },
                                 [] {
                                     Stand.FormTyp = Formart::Keine;
                                     FormularpfadVergessen(Formart::Quiz);
                                     FormularjournalBeenden();
                                 }};
    FK_Fenster(anlass);
}

} // namespace

void FK_Neu() {
    if (!NeuErlaubt(fktexte::neu, fktexte::neuSpeichern)) {
        return;
    }
    FormulareEntladen(); // only one form can be open
    BereicheEinhalten(Spiel);
    FK_ModusSetzen();
    Fenster();
    FK_Leeren();
    FormularpfadVergessen(Formart::Quiz);
    FK_NachVorn();
    FK_FenstertitelSetzen(fktexte::neuerTitel);
    FormularlisteTastenSetzen(Formart::Quiz);
    FormStatusSetzen(false);
}

void FK_ModusSetzen(std::string_view ort) {
    try {
        ModusFK();
    } catch (const Laufzeitfehler& fehler) {
        // Such a shape would keep every new form away.
        FehlerMelden(ort, fehler);
        Spiel.AnzahlWissen = Spiel.FragenProWissen = 0;
        ModusFK();
    }
}

void FK_Zeigen() {
    if (FKFragenOffen() == nullptr) {
        FK_ModusSetzen();
        Fenster();
        FK_FenstertitelSetzen(fktexte::neuerTitel);
        FormStatusSetzen(false);
    }
    FK_NachVorn();
}

void FK_GelesenesZeigen(std::string_view titel) {
    FK_ModusSetzen("DATEI : Oeffnen_Fragen");
    Fenster();
    FK_FormularZeigen();
    FK_FenstertitelSetzen(titel);
    FK_NachVorn();
}

void FK_InWerte(Formularwerte& werte) {
    werte.quiz = FK_Ablesen();
}

void FK_Drucken(bool blanko) {
    FormularDrucken(FK_Ablesen(), Spiel, Stand.FKDateiName, blanko);
}
