// The settings dialog: shape of the board, points and limits of the special fields, rules, look and file
// options on six tabs. Counters and rules are in force at once, and cmdAbbrechen puts them back; points and
// limits are edited in copies, which only cmdEinOK brings into force, and only then the form follows them
// all. The options of the pages for look, print and file stay, whatever button ends the dialog. What a step
// comes to is decided in regelschritte.h, a conversion in rules/skalierung.h.
#pragma once

#include "rules/spezialart.h"
#include "settings/vorgaben.h"

#include <QDialog>

#include <array>
#include <functional>
#include <optional>

class Blattskizze;
class Drehfeld;
class Panel;
class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLayout;
class QPushButton;
class QTabWidget;

class frmIni : public QDialog {
    Q_OBJECT

public:
    frmIni();

    // Esc and the frame's close box are cmdAbbrechen.
    void reject() override;

protected:
    void showEvent(QShowEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    // What the tabs and tasks share, in frmIni.cpp
    QGroupBox* RahmenBauen(QWidget* eltern, const char* name, const QString& titel);
    QCheckBox* KastenBauen(QWidget* eltern, const char* name, const char* aufschrift);
    QPushButton* TasteBauen(QWidget* eltern, const char* name, const char* aufschrift);
    void HinweiseSetzen();
    void ArtenhinweiseSetzen();
    void OptionenZeigen();
    // Runs a handler; a number that grows beyond a counter is reported with the control as its place.
    void Ausfuehren(const char* name, const std::function<void()>& schritt);

    // Tabs and what stands below them, in iniregister.cpp
    void RegisterBauen();
    void ToolbarBauen();
    void RegisterAnwenden(int index);

    // Counters and spin controls, in inizaehler.cpp
    enum Gruppe : std::uint8_t { Punkte, Felder, PunkteV, FelderV };
    QGroupBox* ArtenrahmenBauen(QWidget* eltern, Gruppe gruppe);
    QLayout* ArtBauen(QWidget* rahmen, Gruppe gruppe, Spezialart art);
    struct Schrittaste {
        const char* name;
        const char* wort;
        int spalte;
        Richtung richtung;
        void (frmIni::*schritt)(Richtung);
    };
    void ZaehlerBauen(QGridLayout* gitter);
    Panel* ZaehlerpanelBauen(QGridLayout* gitter, const char* kern, const char* wort, int spalte);
    void SchrittasteBauen(QGridLayout* gitter, const Schrittaste& zeile);
    void ZaehlerZeigen();
    void FragenStufen(Richtung richtung);
    void WissenStufen(Richtung richtung);
    void Stufen(const Regelschritt& schritt, std::int16_t& zaehler);
    bool SchrittErlaubt(const Regelschritt& schritt);
    void ArtDrehen(Gruppe gruppe, Spezialart art, Richtung richtung);
    void ArtenZeigen(Gruppe gruppe);
    void FelderrahmenBeschriften(int fragen);

    // Rules, in iniregeln.cpp
    void RegelnBauen(QWidget* seite);
    void RegelnVerbinden();
    void RegelnZeigen();
    void RegelAnkreuzen(QCheckBox* kasten, bool& option, bool an, const std::optional<Regelfrage>& frage);

    // Look, print and file options, in inidarstellung.cpp and inifarben.cpp
    void FormularseiteBauen(QWidget* seite);
    QGroupBox* AbstandBauen(QWidget* seite);
    QGroupBox* SchattierungBauen(QWidget* seite);
    void DateiseiteBauen(QWidget* seite);
    QGroupBox* DruckrahmenBauen(QWidget* seite);
    void DarstellungVerbinden();
    void DarstellungZeigen();
    void PapierZeigen();
    void FarbseiteBauen(QWidget* seite);
    void FarbeWaehlen(int nummer);
    void FarbeZeigen();

    // Commands, in inibefehle.cpp
    void BefehleVerbinden();
    void SpielregelwerteEintragen();
    void StandardEinsetzen();
    void StandardUmrechnen();
    void AufNullSetzen();
    void EinstellungenLaden();
    void EinstellungenSpeichern();
    void Anwenden();
    void Abbrechen();

    Vorgaben vorgaben_;
    Spielwerte vorher_;      // as they were when the dialog came on the screen
    bool aktiviert_ = false; // that has been noted
    bool fuellt_ = false;    // the dialog fills its boxes: no box raises a question
    bool gestuft_ = false;   // a step has been made: FelderGesamt follows the counters
    int farbe_ = 0;          // colour last chosen; reaches the settings only by cmdEinOK

    QTabWidget* tabIni_ = nullptr;
    std::array<Panel*, 6> pnlIni_{};
    Panel* pnlToolbar_ = nullptr;
    QGroupBox* fraFelder_ = nullptr;
    std::array<JeArt<Panel*>, 4> werte_{}; // by Gruppe
    Panel* pnlFragenFK_ = nullptr;
    Panel* pnlFragenFKF_ = nullptr;
    Panel* pnlFragenFKW_ = nullptr;
    QCheckBox* chkMaxFelder_ = nullptr;
    QCheckBox* chkMaxSpezial_ = nullptr;
    QCheckBox* chkMaxWissen_ = nullptr;
    QCheckBox* chkTitel_ = nullptr;
    QCheckBox* chkWissen_ = nullptr;
    QCheckBox* chkJoker_ = nullptr;
    QCheckBox* chkRahmen_ = nullptr;
    QCheckBox* chkDatei_ = nullptr;
    QButtonGroup* optZwischen_ = nullptr;
    QButtonGroup* optDrucken_ = nullptr;
    QButtonGroup* optFarbe_ = nullptr;
    std::array<Blattskizze*, 2> imgPapier_{};
};
