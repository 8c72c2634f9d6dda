// What the search costs: the whole catalogue read and made ready, each key of some searches in it and in a
// million questions, and the same search against the C library's over all bytes.
#include "search/suche.h"
#include "benchmarks/kennzahl.h"
#include "catalogue/katalogdatei.h"
#include "core/programmstand.h"
#include "search/formularblick.h"
#include "search/katalogblick.h"
#include "tests/hilfe/programmordner.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int laeufe = 21;
constexpr std::size_t million = 1'000'000;
constexpr std::array<std::string_view, 5> eingaben{"wasser feuer", "wie heißt", "elefant",
                                                   "er \"in der\" -bibel", "ä"};

bool Ja(float /*getan*/) {
    return true;
}

// Questions of the catalogue again and again, as the bytes of one file, until there are so many.
std::string Datei(const Fragenbestand& bestand, std::size_t anzahl) {
    std::string bytes = "WISSEN\r\n";
    for (std::size_t i = 0; i < anzahl; ++i) {
        const Katalogfrage frage = bestand.frage(i % bestand.anzahl());
        bytes += std::to_string(i) + "\r\n";
        for (const std::string_view text : {frage.frage, frage.antwort, frage.punkte}) {
            bytes.append(text).append("\r\n");
        }
    }
    return bytes;
}

Fragenliste Gelesen(const std::string& bytes) {
    Fragenliste fragen;
    FragenLesen(bytes, false, fragen);
    return fragen;
}

// The slowest key of all searches, each key the middle of several runs.
double Langsamste(const std::shared_ptr<const Fragenbestand>& bestand, int runden) {
    double langsamste = 0;
    for (const std::string_view eingabe : eingaben) {
        std::vector<std::vector<double>> zeiten(eingabe.size());
        for (int i = 0; i < runden; ++i) {
            Suchlauf lauf;
            for (std::size_t tasten = 1; tasten <= eingabe.size(); ++tasten) {
                zeiten[tasten - 1].push_back(Dauer([&] {
                    const Suchanfrage anfrage = AnfrageAus(eingabe.substr(0, tasten));
                    benchmark::DoNotOptimize(lauf.Suchen(bestand, anfrage).size());
                }));
            }
        }
        for (std::size_t i = 0; i < eingabe.size(); ++i) {
            if (Median(zeiten[i]) > langsamste) {
                langsamste = Median(zeiten[i]);
                std::cout << '"' << eingabe.substr(0, i + 1) << "\": " << langsamste << " ms\n";
            }
        }
    }
    return langsamste;
}

// How often it occurs, by the C library.
std::size_t Zaehlen(const std::string& bytes, std::string_view wort) {
    std::size_t anzahl = 0;
    const char* ab = bytes.data();
    const char* ende = ab + bytes.size();
    while (const void* fund = memmem(ab, static_cast<std::size_t>(ende - ab), wort.data(), wort.size())) {
        ab = static_cast<const char*>(fund) + 1;
        ++anzahl;
    }
    return anzahl;
}

std::size_t Bytes(const Bestandsdatei& datei) {
    return datei.text.text.capacity() + datei.text.trenner.capacity() * sizeof(std::uint64_t) +
           datei.enden.capacity() * sizeof(Bestandsdatei::Enden) +
           datei.ausgelassen.capacity() * sizeof(std::uint32_t) +
           datei.abdruecke.capacity() * sizeof(std::uint64_t);
}

void KatalogMessen(const std::vector<QString>& ordner) {
    std::vector<double> zeiten;
    for (int i = 0; i < laeufe; ++i) {
        Katalogblick blick;
        zeiten.push_back(Dauer([&] { (void)blick.Nachsehen(ordner, Ja); }));
    }
    Einzelwert("suche_bereit", Median(zeiten), "ms");
    Katalogblick blick;
    (void)blick.Nachsehen(ordner, Ja);
    Einzelwert("suche_taste", Langsamste(blick.bestand(), laeufe), "ms");
}

void MillionMessen(const Fragenbestand& bestand) {
    const std::string bytes = Datei(bestand, million);
    const Paar zeiten = Abwechselnd(
        3,
        [&] {
            Fragenliste fragen = Gelesen(bytes);
            return Dauer([&] { (void)BestandsdateiAus("Natur", "Luft", std::move(fragen)); });
        },
        [&] { return Dauer([&] { (void)Gelesen(bytes); }); });
    Verhaeltnis("suche_aufbau", zeiten.unser, zeiten.schlicht, "ms");

    const auto datei = BestandsdateiAus("Natur", "Luft", Gelesen(bytes));
    const auto viele = std::make_shared<const Fragenbestand>(std::vector{datei});
    Einzelwert("suche_million", Langsamste(viele, 5), "ms");
    const auto texte = static_cast<double>(datei->fragen.bytes());
    const auto alles =
        static_cast<double>(datei->fragen.belegt() + Bytes(*datei) + 3 * million * sizeof(std::uint64_t));
    constexpr double mib = 1024.0 * 1024.0;
    Verhaeltnis("suche_speicher", alles / mib, texte / mib, "MiB");

    const Suchanfrage anfrage = AnfrageAus("elefant");
    const Paar suche = Abwechselnd(
        11,
        [&] { return Dauer([&] { benchmark::DoNotOptimize(Suchlauf().Suchen(viele, anfrage).size()); }); },
        [&] { return Dauer([&] { benchmark::DoNotOptimize(Zaehlen(bytes, "Elefant")); }); });
    Verhaeltnis("suche_memmem", suche.unser, suche.schlicht, "ms");
}

// As many forms as a group leaves behind in many years: read at once, and looked at again.
void FormulareMessen(const Programmordner& programmordner) {
    constexpr int anzahl = 2000;
    const QByteArray form = programmordner.lesen(QStringLiteral("KRANZ/Naturabend.FKR"));
    for (int i = 0; i < anzahl; ++i) {
        programmordner.schreiben(QStringLiteral("KRANZ/FORM%1.FKR").arg(i), form);
    }
    const std::array orte{FormularortVon(Stand.AppPfad + "\\KRANZ"),
                          FormularortVon(Stand.AppPfad + "\\TEST")};
    const auto blicken = [&orte](Formularblick& blick) {
        return Dauer([&] { (void)blick.Nachsehen(orte, [] { return true; }); });
    };
    std::vector<double> zeiten;
    for (int i = 0; i < 5; ++i) {
        Formularblick blick;
        zeiten.push_back(blicken(blick));
        if (blick.benutzung()->formulare().size() < anzahl) {
            std::cerr << "Not all forms\n";
            std::exit(EXIT_FAILURE);
        }
    }
    Einzelwert("formulare_blick", Median(zeiten), "ms");
}

} // namespace

int main() {
    const Programmordner programmordner;
    const std::vector<QString> ordner = Katalogordner(Stand.AppPfad);
    Katalogblick blick;
    (void)blick.Nachsehen(ordner, Ja);
    if (blick.bestand()->anzahl() == 0) {
        std::cerr << "No catalogue\n";
        return EXIT_FAILURE;
    }
    std::cout << blick.bestand()->anzahl() << " questions\n";
    FormulareMessen(programmordner);
    KatalogMessen(ordner);
    MillionMessen(*blick.bestand());
    return EXIT_SUCCESS;
}
