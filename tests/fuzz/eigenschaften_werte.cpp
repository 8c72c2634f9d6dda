// The properties of single values, of broken lines and of the two sheets.
#include "tests/fuzz/eigenschaften.h"

#include "core/cp1252.h"
#include "core/wertgrammatik.h"
#include "printing/druckdaten.h"
#include "printing/testseite.h"
#include "printing/zeilenumbruch.h"
#include "tests/fuzz/zeichnungspruefung.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace fuzz {

namespace {

std::string_view OhneRand(std::string_view zeile) {
    const std::size_t beginn = zeile.find_first_not_of(' ');
    return beginn == std::string_view::npos ? std::string_view()
                                            : zeile.substr(beginn, zeile.find_last_not_of(' ') + 1 - beginn);
}

void EinWertLesen(WertLeser& leser, int art) {
    try {
        switch (art) {
        case 0:
            leser.Token();
            break;
        case 1:
            static_cast<void>(leser.Text());
            break;
        case 2:
            leser.Ganzzahl();
            break;
        case 3:
            leser.Einfach();
            break;
        case 4:
            static_cast<void>(leser.Variant());
            break;
        default:
            leser.Zeile();
        }
    } catch (const Laufzeitfehler& fehler) {
        Verlange(fehler.nummer() == 62 || fehler.nummer() == 6 || fehler.nummer() == 7,
                 "a value fails in one of three ways");
    }
}

void Lesen(Eingabe eingabe) {
    const int anfang = eingabe.Wahl(6);
    WertLeser leser(eingabe.rest);
    int zeile = 1;
    std::size_t werte = 0;
    while (!leser.AmEnde()) {
        EinWertLesen(leser, (anfang + static_cast<int>(werte)) % 6);
        Verlange(++werte <= eingabe.rest.size(), "every value takes bytes");
        if (werte % 8 == 0) {
            Verlange(leser.ZeileNr() >= zeile, "lines count upwards");
            zeile = leser.ZeileNr();
        }
    }
}

void Schreiben(Eingabe eingabe) {
    std::string text = AusCp1252(eingabe.Stueck());
    std::erase(text, '"');
    std::uint16_t zahl = 0;
    std::uint32_t bruch = 0;
    for (const char byte : eingabe.rest.substr(0, 4)) {
        zahl = static_cast<std::uint16_t>(zahl << 8U | static_cast<unsigned char>(byte));
        bruch = bruch << 8U | static_cast<unsigned char>(byte);
    }
    const float einfach = std::bit_cast<float>(bruch);
    WertSchreiber schreiber;
    schreiber.Text(text);
    schreiber.Ganzzahl(static_cast<std::int16_t>(zahl));
    schreiber.Einfach(einfach);
    WertLeser leser(schreiber.bytes());
    Verlange(leser.Text() == text, "a text comes back");
    Verlange(leser.Ganzzahl() == static_cast<std::int16_t>(zahl), "an integer comes back");
    if (std::isfinite(einfach)) {
        Verlange(leser.Einfach() == einfach, "a single comes back");
    }
}

FKDruckdaten Quizblatt(Eingabe& eingabe) {
    const Zufallsform form = FormAus(eingabe);
    return DruckdatenAus(form.quiz, form.spiel, eingabe.Wahl(2) == 1);
}

void QuizblattPruefen(Eingabe eingabe) {
    const Papier papier = eingabe.Wahl(2) == 0 ? Papier::A4Quer : Papier::A5Quer;
    const auto abstand = Millimeter(0.5F * static_cast<float>(eingabe.Wahl(6)));
    const FKDruckdaten daten = Quizblatt(eingabe);
    LinienPruefen(FormularZeichnen(daten, GeometrieRechnen(papier, abstand, 4_mm, 4_mm), Gleichbreit()));
}

void TestblattPruefen(Eingabe eingabe) {
    Testdruckdaten daten;
    daten.mitAntworten = eingabe.Wahl(2) == 1;
    daten.titel = AusCp1252(eingabe.Stueck());
    for (std::size_t i = 1; i < daten.zeilen.size() && !eingabe.rest.empty(); ++i) {
        daten.zeilen[i] = {AusCp1252(eingabe.Stueck()), AusCp1252(eingabe.Stueck()),
                           AusCp1252(eingabe.Stueck())};
    }
    LinienPruefen(
        TestZeichnen(daten, TestGeometrieRechnen(AnzahlTestfragen(daten), 4_mm, 4_mm), Gleichbreit()));
}

} // namespace

void Wertgrammatik(std::string_view bytes) {
    Lesen({bytes});
    Schreiben({bytes});
}

void Umbruch(std::string_view bytes) {
    Eingabe eingabe{bytes};
    const auto breite = Millimeter(static_cast<float>(eingabe.Wahl(60)));
    const std::string_view text = eingabe.rest;
    const auto messen = [](std::string_view teil) { return Millimeter(static_cast<float>(teil.size())); };
    for (const Wortmass wortmass : {Wortmass::AmLeerzeichen, Wortmass::JedesWort}) {
        const auto zeilen = Umbrechen(text, breite, messen, wortmass);
        std::string alles;
        for (const std::string_view zeile : zeilen) {
            alles += zeile;
            const std::string_view worte = OhneRand(zeile); // blanks at either end are no words
            const bool einWort = worte.find(' ') == std::string_view::npos;
            Verlange(wortmass == Wortmass::AmLeerzeichen || einWort || messen(worte) <= breite,
                     "only a single word stands out");
        }
        Verlange(!zeilen.empty(), "a text has a line");
        Verlange(OhneLeeres(alles) == OhneLeeres(text), "no letter is lost");
    }
}

void Seite(std::string_view bytes) {
    QuizblattPruefen({bytes});
    TestblattPruefen({bytes});
}

} // namespace fuzz
