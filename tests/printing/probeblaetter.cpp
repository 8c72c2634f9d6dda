#include "tests/printing/probeblaetter.h"

#include "core/pfad.h"
#include "printing/druckseite.h"

#include <QString>

#include <array>
#include <cstddef>
#include <random>

namespace {

constexpr std::array arten{"J", "", "G", "R", "", "A", "E"};

FKDruckdaten Schattiert() {
    FKDruckdaten daten;
    daten.datum = "24. 12. 2008";
    daten.zeit = "90 Minuten";
    daten.nummer = "17";
    daten.titelGrau = daten.gebieteGrau = daten.spezialFarbig = daten.rahmenFarbig = true;
    for (std::size_t a = 1; a < daten.gebiete.size(); ++a) {
        daten.gebiete[a] = {"Gebiet" + std::to_string(a), true};
    }
    daten.punkte[Spezialart::Glueck] = 10;
    daten.punkte[Spezialart::Aktion] = 5;
    return daten;
}

// Words of 1 to 30 letters up to a length.
std::string Zufallstext(std::mt19937& los, std::size_t laenge) {
    constexpr std::string_view zeichen = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::string text;
    while (text.size() < laenge) {
        for (std::size_t i = los() % 5 == 0 ? 30 : 1 + los() % 9; i > 0; --i) {
            text += zeichen[los() % zeichen.size()];
        }
        text += los() % 20 == 0 ? "\r\n" : los() % 7 == 0 ? "äöüß " : " ";
    }
    return text;
}

Druckseite Seite(QPageLayout::Orientation ausrichtung, const std::string& datei) {
    const QString nativ = QString::fromStdString(datei);
    return {ausrichtung, EigenerPfad(nativ), nativ.section(QLatin1Char('/'), -1).toStdString()};
}

} // namespace

FKDruckdaten VollesQuizblatt() {
    FKDruckdaten daten = Schattiert();
    for (std::size_t n = 1; n < daten.felder.size(); ++n) {
        const std::string nr = std::to_string(n);
        daten.felder[n] = {
            "Frage" + nr +
                ": Welche Flüsse fließen südlich der Höhen von Öhringen zwischen Äckern, Gärten "
                "und Sümpfen über Geröll und Kies quer durch die größte Ebene ?",
            "Antwort" + nr + ": Jagst, Kocher, Ohrn und Brettach, später Neckar", arten.at(n % arten.size()),
            true, true};
    }
    return daten;
}

FKDruckdaten Ueberquellendes(unsigned nummer) {
    std::mt19937 los(nummer);
    FKDruckdaten daten = Schattiert();
    for (std::size_t a = 1; a < daten.gebiete.size(); ++a) {
        daten.gebiete[a].titel = Zufallstext(los, los() % 30);
    }
    for (FKDruckfeld& feld : daten.felder) {
        feld = {Zufallstext(los, los() % 300), Zufallstext(los, los() % 150), arten.at(los() % arten.size()),
                los() % 9 != 0, los() % 9 != 0};
    }
    return daten;
}

Testdruckdaten VollesTestblatt() {
    Testdruckdaten daten;
    daten.titel = " Lernzielkontrolle Häuptlingsfreizeit";
    daten.fach = " Knoten und Bünde";
    daten.gruppenwort = " Gruppe :";
    daten.gruppe = " III";
    daten.name = " Name :";
    daten.dateiname = "Knoten.FKR";
    daten.gesamtpunkte = 100;
    daten.mitAntworten = true;
    for (std::size_t n = 1; n < daten.zeilen.size(); ++n) {
        const std::string nr = std::to_string(n);
        daten.zeilen[n] = {"Frage" + nr +
                               ": Welchen Knoten nimmst du, um zwei gleich dicke Taue so miteinander zu "
                               "verbinden, daß sie auch unter Last nicht rutschen, sich danach aber wieder "
                               "lösen lassen, und wofür dürftest du ihn auf keinen Fall nehmen ?",
                           "Antwort" + nr + ": den Kreuzknoten; bei ungleich dicken Tauen den Weberknoten",
                           "10"};
    }
    return daten;
}

void QuizblattDrucken(const FKDruckdaten& daten, Papier papier, Millimeter abstand,
                      const std::string& datei) {
    Druckseite seite =
        Seite(papier == Papier::A4Quer ? QPageLayout::Landscape : QPageLayout::Portrait, datei);
    const Druckgeometrie g = GeometrieRechnen(papier, abstand, seite.masse().links, seite.masse().oben);
    seite.Drucken(FormularZeichnen(daten, g, seite.schriftmass()), {});
}

void TestblattDrucken(const Testdruckdaten& daten, const std::string& datei) {
    Druckseite seite = Seite(QPageLayout::Portrait, datei);
    const Testgeometrie g =
        TestGeometrieRechnen(AnzahlTestfragen(daten), seite.masse().links, seite.masse().oben);
    seite.Drucken(TestZeichnen(daten, g, seite.schriftmass()), {});
}
