// The check with the real fonts: it measures as the print does, and the shipped catalogue, which fits on both
// papers, gives no finding.
#include "checking/papierpruefung.h"

#include "checking/pruefschriften.h"
#include "core/pfad.h"
#include "printing/druckseite.h"
#include "tests/catalogue/katalogpruefung.h"
#include "tests/checking/pruefformular.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <algorithm>

namespace {

// The questions from that one on, as many as a board holds.
Quizformular Formular(std::size_t erste) {
    Quizformular form;
    for (std::size_t n = 1; n <= anzahlFelder && erste + n <= Katalogfragen().size(); ++n) {
        form.FrageText.at(n) = Katalogfragen()[erste + n - 1].frage;
        form.AntwortText.at(n) = Katalogfragen()[erste + n - 1].antwort;
    }
    return form;
}

} // namespace

TEST(Papierkatalog, TheCheckMeasuresAsThePrintDoes) {
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock"); // a system without a printer, whatever the machine has
    const QTemporaryDir ordner;
    const Druckseite seite(QPageLayout::Landscape, EigenerPfad(ordner.filePath(QStringLiteral("Blatt.pdf"))),
                           "Blatt");
    const Pruefschriften schriften;
    for (const Druckschrift& schrift :
         {Druckschrift{Schriftart::Arial, 8_pt, false}, Druckschrift{Schriftart::Arial, 5.6_pt, true},
          Druckschrift{Schriftart::Arial, 14_pt, true}, Druckschrift{Schriftart::ArialBlack, 20_pt, true}}) {
        EXPECT_NEAR(schriften.mass().Hoehe(schrift).zahl(), seite.schriftmass().Hoehe(schrift).zahl(), 0.01F);
        for (const char* text : {"i", "Wie heißt die Hauptstadt von Spanien?", "WWW Öl-Fässer 1234567890"}) {
            EXPECT_NEAR(schriften.mass().Breite(text, schrift).zahl(),
                        seite.schriftmass().Breite(text, schrift).zahl(), 0.05F)
                << text;
        }
    }
}

TEST(Papierkatalog, NoQuestionOfTheCatalogueSticksOut) {
    const Pruefschriften schriften;
    for (const char* papier : {"A4 quer", "A5 quer"}) {
        for (const float abstand : {0.0F, 2.5F}) {
            Spielwerte spiel = VollesBrett();
            spiel.Papierformat = papier;
            spiel.Zwischenabstand = abstand;
            for (std::size_t erste = 0; erste < Katalogfragen().size(); erste += anzahlFelder) {
                for (const Befund& befund : PapierPruefen(Formular(erste), spiel, schriften.mass())) {
                    ADD_FAILURE()
                        << papier << ' ' << abstand << ": " << befund.text << '\n'
                        << Fundort(Katalogfragen()[erste + static_cast<std::size_t>(befund.ort.nummer) - 1]);
                }
            }
        }
    }
}
