// The window that fills the empty cells of the open form out of the catalogue: choices above, a picture of
// the form with what it proposes below, and what comes of it. It shows and collects; what fits and what is
// drawn is the model's (filling/fuellauftrag.h), and it opens by filling/fuellen.h.
#pragma once

#include "filling/fuellauftrag.h"
#include "forms/formularstand.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class Fuellwahl;
class QBoxLayout;
class QLabel;
class QPushButton;
class Vorschlagfeld;

class frmFuellen : public QWidget {
    Q_OBJECT

public:
    // For the form that is open.
    frmFuellen();

    // The form that it fills is still open.
    [[nodiscard]] bool gilt() const;
    // Follows what has changed on the form, or closes soon where that isn't open any more.
    void Angleichen();
    // Goes with its child window, without a question: nothing is lost.
    void Schliessen();

protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void Bauen();
    void FelderBauen(QBoxLayout& gesamt);
    void FusszeileBauen(QBoxLayout& gesamt);
    QPushButton* TasteBauen(const char* name, std::string_view aufschrift);
    void TabfolgeSetzen();
    void Verbinden();

    void KatalogGelesen();
    void AuftragErneuern();
    void Zeigen();
    void FeldZeigen(std::size_t n);
    void NachbarBetreten(std::size_t von, int spalten, int zeilen);

    void VorschlagMachen();
    void FeldNeuZiehen(std::size_t n);
    void Uebernehmen();

    [[nodiscard]] bool IstBrett() const;
    [[nodiscard]] std::string Feldort(std::size_t n) const;
    [[nodiscard]] std::string Ergebnis() const;

    Formularstand stand_;                        // the form as seen last
    int formular_ = 0;                           // its number
    std::shared_ptr<const Fragenvorrat> vorrat_; // none until the catalogue is read
    Fuellauftrag auftrag_;
    Vorschlag vorschlag_;
    bool gemacht_ = false;   // a proposal for the whole form has been made by these wishes
    bool schliesst_ = false; // it only waits for the running work to end

    Fuellwahl* wahl_ = nullptr;
    std::vector<Vorschlagfeld*> picVorschlag_; // from 1
    QLabel* lblErgebnis_ = nullptr;
    QPushButton *cmdVorschlag_ = nullptr, *cmdUebernehmen_ = nullptr, *cmdAbbruch_ = nullptr;
};
