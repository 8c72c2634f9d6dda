// How the time of every reader grows with its input: a file of 8 MB against one of 0.8 MB, each the
// repetition of a delivered file or the worst that one can think of. Prints the ratios; more than ten times
// the time for ten times the bytes, with a fifth for what a machine does besides, ends with 1.
#include "catalogue/katalogdatei.h"
#include "core/cp1252.h"
#include "core/laufzeitfehler.h"
#include "editor/katalogtext.h"
#include "persistence/einstellungsdatei.h"
#include "persistence/formulardatei.h"
#include "printing/zeilenumbruch.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace {

using Leser = std::function<void(std::string_view bytes)>;

struct Fall {
    const char* name;
    std::string kopf, wiederholt;
    Leser lesen;
};

std::string Bytes(const Fall& fall, std::size_t laenge) {
    std::string bytes = fall.kopf;
    while (bytes.size() < laenge) {
        bytes += fall.wiederholt;
    }
    bytes.resize(laenge);
    return bytes;
}

// The shortest of several runs, in seconds.
double Dauer(const Fall& fall, const std::string& bytes) {
    double kuerzeste = 1e9;
    for (int lauf = 0; lauf < 7; ++lauf) {
        const auto anfang = std::chrono::steady_clock::now();
        try {
            fall.lesen(bytes);
        } catch (const Laufzeitfehler&) { // NOLINT(bugprone-empty-catch): it ends as it may
        }
        const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - anfang;
        kuerzeste = std::min(kuerzeste, dauer.count());
    }
    return kuerzeste;
}

void FormularLesen(std::string_view bytes) {
    Formularwerte werte;
    static_cast<void>(FormularAusBytes(bytes, Formart::Keine, werte, [](const Laufzeitfehler&) {}));
}

void EinstellungenLesen(std::string_view bytes) {
    Spielwerte spiel;
    EinstellungenAusBytes(bytes, spiel);
}

void Fragen(std::string_view bytes) {
    Fragenliste liste;
    FragenLesen(bytes, true, liste);
}

void Namen(std::string_view bytes) {
    Namensliste liste;
    ThemenlisteLesen(bytes, liste);
    UnterthemenlisteLesen(bytes, liste);
}

void Werte(std::string_view bytes) {
    WertLeser leser(bytes);
    for (int werte = 0; !leser.AmEnde(); ++werte) {
        leser.Token();
        if (werte % 100 == 0) {
            static_cast<void>(leser.ZeileNr());
        }
    }
}

void Brechen(std::string_view bytes) {
    const auto messen = [](std::string_view teil) { return Millimeter(static_cast<float>(teil.size())); };
    static_cast<void>(Umbrechen(bytes, Millimeter(40), messen));
    static_cast<void>(Umbrechen(bytes, Millimeter(40), messen, Wortmass::JedesWort));
}

std::vector<Fall> Faelle() {
    const std::string kopf = "\"Feldkranz\"\r\n\"FK\"\r\n";
    return {{"form, sections without end", kopf, "\"[FRAGEN]\"\r\n\"Titel\"\r\n\"Frage\"\r\n", FormularLesen},
            {"form, bad numbers", kopf, "[FKPUNKTE]\r\n99999\r\n1e400\r\n", FormularLesen},
            {"form, one text", kopf + "\"[FRAGEN]\"\r\n\"", "x", FormularLesen},
            {"form, line ends", kopf, "\r\n", FormularLesen},
            {"settings", "", "[STANDARD]\r\n1\r\n2\r\n[HILFE]\r\n\"a\"\r\n", EinstellungenLesen},
            {"questions", "Kopf\r\n", "1\r\nWer weiß es?\r\nIch\r\n5\r\n", Fragen},
            {"questions, comments", "Kopf\r\n", "'nur ein Kommentar\r\n", Fragen},
            {"questions, one line", "Kopf\r\n", "x", Fragen},
            {"lists", "Kopf\r\n", "\"Name, \"\r\n", Namen},
            {"editor's text", "Kopf\r\n", "Eine Zeile\n\r\n",
             [](std::string_view b) { static_cast<void>(KatalogtextLesen(b)); }},
            {"values", "", "\"a\"x,1\r\n", Werte},
            {"values, quotes", "", "\"", Werte},
            {"code page", "", "\x80\x81 abc",
             [](std::string_view b) { static_cast<void>(NachCp1252(AusCp1252(b))); }},
            {"lines broken", "", "Wort und ", Brechen},
            {"lines broken, blanks", "", " ", Brechen},
            {"lines broken, one word", "", "x", Brechen}};
}

} // namespace

int main() {
    constexpr std::size_t klein = 800'000;
    constexpr double hoechstens = 10.0 * 1.2;
    bool gut = true;
    for (const Fall& fall : Faelle()) {
        const double kurz = Dauer(fall, Bytes(fall, klein));
        const double lang = Dauer(fall, Bytes(fall, 10 * klein));
        // Below a tenth of a millisecond the clock says nothing.
        const bool haelt = lang < 1e-4 || lang <= hoechstens * kurz;
        std::printf("%-28s %9.3f ms %9.3f ms  x %.1f%s\n", fall.name, 1e3 * kurz, 1e3 * lang,
                    kurz > 0 ? lang / kurz : 0.0, haelt ? "" : "  too long");
        gut = gut && haelt;
    }
    return gut ? 0 : 1;
}
