// A delivered folder and a person's, for tests of how the one is made of the other.
#pragma once

#include "start/einrichtung.h"
#include "tests/core/probeordner.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <map>

class Lieferprobe {
public:
    using Inhalt = std::map<std::string, std::string>; // path below the folder, bytes

    // Replaces what is delivered, with its list.
    void Liefern(const Inhalt& inhalt) const {
        std::filesystem::remove_all(ordner.nativ("lieferung"));
        std::string liste;
        for (const auto& [pfad, bytes] : inhalt) {
            ordner.schreiben("lieferung/" + pfad, bytes);
            liste += QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256)
                         .toHex()
                         .toStdString() +
                     " " + pfad + "\n";
        }
        ordner.schreiben("lieferung/LIEFERUNG", liste);
    }
    // The person's folder doesn't exist before.
    [[nodiscard]] Einrichtung Beginnen() const {
        return Einrichtung(ordner.eigen("lieferung"), ordner.eigen("heim/daten/Feldkranz"));
    }
    // A whole start. The number of its error, 0 for none.
    int Einrichten() const {
        Einrichtung einrichtung = Beginnen();
        while (!einrichtung.fertig()) {
            einrichtung.Schritt();
        }
        return einrichtung.fehler() ? einrichtung.fehler()->grund.nummer() : 0;
    }
    // Every file in the person's folder but the mark and scraps.
    [[nodiscard]] Inhalt Da() const {
        Inhalt da;
        const std::filesystem::path wurzel = ordner.nativ("heim/daten/Feldkranz");
        std::error_code egal;
        for (const auto& eintrag : std::filesystem::recursive_directory_iterator(wurzel, egal)) {
            const std::string pfad = eintrag.path().lexically_relative(wurzel).string();
            // The start window takes away what killed programs left.
            const bool rest = eintrag.path().filename().string().starts_with(".feldkranz-");
            if (eintrag.is_regular_file() && pfad != ".ausgeliefert" && !rest) {
                da[pfad] = ordner.lesen("heim/daten/Feldkranz/" + pfad);
            }
        }
        return da;
    }
    void Schreiben(const std::string& pfad, const std::string& bytes) const {
        ordner.schreiben("heim/daten/Feldkranz/" + pfad, bytes);
    }
    [[nodiscard]] std::vector<std::string> Ungemeldet() const {
        return UngemeldetesHolen(ordner.eigen("heim/daten/Feldkranz"));
    }

    Probeordner ordner;
};

inline const Lieferprobe::Inhalt ersteFassung{{"CONFIG/Feldkranz.INI", "6"},
                                              {"KRANZ/Abend.FKR", "Abend"},
                                              {"WISSEN/LAND/W_1.TXT", "eins"},
                                              {"WISSEN/LAND/W_2.TXT", "zwei"}};
inline const Lieferprobe::Inhalt zweiteFassung{{"CONFIG/Feldkranz.INI", "7"},
                                               {"KRANZ/Abend.FKR", "Abend 2"},
                                               {"KRANZ/Lager.FKR", "Lager"},
                                               {"WISSEN/LAND/W_1.TXT", "eins 2"},
                                               {"WISSEN/LAND/W_2.TXT", "zwei 2"}};
