// A catalogue made up for the tests of filling: questions that share no word, unless a test wants them to.
#pragma once

#include "filling/fragenvorrat.h"

#include <memory>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Four words of their own for each number.
inline std::string Kunstfrage(unsigned nr) {
    constexpr int worte = 4;
    constexpr int buchstaben = 7;
    std::mt19937 quelle(nr);
    std::string text;
    for (int w = 0; w < worte; ++w) {
        text += text.empty() ? "" : " ";
        for (int b = 0; b < buchstaben; ++b) {
            text += static_cast<char>('a' + quelle() % 26);
        }
    }
    return text + " ?";
}

class Kunstkatalog {
public:
    // One question more in a file; frage "" makes one up.
    Kunstkatalog& frage(const std::string& thema, const std::string& unterthema, int punkte,
                        std::string frage = {}) {
        if (frage.empty()) {
            frage = Kunstfrage(++zaehler_);
        }
        if (dateien_.empty() || dateien_.back().thema != thema || dateien_.back().unterthema != unterthema) {
            dateien_.push_back({thema, unterthema, {}});
        }
        const std::string nr = std::to_string(dateien_.back().fragen.anzahl() + 1);
        const std::string wert = std::to_string(punkte);
        dateien_.back().fragen.Anhaengen({nr, frage, "Antwort auf " + frage, wert});
        return *this;
    }
    // So many questions of each number of points from 1 to 5.
    Kunstkatalog& fragen(const std::string& thema, const std::string& unterthema, int jePunktzahl) {
        for (int punkte = 1; punkte <= 5; ++punkte) {
            for (int i = 0; i < jePunktzahl; ++i) {
                frage(thema, unterthema, punkte);
            }
        }
        return *this;
    }

    [[nodiscard]] std::shared_ptr<const Fragenvorrat> vorrat(const std::set<std::string>& benutzt = {}) {
        std::vector<Fragenbestand::Datei> dateien;
        for (const Datei& datei : dateien_) {
            dateien.push_back(BestandsdateiAus(datei.thema, datei.unterthema, datei.fragen));
        }
        return std::make_shared<const Fragenvorrat>(
            std::make_shared<const Fragenbestand>(std::move(dateien)),
            [&benutzt](std::string_view text) { return benutzt.contains(std::string(text)); });
    }

private:
    struct Datei {
        std::string thema, unterthema;
        Fragenliste fragen;
    };
    std::vector<Datei> dateien_;
    unsigned zaehler_ = 0;
};
