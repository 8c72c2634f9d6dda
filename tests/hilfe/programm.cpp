#include "tests/hilfe/programm.h"

#include "catalogue/auswahl.h"
#include "catalogue/themen.h"
#include "core/fortschritt.h"
#include "core/frmMDI.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/ziehen.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "editor/editor.h"
#include "editor/editordaten.h"
#include "printing/drucken.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "quizform/spezialfelder.h"
#include "settings/einstellungen.h"
#include "testform/formdaten.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/versagen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QTest>

namespace {

void FormZuruecksetzen() {
    WissenTitel.fill({});
    FrageText.fill({});
    AntwortText.fill({});
    FeldSpezial.fill({});
    FeldPunkte.fill(0);
    for (std::string* text : {&FormNr, &FormDatum, &FormZeit, &FKDateiName, &HBDateiName, &HBFach, &HBKopf1,
                              &HBKopf2, &HBKopf3}) {
        text->clear();
    }
    HBFrageText.fill({});
    HBAntwortText.fill({});
    HBPunkte.fill(0);
    AktuellesFeld = LoeschLauf = HBGesamtpunkte = 0;
    SpezialAnzahl.fill(0);
    RegelTaste = RegelHinweis = 0;
}

void EinstellungenZuruecksetzen() {
    for (std::int16_t* zahl :
         {&PunkteA,          &PunkteE,      &PunkteG,         &PunkteJ,          &PunkteR,
          &FelderA,          &FelderE,      &FelderG,         &FelderJ,          &FelderR,
          &PunkteVA,         &PunkteVE,     &PunkteVG,        &PunkteVJ,         &PunkteVR,
          &FelderVA,         &FelderVG,     &FelderVJ,        &FelderVR,         &FelderGesamt,
          &FragenProWissen,  &AnzahlWissen, &OptionMaxFelder, &OptionMaxSpezial, &OptionMaxWissen,
          &FarbeHintergrund, &OptionTitel,  &OptionWissen,    &OptionJoker,      &OptionRahmen,
          &OptionDatei}) {
        *zahl = 0;
    }
    FelderVE.reset();
    OptionEreignis.reset();
    Zwischenabstand = 0.0F;
    for (std::string* text : {&Papierformat, &Datei1, &Datei2, &Datei3, &Datei4}) {
        text->clear();
    }
    HilfeEintrag.fill({});
}

} // namespace

void ZustandZuruecksetzen() {
    FormZuruecksetzen();
    EinstellungenZuruecksetzen();
    for (std::string* text :
         {&FormTyp, &DateiName, &DateiAlt, &DragHerkunft, &Bemerkung, &BemerkungMarke, &EditorText}) {
        text->clear();
    }
    DateiAbbruch = DateiNr = FormGeaendert = EditorGeaendert = SpeichernMitDialog = 0;
    FortschrittAktiv = 0;
    FortschrittWert = 0.0F;
    DragArt = DragFeld = 0;
    NachrichtAntwort = 0;
    BlankoDruck = 0;
    ThemenListe.fill({});
    UnterthemenListe.fill({});
    BildschirmgroesseVorgeben(QSize());
}

Programm::Programm(bool mitEinstellungen) {
    const std::string pfad = AppPfad; // set by the folder
    ZustandZuruecksetzen();
    AppPfad = pfad;
    if (!mitEinstellungen) {
        QFile::remove(ordner_.nativ(QStringLiteral("CONFIG/Feldkranz.INI")));
    }
    static const bool eingerichtet = [] {
        OberflaecheEinrichten();
        QApplication::setQuitOnLastWindowClosed(false); // the test goes on without a window
        return true;
    }();
    Q_UNUSED(eingerichtet);
    HauptfensterZeigen();
    if (!QTest::qWaitForWindowActive(MDIFenster())) {
        VersagenUndEnde(QStringLiteral("The main window never became active"), Stelle::hier());
    }
}

Programm::~Programm() {
    FormGeaendert = 0;
    FK_Entladen();
    HB_Entladen();
    EditorEntladen();
    delete FensterOderNichts(QStringLiteral("frmAuswahl"));
    delete MDIFenster();
    NormalerZeiger();
}

frmMDI* Programm::haupt() const {
    return MDIFenster();
}

frmFKFragen* Programm::NeuesQuizformular() {
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Feldkranz-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Feldkranz-Formular !\n"
                                 "(Das kann einen kleinen Moment dauern.)"),
                  6);
    const bool amAnfang = Finden(haupt(), QStringLiteral("picKranz"))->isVisible();
    Finden<QAbstractButton>(haupt(), amAnfang ? QStringLiteral("cmdNeuFK") : QStringLiteral("cmdDateiFK(1)"))
        ->click();
    frmFKFragen* form = FKFragenOffen();
    if (form == nullptr || !QTest::qWaitFor([form] { return form->isVisible(); })) {
        VersagenUndEnde(QStringLiteral("The new quiz form never showed"), Stelle::hier());
    }
    return form;
}

frmHBFragen* Programm::NeuesTestformular() {
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Test-Formular"),
                  QStringLiteral("Ich besorge dir ein neues Test-Formular !"), 6);
    const bool amAnfang = Finden(haupt(), QStringLiteral("picKranz"))->isVisible();
    Finden<QAbstractButton>(haupt(), amAnfang ? QStringLiteral("cmdNeuHB") : QStringLiteral("cmdDateiHB(1)"))
        ->click();
    frmHBFragen* form = HBFragenOffen();
    if (form == nullptr || !QTest::qWaitFor([form] { return form->isVisible(); })) {
        VersagenUndEnde(QStringLiteral("The new test form never showed"), Stelle::hier());
    }
    return form;
}
