#include "checking/befund.h"

#include "checking/texte.h"
#include "quizform/quizformular.h"
#include "testform/testformular.h"

#include <tuple>

namespace {

// What of the head has a control of its own.
struct Kopfteil {
    std::string_view name;
    std::string_view element;
};

Kopfteil KopfteilVon(Teil teil) {
    switch (teil) {
    case Teil::Nr:
        return {pruefungtexte::nr, "txtNr"};
    case Teil::Datum:
        return {pruefungtexte::datum, "txtDatum"};
    case Teil::Zeit:
        return {pruefungtexte::zeit, "txtZeit"};
    case Teil::Titel:
        return {pruefungtexte::titel, "cmdTitel"};
    case Teil::Fach:
        return {pruefungtexte::fach, "cmdFach"};
    case Teil::Gruppe:
        return {pruefungtexte::gruppe, "cmdGruppe"};
    default:
        return {};
    }
}

// What has a number: the word for it, and the control array.
Kopfteil FeldteilVon(Teil teil) {
    switch (teil) {
    case Teil::Antwort:
        return {pruefungtexte::antwort, "txtAntwort"};
    case Teil::Spezialfeld:
        return {pruefungtexte::feld, "pnlSpezial"};
    case Teil::Punkte:
        return {pruefungtexte::punkte, "spnPunkte"};
    case Teil::Gebiet:
        return {pruefungtexte::gebiet, "pnlWissen"};
    default:
        return {pruefungtexte::frage, "txtFrage"};
    }
}

bool ImKopf(Teil teil) {
    return teil < Teil::Gebiet;
}

} // namespace

std::string_view Schwerewort(Schwere schwere) {
    return schwere == Schwere::Fehler ? pruefungtexte::fehler : pruefungtexte::hinweis;
}

std::string Ortsname(const Befundort& ort) {
    if (ImKopf(ort.teil)) {
        return std::string(KopfteilVon(ort.teil).name);
    }
    const std::string_view wort = FeldteilVon(ort.teil).name;
    if (ort.art == Formart::Test || ort.teil == Teil::Gebiet) {
        return Zeilenname(ort.nummer, wort);
    }
    return Zellenname(ort.nummer, wort);
}

std::string Ortselement(const Befundort& ort) {
    if (ImKopf(ort.teil)) {
        return std::string(KopfteilVon(ort.teil).element);
    }
    return std::string(FeldteilVon(ort.teil).element) + '(' + std::to_string(ort.nummer) + ')';
}

bool StehtDavor(const Befundort& a, const Befundort& b) {
    // Head and titles by their kind; of the cells each with all that it has.
    const auto stelle = [](const Befundort& ort) {
        const bool feld = ort.teil > Teil::Gebiet;
        return std::tuple(feld, feld ? Teil::Frage : ort.teil, ort.nummer, ort.teil);
    };
    return stelle(a) < stelle(b);
}

bool Derselbe(const Befund& a, const Befund& b) {
    return a.anlass == b.anlass && a.ort == b.ort;
}
