#include "start/aufruf.h"

#include "core/konfiguration.h"
#include "core/meldungstext.h"
#include "start/texte.h"

namespace {

[[nodiscard]] Aufrufart ArtVon(std::string_view argument) {
    if (argument == "--help") {
        return Aufrufart::Hilfe;
    }
    if (argument == "--version") {
        return Aufrufart::Version;
    }
    // A file of such a name is reached by its whole path, as every file manager gives it.
    return argument.empty() || argument.starts_with('-') ? Aufrufart::Falsch : Aufrufart::Programm;
}

} // namespace

Programmaufruf AufrufLesen(std::span<const std::string> argumente) {
    if (argumente.empty()) {
        return {};
    }
    if (argumente.size() > 1) {
        return {Aufrufart::Falsch};
    }
    const Aufrufart art = ArtVon(argumente.front());
    return art == Aufrufart::Programm ? Programmaufruf{art, 0} : Programmaufruf{art};
}

std::string Aufruftext(Aufrufart art) {
    switch (art) {
    case Aufrufart::Programm:
        return {};
    case Aufrufart::Hilfe:
        return Einsetzen(starttexte::hilfe, {starttexte::aufruf, konfiguration::homepage});
    case Aufrufart::Version:
        return Versionszeile() + "\n";
    case Aufrufart::Falsch:
        return Einsetzen(starttexte::falsch, {starttexte::aufruf});
    }
    return {};
}

std::string Versionszeile() {
    const auto zahl = [](int wert) { return std::to_string(wert); };
    return Einsetzen(starttexte::version,
                     {zahl(konfiguration::versionHaupt), zahl(konfiguration::versionNeben),
                      zahl(konfiguration::versionRevision)});
}
