#include "editor/katalogtext.h"

#include "core/cp1252.h"
#include "core/laufzeitfehler.h"
#include "core/pfadname.h"
#include "core/wertgrammatik.h"

#include <algorithm>

namespace {

void GroessePruefen(std::size_t groesse, std::size_t hoechstens) {
    if (groesse > hoechstens) {
        throw Laufzeitfehler(Fehler::SpeicherVoll);
    }
}

} // namespace

bool IstTextdatei(std::string_view bytes) {
    return bytes.find('\0') == std::string_view::npos;
}

Katalogtext KatalogtextLesen(std::string_view bytes) {
    GroessePruefen(bytes.size(), groessterKatalogtext);
    WertLeser leser(bytes);
    Katalogtext gelesen;
    const std::string_view marke = leser.Token();
    GroessePruefen(marke.size(), laengsterText); // a quote that nobody closes takes the whole file
    gelesen.marke = AusCp1252(marke);
    gelesen.text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t zeilen = 1; !leser.AmEnde(); ++zeilen) {
        GroessePruefen(zeilen, meisteKatalogzeilen);
        const std::string_view zeile = leser.Zeile();
        GroessePruefen(zeile.size(), laengsteKatalogzeile);
        AusCp1252Anhaengen(gelesen.text, zeile);
        gelesen.text += "\r\n";
    }
    return gelesen;
}

std::string KatalogkopfAus(std::string_view dateiname) {
    std::string kopf(dateiname.substr(0, dateiname.rfind('.')));
    std::ranges::replace_if(
        kopf, [](char zeichen) { return zeichen == ',' || zeichen == '"'; }, ' ');
    return Getrimmt(kopf);
}

std::string KatalogtextBytes(std::string_view marke, std::string_view text) {
    constexpr std::string_view zeilenende = "\r\n";
    std::string bytes = NachCp1252(marke);
    bytes += zeilenende;
    bytes += NachCp1252(text);
    bytes += zeilenende;
    return bytes;
}
