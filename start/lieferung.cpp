#include "start/lieferung.h"

#include "core/meldungstext.h"
#include "start/texte.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::size_t summenlaenge = 64; // SHA-256 in hexadecimal digits
constexpr std::string_view neuwort = "neu ";

[[nodiscard]] bool IstSumme(std::string_view wort) {
    return wort.size() == summenlaenge &&
           wort.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

[[nodiscard]] const std::string* Summe(const Lieferliste& liste, std::string_view pfad) {
    const auto fund = liste.find(pfad);
    return fund == liste.end() ? nullptr : &fund->second;
}

void Vormerken(std::vector<std::string>& ungemeldet, const std::string& pfad) {
    if (std::ranges::find(ungemeldet, pfad) == ungemeldet.end()) {
        ungemeldet.push_back(pfad);
    }
}

class Planer {
public:
    Planer(const Lieferstand& vorher, const Bestand& bestand) : vorher_(vorher), bestand_(bestand) {
        plan_.danach = vorher;
    }

    void Einplanen(const std::string& pfad, const std::string& soll) {
        const std::optional<std::string> ist = bestand_(pfad);
        const std::string* const alt = Summe(vorher_.geliefert, pfad);
        const bool fehlt = !ist && (alt == nullptr || !GehoertDerPerson(pfad));
        const bool veraltet =
            ist && !GehoertDerPerson(pfad) && *ist != soll && alt != nullptr && *ist == *alt;
        const bool bekannt = alt != nullptr && (*alt == soll || GehoertDerPerson(pfad));
        const bool eigenes = ist && !ist->empty() && GehoertDerPerson(pfad);
        if (fehlt || veraltet) {
            plan_.schritte.push_back({pfad, pfad, soll});
        } else if (bekannt || eigenes || *ist == soll) {
            plan_.danach.geliefert[pfad] = soll; // nothing new, or nothing of ours
        } else if (ist->empty()) {
            plan_.ungelesen.push_back(pfad);
        } else {
            DanebenLegen(pfad, soll);
        }
    }
    [[nodiscard]] Lieferplan Plan() && { return std::move(plan_); }

private:
    // What lies beside is replaced as long as the person has left it alone.
    void DanebenLegen(const std::string& pfad, const std::string& soll) {
        for (int nummer = 1;; ++nummer) {
            const std::string name = pfad + ".NEU" + (nummer == 1 ? "" : std::to_string(nummer));
            const std::optional<std::string> ist = bestand_(name);
            const std::string* const alt = Summe(vorher_.geliefert, name);
            if (!ist || (alt != nullptr && *ist == *alt && *ist != soll)) {
                plan_.schritte.push_back({pfad, name, soll});
                return;
            }
            if (*ist == soll) { // by a program that was ended before it could say so
                plan_.Getan({pfad, name, soll}, soll);
                return;
            }
            if (ist->empty()) {
                plan_.ungelesen.push_back(name);
                return;
            }
        }
    }

    const Lieferstand& vorher_;
    const Bestand& bestand_;
    Lieferplan plan_;
};

} // namespace

Lieferstand LieferstandLesen(std::string_view bytes) {
    Lieferstand stand;
    while (!bytes.empty()) {
        const std::string_view zeile = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), zeile.size() + 1));
        if (zeile.starts_with(neuwort) && zeile.size() > neuwort.size()) {
            Vormerken(stand.ungemeldet, std::string(zeile.substr(neuwort.size())));
        } else if (zeile.size() > summenlaenge + 1 && IstSumme(zeile.substr(0, summenlaenge)) &&
                   zeile[summenlaenge] == ' ') {
            stand.geliefert[std::string(zeile.substr(summenlaenge + 1))] = zeile.substr(0, summenlaenge);
        }
    }
    return stand;
}

std::string LieferstandBytes(const Lieferstand& stand) {
    std::string bytes;
    for (const auto& [pfad, summe] : stand.geliefert) {
        bytes.append(summe).append(" ").append(pfad).append("\n");
    }
    for (const std::string& pfad : stand.ungemeldet) {
        bytes.append(neuwort).append(pfad).append("\n");
    }
    return bytes;
}

bool GehoertDerPerson(std::string_view pfad) {
    constexpr std::array<std::string_view, 3> ordner{"CONFIG/", "KRANZ/", "TEST/"};
    return std::ranges::any_of(ordner, [pfad](std::string_view name) { return pfad.starts_with(name); });
}

void Lieferplan::Getan(const Lieferschritt& schritt, const std::string& summe) {
    danach.geliefert[schritt.quelle] = summe;
    if (schritt.daneben()) {
        danach.geliefert[schritt.ziel] = summe;
        Vormerken(danach.ungemeldet, schritt.quelle);
    }
}

Lieferplan LieferplanMachen(const Lieferliste& lieferung, const Lieferstand& vorher, const Bestand& bestand) {
    Planer planer(vorher, bestand);
    for (const auto& [pfad, soll] : lieferung) {
        planer.Einplanen(pfad, soll);
    }
    return std::move(planer).Plan();
}

bool Ausgeliefert(const Lieferliste& lieferung, const Lieferstand& stand) {
    return std::ranges::all_of(lieferung, [&stand](const auto& stueck) {
        const std::string* const summe = Summe(stand.geliefert, stueck.first);
        return summe != nullptr && *summe == stueck.second;
    });
}

std::string Danebentext(const std::vector<std::string>& pfade) {
    std::string namen;
    for (const std::string& pfad : pfade) {
        namen.append(namen.empty() ? "" : ", ").append(pfad);
    }
    std::ranges::replace(namen, '/', '\\');
    return Einsetzen(pfade.size() == 1 ? starttexte::danebenEine : starttexte::danebenMehrere,
                     {namen, std::to_string(pfade.size())});
}
