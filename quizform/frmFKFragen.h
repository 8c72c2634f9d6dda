// The window of the quiz form: 30 cells in six columns, the titles, the head and the two lists that open over
// a panel. It builds and places its controls and passes events on; the rules are in the model, the routines
// that act on the controls in quizform/fkformular.h and its sources.
#pragma once

#include "core/massfenster.h"
#include "core/panel.h"
#include "core/textfeld.h"
#include "quizform/formmasse.h"
#include "quizform/quizformular.h"
#include "rules/spezialart.h"

#include <QComboBox>
#include <QPushButton>

#include <array>
#include <functional>
#include <string>

template <typename Steuerelement>
using JeFeld = std::array<Steuerelement*, anzahlFelder + 1>; // index 0 isn't used

class frmFKFragen : public Massfenster {
    Q_OBJECT

public:
    // darfSchliessen is asked before the window closes.
    explicit frmFKFragen(std::function<bool()> darfSchliessen);

    // Width and height of the screen in pixels.
    [[nodiscard]] int HolAuflösungX() const;
    [[nodiscard]] int HolAuflösungY() const;

    [[nodiscard]] QSize Originalgroesse() const override;
    // Where the window belongs in the main window's child area, for its size with the frame.
    [[nodiscard]] QPoint Platz(QSize mitRahmen, QPoint wieGeoeffnet) const;

    // Paints the background for FarbeHintergrund, or for another index before it is applied.
    void HintergrundMalen(int farbe);
    // The tips of the special panels name the limits in force.
    void SpezialTippsErneuern();

    JeFeld<Textfeld> txtFrage{};
    JeFeld<Textfeld> txtAntwort{};
    JeFeld<Panel> pnlPunkte{};
    JeFeld<Panel> pnlSpezial{};
    JeFeld<QWidget> shpFrage{};
    std::array<Panel*, anzahlGebiete + 1> pnlWissen{};
    Textzeile* txtNr = nullptr;
    Textzeile* txtDatum = nullptr;
    Textzeile* txtZeit = nullptr;
    Panel* pnlNr = nullptr;
    Panel* pnlDatum = nullptr;
    Panel* pnlZeit = nullptr;
    Panel* pnlKranz = nullptr;
    QComboBox* cmbSpezial = nullptr;
    QComboBox* cmbWissen = nullptr;
    QPushButton* cmdFKSchliessen = nullptr;

    // Texts of the cell at the moment one of its boxes took the focus, renewed when they have been merged or
    // a command has set them.
    struct Zelltexte {
        std::string frage, antwort;
        friend bool operator==(const Zelltexte&, const Zelltexte&) = default;
    };
    Zelltexte Alt;
    [[nodiscard]] Zelltexte Texte(int n) const;

    // The cell, or the area, over which a list was opened last.
    int AktuellesFeld = 0;
    // Cells of each kind as of the last count. Only the counting routines write it, and the limit test reads
    // it as it stands.
    Artwerte SpezialAnzahl;

Q_SIGNALS:
    // The window has been closed after its check and is about to go.
    void geschlossen();

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void Auslegen(Massstab massstab) override { Anordnen(massstab); }

private:
    void KopfBauen();
    void TitelBauen();
    void FeldBauen(int n);
    void ListenBauen();
    void BilderBauen();
    void Anordnen(Massstab massstab);
    void KopfAnordnen(Massstab massstab);
    void TabfolgeSetzen();
    void HinweiseSetzen();
    void EreignisseVerbinden();

    std::function<bool()> darfSchliessen_;
    const FormMasse* masse_; // of the class chosen when the window was made
};
