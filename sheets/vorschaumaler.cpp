#include "sheets/vorschaumaler.h"

#include "core/oberflaeche.h"
#include "printing/zeichnungmalen.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <utility>

namespace {

constexpr Farbe randfarbe{120, 150, 200};
constexpr Farbe warnfarbe{220, 0, 0};

// Of a printer that prints to the edge there is none.
void RandZeichnen(Zeichnung& auflage, const Seitenmasse& m) {
    if (m.links + m.oben + m.rechts + m.unten > 0_mm) {
        auflage.emplace_back(Rechteck{
            0_mm, 0_mm, m.breite - m.links - m.rechts, m.hoehe - m.oben - m.unten, {6_dp, randfarbe}, {}});
    }
}

void UmrandungenZeichnen(Zeichnung& auflage, const Blattsatz& blatt, std::size_t seite) {
    constexpr Millimeter luft = 0.6_mm;
    for (const Ueberhang& ueberhang : blatt.ueberhaenge) {
        const Flaeche& f = ueberhang.kasten;
        if (ueberhang.seite == seite) {
            auflage.emplace_back(Rechteck{f.x - luft,
                                          f.y - luft,
                                          f.breite + 2.0F * luft,
                                          f.hoehe + 2.0F * luft,
                                          {14_dp, warnfarbe},
                                          {}});
        }
    }
}

// Texts that follow one another, by their fonts: black on black, their order can't be seen, and the recorded
// picture keeps each change of a font.
Zeichnung NachSchriften(Zeichnung seite) {
    const auto text = [](const Element& element) { return std::get_if<Textstelle>(&element); };
    for (auto von = seite.begin(); von != seite.end();) {
        von = std::find_if(von, seite.end(), text);
        const auto bis = std::find_if_not(von, seite.end(), text);
        std::stable_sort(von, bis, [&text](const Element& a, const Element& b) {
            const Druckschrift& links = text(a)->schrift;
            const Druckschrift& rechts = text(b)->schrift;
            return links.groesse == rechts.groesse ? links.fett < rechts.fett
                                                   : links.groesse < rechts.groesse;
        });
        von = bis;
    }
    return seite;
}

} // namespace

void VorschauMalen(QPrinter& drucker, const Fertigblatt& fertig, const Druckschriften& schriften) {
    QPainter maler;
    if (!maler.begin(&drucker)) {
        return; // nothing to see is all that comes of it
    }
    for (std::size_t i = 0; i < fertig.blatt.seiten.size(); ++i) {
        if (i > 0) {
            drucker.newPage();
        }
        ZeichnungMalen(maler, NachSchriften(fertig.blatt.seiten.at(i)), schriften, fertig.masse.links,
                       fertig.masse.oben);
        Zeichnung auflage;
        RandZeichnen(auflage, fertig.masse);
        UmrandungenZeichnen(auflage, fertig.blatt, i);
        ZeichnungMalen(maler, auflage, schriften, fertig.masse.links, fertig.masse.oben);
    }
}
