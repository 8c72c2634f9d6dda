#include "sheets/blattausgabe.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "forms/formulare.h"
#include "forms/verlauf.h"
#include "printing/blattplatz.h"
#include "printing/druckauftrag.h"
#include "printing/druckseite.h"
#include "printing/testdrucken.h"
#include "sheets/texte.h"
#include "testform/hbformular.h"

#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace {

std::string_view Zusatz(Blattart blatt) {
    return blatt == Blattart::Bogen ? std::string_view() : Blattname(blatt);
}

// Where the sheet goes as a PDF beside the form, by the name that the user gave for the form's own in the
// printer dialog, if any.
std::string Zielpfad(Formart art, Blattart blatt) {
    const std::string pfad = Blattplatz(art, Formulardatei(art), Zusatz(blatt));
    return blatt == Blattart::Bogen ? PdfZiel(pfad) : pfad;
}

Druckziel Ziel(const Blattvorlage& vorlage, const Blattwunsch& wunsch, std::string pfad) {
    const Formart art = FormartVon(vorlage);
    return {BlattQuer(vorlage, wunsch.blatt) ? QPageLayout::Landscape : QPageLayout::Portrait,
            std::move(pfad),
            Blatttitel(art, Formulardatei(art), Zusatz(wunsch.blatt)),
            Wenden::Nicht,
            false,
            false};
}

Blattsatz Machen(const Blattvorlage& vorlage, const Blattwunsch& wunsch, const Druckseite& seite) {
    return BlattMachen(vorlage, wunsch, {seite.masse().links, seite.masse().oben}, seite.schriftmass());
}

std::string Ausgeben(const Blattvorlage& vorlage, const Blattwunsch& wunsch, Druckziel ziel) {
    switch (wunsch.blatt) {
    case Blattart::Karten8:
        ziel.wenden = Wenden::LangeKante;
        break;
    case Blattart::Karten16:
        ziel.wenden = Wenden::KurzeKante;
        break;
    default:
        break;
    }
    Druckseite seite(ziel);
    const Blattsatz blatt = Machen(vorlage, wunsch, seite);
    FortschrittSchritt(4);
    return seite.SeitenDrucken(blatt.seiten, [] { FortschrittSchritt(1); });
}

// Path in the program's notation, "" when the user changed his mind.
std::string PdfNameErfragen(const std::string& vorschlag, QWidget* eltern) {
    QFileDialog dialog(eltern, Anzeige(blatttexte::pdfTitel));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(Anzeige(blatttexte::pdfFilter));
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const QFileInfo ziel(NativerPfad(vorschlag));
    dialog.setDirectory(ziel.path());
    dialog.selectFile(ziel.fileName());
    while (ModalZeigen(dialog) == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString datei = dialog.selectedFiles().constFirst();
        if (datei.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
            return EigenerPfad(datei);
        }
        dialog.selectFile(datei + QStringLiteral(".pdf")); // a form's file never becomes a sheet
    }
    return {};
}

} // namespace

Formart FormartVon(const Blattvorlage& vorlage) {
    return std::holds_alternative<Quizvorlage>(vorlage) ? Formart::Quiz : Formart::Test;
}

std::optional<Blattvorlage> VorlageJetzt() {
    if (OffenesFormular() == nullptr) {
        return std::nullopt;
    }
    Formularstand stand = FormularstandJetzt();
    if (auto* quiz = std::get_if<Quizstand>(&stand.form); quiz != nullptr) {
        return Quizvorlage{std::move(quiz->gezeigt), std::move(stand.spiel)};
    }
    return Testvorlage{
        std::move(std::get<Teststand>(stand.form).gezeigt),
        TestdruckdatenAus(HB_Bildschirm(), HBForm.HBGesamtpunkte, Formulardatei(Formart::Test))};
}

Fertigblatt BlattFertigen(const Blattvorlage& vorlage, const Blattwunsch& wunsch) {
    Druckziel ziel = Ziel(vorlage, wunsch, {});
    ziel.nurMessen = true; // at each key that is typed
    const Druckseite seite(ziel);
    const Seitenmasse& m = seite.masse();
    Fertigblatt fertig{Machen(vorlage, wunsch, seite), m};
    RandPruefen(fertig.blatt, {0_mm, 0_mm, m.breite - m.links - m.rechts, m.hoehe - m.oben - m.unten},
                seite.schriftmass());
    return fertig;
}

void BlattDrucken(const Blattvorlage& vorlage, const Blattwunsch& wunsch) {
    bool aufPapier = false;
    AuftragAusfuehren([&] {
        std::string pdf =
            Ausgeben(vorlage, wunsch, Ziel(vorlage, wunsch, Zielpfad(FormartVon(vorlage), wunsch.blatt)));
        aufPapier = pdf.empty();
        return pdf;
    });
    if (aufPapier) {
        HilfeText(Einsetzen(blatttexte::gedruckt, {Blattname(wunsch.blatt)}));
    }
}

void BlattAlsPdf(const Blattvorlage& vorlage, const Blattwunsch& wunsch, QWidget* eltern) {
    const std::string pfad = PdfNameErfragen(
        Blattplatz(FormartVon(vorlage), Formulardatei(FormartVon(vorlage)), Zusatz(wunsch.blatt)), eltern);
    if (pfad.empty()) {
        return;
    }
    AuftragAusfuehren([&] {
        Druckziel ziel = Ziel(vorlage, wunsch, pfad);
        ziel.alsPdf = true;
        return Ausgeben(vorlage, wunsch, std::move(ziel));
    });
}
