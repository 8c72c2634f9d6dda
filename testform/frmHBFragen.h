// The window of the test form: the head with its three lists, ten rows with question, answer and points, the
// lines with the total. It builds its controls and passes events on; where they stand is hbanordnung.cpp,
// what events lead to hbereignisse.cpp, hbpunkte.cpp and hbziehen.cpp, and the routines that act on the
// controls are in testform/hbformular.h.
#pragma once

#include "core/drehfeld.h"
#include "core/massfenster.h"
#include "core/panel.h"
#include "core/textfeld.h"
#include "testform/formmasse.h"
#include "testform/testformular.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>

#include <array>
#include <functional>
#include <string>

template <typename Steuerelement>
using JeZeile = std::array<Steuerelement*, anzahlTestfragen + 1>; // index 0 isn't used

// A choice of the head: the panel, the list that opens over it and the button beside it.
struct Kopfwahl {
    Panel* panel = nullptr;
    QComboBox* liste = nullptr;
    QToolButton* taste = nullptr;
};

class frmHBFragen : public Massfenster {
    Q_OBJECT

public:
    // darfSchliessen is asked before the window closes.
    explicit frmHBFragen(std::function<bool()> darfSchliessen);

    [[nodiscard]] QSize Originalgroesse() const override;
    // Where the window belongs in the main window's child area, for its size with the frame.
    [[nodiscard]] QPoint Platz(QSize mitRahmen, QPoint wieGeoeffnet) const;
    // Paints the background for FarbeHintergrund.
    void HintergrundMalen();

    JeZeile<Panel> pnlNr{};
    JeZeile<Textfeld> txtFrage{};
    JeZeile<Textfeld> txtAntwort{};
    JeZeile<Panel> pnlPunkte{};
    JeZeile<Drehfeld> spnPunkte{};
    Kopfwahl titel, fach, gruppe; // pnlTitel, cmbTitel, cmdTitel and so on
    QLabel* lblGruppe = nullptr;  // lies on pnlGruppe
    Panel* pnlTest = nullptr;
    Panel* pnlName = nullptr;
    Panel* pnlBewertet = nullptr;
    Panel* pnlNote = nullptr;
    Panel* pnlPunktkontrolle = nullptr;
    Panel* pnlGesamtpunkte = nullptr;

    // Text of the box that lost the focus last.
    std::string HBAlterText;

Q_SIGNALS:
    // The window has been closed after its check and is about to go.
    void geschlossen();

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void Auslegen(Massstab massstab) override { Anordnen(massstab); }

private:
    void KopfBauen();
    void ListenFuellen();
    void ZeileBauen(int n);
    void FussBauen();
    void UeberschriftenBauen();
    void Anordnen(Massstab massstab);
    void KopfAnordnen(Massstab massstab);
    void UeberschriftenAnordnen(Massstab massstab);
    void FussAnordnen(Massstab massstab);
    void TabfolgeSetzen();
    void HinweiseSetzen();

    std::function<bool()> darfSchliessen_;
    const TestMasse* masse_; // of the class chosen when the window was made
};
