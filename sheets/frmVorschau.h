// The window with the open form as it will come out of the printer, on any of its sheets. It follows the
// form, prints what it shows and writes it into a PDF file; what stands on a sheet is sheets/blaetter.h, its
// way out sheets/blattausgabe.h.
#pragma once

#include "sheets/blattausgabe.h"

#include <QWidget>

#include <memory>
#include <optional>

class Druckschriften;
class Formularfolger;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QPushButton;
class QToolButton;

class frmVorschau : public QWidget {
    Q_OBJECT

public:
    frmVorschau();
    ~frmVorschau() override;

    // Shows the form as it is now.
    void Auffrischen();

protected:
    bool event(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void Aufbauen();
    void WahlBauen(QBoxLayout& gesamt);
    void FusszeileBauen(QBoxLayout& gesamt);
    QToolButton* LupeBauen(const char* name, std::string_view bild, std::string_view was);
    void Verbinden();
    void LupenVerbinden();

    void BlaetterAnbieten(Formart art);
    void WahlZeigen();
    void AnsichtEinstellen();
    void Malen(QPrinter* drucker) const;
    [[nodiscard]] QString Hinweis() const;
    [[nodiscard]] Blattwunsch Wunsch() const;
    void Behalten() const;

    std::optional<Blattvorlage> vorlage_; // what is shown, none without a form
    std::optional<Blattwunsch> wunsch_;
    Formart angeboten_ = Formart::Keine; // the kind that the sheets in the list belong to
    Fertigblatt fertig_;
    std::unique_ptr<QPrinter> drucker_; // of the preview: nothing comes out of it
    std::unique_ptr<Druckschriften> schriften_;
    Formularfolger* folger_ = nullptr;

    QLabel* lblBlatt_ = nullptr;
    QComboBox* cmbBlatt_ = nullptr;
    QCheckBox *chkOhneTitel_ = nullptr, *chkMitAntworten_ = nullptr;
    QToolButton *cmdGanz_ = nullptr, *cmdBreite_ = nullptr, *cmdKleiner_ = nullptr, *cmdGroesser_ = nullptr;
    QPrintPreviewWidget* picBlatt_ = nullptr;
    QLabel* lblBlattHinweis_ = nullptr;
    QPushButton *cmdDrucken_ = nullptr, *cmdAlsPDF_ = nullptr, *cmdAbbruch_ = nullptr;
};
