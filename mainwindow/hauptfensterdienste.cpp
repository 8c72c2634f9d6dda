#include "core/hauptfenster.h"

#include "core/bilder.h"
#include "core/laufzeitfehler.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "core/panel.h"
#include "core/programmstand.h"
#include "mainwindow/flaggen.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/hilfepanel.h"
#include "rules/spielwerte.h"

#include <QAbstractButton>
#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <array>
#include <utility>

namespace {

// What stands in the title bars of the child windows.
constexpr std::array kindzeichen{std::pair<const char*, std::string_view>{"frmFKFragen", "leiste/feldkranz"},
                                 std::pair<const char*, std::string_view>{"frmHBFragen", "leiste/test"},
                                 std::pair<const char*, std::string_view>{"frmEditor", "leiste/editor"},
                                 std::pair<const char*, std::string_view>{"frmBrowser", "leiste/regel"},
                                 std::pair<const char*, std::string_view>{"frmHomepage", "leiste/netz"},
                                 std::pair<const char*, std::string_view>{"frmSuche", "leiste/auswahl"},
                                 std::pair<const char*, std::string_view>{"frmPruefung", "datei/ok"}};

template <typename Steuerelement>
Steuerelement* Teil(const char* name) {
    frmMDI* fenster = MDIFenster();
    return fenster == nullptr ? nullptr : fenster->findChild<Steuerelement*>(QLatin1String(name));
}

// Exactly one of the three toolbars stands; the end of the program is offered beside the main one only.
void LeisteZeigen(const char* sichtbar) {
    frmMDI* fenster = MDIFenster();
    if (fenster == nullptr) {
        return;
    }
    for (const char* name : {"picKranz", "picFK", "picHB"}) {
        Teil<QWidget>(name)->setVisible(qstrcmp(name, sichtbar) == 0);
    }
    Teil<QWidget>("cmdEnde")->setVisible(qstrcmp(sichtbar, "picKranz") == 0);
    fenster->Anordnen();
}

void Freigeben(std::initializer_list<const char*> namen, bool frei) {
    for (const char* name : namen) {
        auto* taste = Teil<QAbstractButton>(name);
        if (taste != nullptr) {
            taste->setEnabled(frei);
        }
    }
}

// The entry that ends the program is there only while no form is open.
void EndeEintragZeigen(bool zeigen) {
    auto* eintrag = Teil<QAction>("mDatei(6)");
    if (eintrag != nullptr) {
        eintrag->setVisible(zeigen);
    }
}

} // namespace

void HilfeText(std::string_view text) {
    HilfeStandSetzen(std::string(text) + ' ');
}

void HilfeDatei(std::string_view text, const std::string& pfad) {
    auto* panel = Teil<Hilfepanel>("pnlHilfe");
    if (panel != nullptr) {
        panel->DateiZeigen(text, pfad);
    }
}

std::string HilfeStand() {
    const auto* panel = Teil<Panel>("pnlHilfe");
    return panel == nullptr ? std::string() : Modelltext(panel->caption());
}

void HilfeStandSetzen(std::string_view stand) {
    auto* panel = Teil<Panel>("pnlHilfe");
    if (panel != nullptr) {
        panel->setCaption(Anzeige(stand));
    }
}

void ModusFK() {
    Stand.FormTyp = Formart::Quiz;
    if (Spiel.AnzahlWissen == 0) {
        Spiel.AnzahlWissen = 6;
    }
    if (Spiel.FragenProWissen == 0) {
        Spiel.FragenProWissen = 5;
    }
    auto* felder = Teil<Panel>("pnlFKFelder");
    if (felder != nullptr) {
        felder->show();
    }
    FelderAnzeigen();
    LeisteZeigen("picFK");
}

void ModusTest() {
    auto* felder = Teil<Panel>("pnlFKFelder");
    if (felder != nullptr) {
        felder->hide();
    }
    Stand.FormTyp = Formart::Test;
    LeisteZeigen("picHB");
}

void ModusHaupt() {
    LeisteZeigen("picKranz");
    for (const char* name : {"picEingabeFlagGruen", "picEingabeFlagRot"}) {
        auto* flagge = Teil<QWidget>(name);
        if (flagge != nullptr) {
            flagge->hide(); // they belong to a form's toolbar
        }
    }
}

void FelderAnzeigen() {
    const int gesamt = Zaehler(static_cast<long long>(Spiel.FragenProWissen) * Spiel.AnzahlWissen);
    auto* felder = Teil<Panel>("pnlFKFelder");
    if (felder != nullptr) {
        felder->setCaption(Anzeige(Einsetzen(" {} Fragen : je {} Fragen aus {} Wissensgebieten",
                                             {std::to_string(gesamt), std::to_string(Spiel.FragenProWissen),
                                              std::to_string(Spiel.AnzahlWissen)})));
    }
}

bool ThemenschalterGedrueckt() {
    const auto* schalter = Teil<QAbstractButton>("grpFKHB");
    return schalter != nullptr && schalter->isChecked();
}

void BefehleFreigeben(Formart art, bool frei) {
    if (art == Formart::Test) {
        Freigeben({"cmdHBFLaden", "cmdHBFLoeschen", "cmdHBALaden", "cmdHBALoeschen", "cmdHBPLaden",
                   "cmdHBPLoeschen", "cmdHBSchliessen"},
                  frei);
    } else {
        Freigeben(
            {"cmdFKFLaden", "cmdFKFLoeschen", "cmdFKSLaden", "cmdFKSLoeschen", "cmdFKSchliessen", "cmdIni"},
            frei);
    }
    EndeEintragZeigen(!frei);
}

QMdiSubWindow* KindfensterAufnehmen(QWidget* fenster) {
    frmMDI* haupt = MDIFenster();
    if (haupt == nullptr) {
        return nullptr;
    }
    QMdiSubWindow* kind = haupt->Kindflaeche()->addSubWindow(
        fenster, Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    kind->setAttribute(Qt::WA_DeleteOnClose);
    for (const auto& [name, bild] : kindzeichen) {
        if (fenster->objectName() == QLatin1String(name)) {
            kind->setWindowIcon(Bildzeichen(bild));
        }
    }
    kind->adjustSize();
    return kind;
}

QWidget* AktivesKind() {
    frmMDI* fenster = MDIFenster();
    const QMdiSubWindow* kind = fenster == nullptr ? nullptr : fenster->Kindflaeche()->currentSubWindow();
    return kind == nullptr ? nullptr : kind->widget();
}

void KindNachVorn(const QWidget* inhalt) {
    frmMDI* haupt = MDIFenster();
    if (haupt == nullptr || inhalt == nullptr) {
        return;
    }
    for (QMdiSubWindow* kind : haupt->Kindflaeche()->subWindowList()) {
        if (kind->widget() == inhalt) {
            haupt->Kindflaeche()->setActiveSubWindow(kind);
        }
    }
}
