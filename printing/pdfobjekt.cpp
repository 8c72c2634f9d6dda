#include "printing/pdfobjekt.h"

#include <algorithm>
#include <utility>

namespace {

using Art = PdfMarke::Art;

} // namespace

std::optional<std::string_view> PdfObjekt::wert(std::string_view name) const {
    const auto stelle = std::ranges::find(eintraege, name, &PdfEintrag::name);
    return stelle == eintraege.end() ? std::nullopt : std::optional(stelle->wert);
}

void PdfVerlange(bool wahr) {
    if (!wahr) {
        throw PdfUnverstanden();
    }
}

int PdfGanzzahl(PdfMarken& marken) {
    const PdfMarke marke = marken.Naechste();
    PdfVerlange(marke.art == Art::Ganzzahl);
    return marke.zahl;
}

PdfObjektleser::PdfObjektleser(std::string_view bytes, int anzahl, PdfObjekt& objekt)
    : bytes_(bytes.substr(0, objekt.ende)),
      anzahl_(anzahl),
      objekt_(objekt),
      marken_(bytes_, objekt.anfang) {}

void PdfObjektleser::Anfang(int nummer) {
    const PdfMarke erste = marken_.Naechste();
    PdfVerlange(erste.anfang == objekt_.anfang && erste.art == Art::Ganzzahl && erste.zahl == nummer);
    objekt_.stellen.push_back({erste.anfang, erste.text.size(), nummer});
    PdfVerlange(PdfGanzzahl(marken_) == 0 && marken_.Naechste().ist("obj"));
}

PdfMarke PdfObjektleser::Inhalt() {
    while (true) {
        const PdfMarke marke = marken_.Naechste();
        if (marke.art == Art::Ende || marke.ist("endobj") || marke.ist("stream")) {
            PdfVerlange(klammern_.empty());
            return marke;
        }
        PdfVerlange(marke.art != Art::Fremd && !marke.ist("obj") && !marke.ist("endstream"));
        Aufnehmen(marke);
        vorletzte_ = std::exchange(letzte_, marke);
    }
}

void PdfObjektleser::Aufnehmen(const PdfMarke& marke) {
    PdfVerlange(objekt_.listenende == 0); // nothing stands behind the list
    const bool obenauf = klammern_ == "<";
    if (marke.art == Art::Zu) {
        Schliessen(marke);
    } else if (marke.art == Art::Name && obenauf && !WertErwartet()) {
        objekt_.eintraege.push_back({marke.text, {}});
    } else {
        KennungMerken(marke, obenauf);
        WertVerlaengern(marke);
    }
    if (marke.art == Art::Auf) {
        klammern_ += marke.text.front();
    } else if (marke.ist("R")) {
        VerweisMerken();
    }
}

// True behind an entry's name, where its value has yet to come.
bool PdfObjektleser::WertErwartet() const {
    return !objekt_.eintraege.empty() && objekt_.eintraege.back().wert.empty();
}

void PdfObjektleser::WertVerlaengern(const PdfMarke& marke) {
    if (klammern_.empty() || objekt_.eintraege.empty()) {
        return;
    }
    std::string_view& wert = objekt_.eintraege.back().wert;
    const std::size_t anfang =
        wert.empty() ? marke.anfang : static_cast<std::size_t>(wert.data() - bytes_.data());
    wert = bytes_.substr(anfang, marke.ende() - anfang);
}

void PdfObjektleser::Schliessen(const PdfMarke& marke) {
    PdfVerlange(!klammern_.empty() && klammern_.back() == (marke.text == ">>" ? '<' : '['));
    klammern_.pop_back();
    if (!klammern_.empty()) {
        WertVerlaengern(marke);
    } else if (marke.text == ">>") {
        PdfVerlange(!WertErwartet());
        objekt_.listenende = marke.anfang;
    }
}

void PdfObjektleser::VerweisMerken() {
    PdfVerlange(vorletzte_.art == Art::Ganzzahl && letzte_.art == Art::Ganzzahl && letzte_.zahl == 0);
    PdfVerlange(vorletzte_.zahl > 0 && vorletzte_.zahl < anzahl_);
    objekt_.stellen.push_back({vorletzte_.anfang, vorletzte_.text.size(), vorletzte_.zahl});
}

// "/QNAAAA+LiberationSans" as the name of a font.
void PdfObjektleser::KennungMerken(const PdfMarke& marke, bool obenauf) {
    constexpr std::size_t laenge = 6;
    constexpr std::string_view grossbuchstaben = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    if (!obenauf || marke.art != Art::Name || !WertErwartet()) {
        return;
    }
    const std::string_view name = objekt_.eintraege.back().name;
    if ((name == "/FontName" || name == "/BaseFont") &&
        marke.text.find_first_not_of(grossbuchstaben, 1) == laenge + 1 && marke.text[laenge + 1] == '+') {
        objekt_.stellen.push_back({marke.anfang + 1, laenge, 0});
    }
}
