#include "filetools/kopiername.h"

#include "core/pfadname.h"

#include <algorithm>

namespace {

constexpr auto hoechstlaenge = 8;

// Characters, not bytes: bytes that go on with a character don't count.
auto Zeichenzahl(std::string_view text) {
    return std::count_if(text.begin(), text.end(),
                         [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

bool IstWurzel(std::string_view ordner) {
    return ordner.empty() || ordner == "\\" || (ordner.size() <= 3 && ordner.substr(1, 1) == ":");
}

std::string_view OhneEndstrich(std::string_view ordner) {
    return ordner.ends_with('\\') && !IstWurzel(ordner) ? ordner.substr(0, ordner.size() - 1) : ordner;
}

} // namespace

std::vector<Namensfehler> KopiernamePruefen(std::string_view name) {
    std::vector<Namensfehler> fehler;
    if (name.empty()) {
        fehler.push_back(Namensfehler::Leer);
    }
    if (name.find(' ') != std::string_view::npos) {
        fehler.push_back(Namensfehler::Leerzeichen);
    }
    if (name.find('.') != std::string_view::npos) {
        fehler.push_back(Namensfehler::Punkt);
    }
    if (Zeichenzahl(name) > hoechstlaenge) {
        fehler.push_back(Namensfehler::ZuLang);
    }
    if (name.find_first_of("\\/*") != std::string_view::npos) {
        fehler.push_back(Namensfehler::Zeichen);
    }
    return fehler;
}

bool OrdnernameBrauchbar(std::string_view name) {
    return NameBrauchbar(name) && name.find_first_of("\\/") == std::string_view::npos;
}

bool NichtsGewaehlt(std::string_view name) {
    return name.empty() || name.find('*') != std::string_view::npos;
}

std::string MusterAus(std::string_view filterzeile) {
    const auto auf = filterzeile.find('(');
    const auto zu = auf == std::string_view::npos ? auf : filterzeile.find(')', auf);
    return zu == std::string_view::npos ? std::string()
                                        : std::string(filterzeile.substr(auf + 1, zu - auf - 1));
}

std::string Oberordner(std::string_view ordner) {
    const std::string_view ohne = OhneEndstrich(ordner);
    const auto strich = ohne.rfind('\\');
    if (IstWurzel(ohne) || strich == std::string_view::npos) {
        return std::string(ordner);
    }
    // The root of a system without drive letters, and that of a drive, keep their backslash.
    const bool vorWurzel = strich == 0 || ohne.substr(0, strich).ends_with(':');
    return std::string(ohne.substr(0, vorWurzel ? strich + 1 : strich));
}

std::string Ordnername(std::string_view ordner) {
    return IstWurzel(ordner) ? std::string(ordner) : NurDateiname(OhneEndstrich(ordner));
}
