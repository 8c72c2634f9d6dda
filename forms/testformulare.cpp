#include "forms/testformulare.h"

#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "filetools/formularliste.h"
#include "forms/formulare.h"
#include "forms/formularjournal.h"
#include "forms/formularpfad.h"
#include "forms/speichern.h"
#include "printing/testdrucken.h"
#include "testform/hbformular.h"
#include "testform/texte.h"

namespace {

void Fenster() {
    static const HBAnlass anlass{[] { return SchliessenPruefen(Formart::Test); },
                                 [] {
                                     Stand.FormTyp = Formart::Keine;
                                     FormularpfadVergessen(Formart::Test);
                                     FormularjournalBeenden();
                                 }};
    HB_Fenster(anlass);
}

} // namespace

bool HB_Neu() {
    if (!NeuErlaubt(hbtexte::neu, hbtexte::neuSpeichern)) {
        return false;
    }
    FormulareEntladen(); // only one form can be open
    ModusTest();
    HBForm = {};
    FormularpfadVergessen(Formart::Test);
    Fenster();
    HB_FragenLoeschen();
    HB_NachVorn();
    HB_FenstertitelSetzen(hbtexte::neuerTitel);
    FormularlisteTastenSetzen(Formart::Test);
    FormStatusSetzen(false);
    return true;
}

void HB_GelesenesZeigen(std::string_view titel) {
    Fenster();
    ModusTest();
    HB_FormularZeigen();
    HB_FenstertitelSetzen(titel);
    HB_NachVorn();
}

void HB_InWerte(Formularwerte& werte) {
    werte.test = HB_Ablesen();
}

void HB_Drucken() {
    TestFormularDrucken(HB_Bildschirm(), HBForm.HBGesamtpunkte, Stand.HBDateiName);
}
