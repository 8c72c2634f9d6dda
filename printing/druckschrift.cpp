#include "printing/druckschrift.h"

#include <QFontInfo>
#include <QPaintDevice>
#include <QString>
#include <QStringList>

#include <algorithm>

namespace {

QString Text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QStringList Familien(Schriftart art) {
    const QStringList gleicheMasse{QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                                   QStringLiteral("Arimo"), QStringLiteral("Nimbus Sans"),
                                   QStringLiteral("Helvetica")};
    return art == Schriftart::Arial ? gleicheMasse
                                    : QStringList{QStringLiteral("Arial Black")} + gleicheMasse;
}

// The one of them that is there: a font that names all of them is heavier in everything that keeps it.
QString Familie(Schriftart art) {
    QFont font;
    font.setFamilies(Familien(art));
    return QFontInfo(font).family();
}

} // namespace

QFont DruckFont(const Druckschrift& schrift) {
    QFont font;
    font.setFamily(Familie(schrift.art));
    font.setStyleHint(QFont::SansSerif, QFont::PreferOutline);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(static_cast<double>(schrift.groesse.zahl()));
    if (schrift.art == Schriftart::ArialBlack) {
        font.setWeight(QFont::Black);
    } else {
        font.setBold(schrift.fett);
    }
    return font;
}

Druckschriften::Druckschriften(QPaintDevice& geraet) : geraet_(geraet), aufloesung_(geraet.logicalDpiY()) {}

Druckschriften::Eintrag& Druckschriften::Finden(const Druckschrift& schrift) const {
    const auto stelle = std::find_if(eintraege_.begin(), eintraege_.end(),
                                     [&](const Eintrag& eintrag) { return eintrag.schrift == schrift; });
    if (stelle != eintraege_.end()) {
        return *stelle;
    }
    const QFont font = DruckFont(schrift);
    return eintraege_.emplace_back(Eintrag{schrift, font, QFontMetricsF(font, &geraet_), {}});
}

Millimeter Druckschriften::Breite(std::string_view text, const Druckschrift& schrift) const {
    return aufloesung_.MillimeterAus(Finden(schrift).mass.horizontalAdvance(Text(text)));
}

// Letters of a text one by one, without kerning; each byte of a letter beyond ASCII counts as an m, so that
// the sum is rather too great than too small.
Millimeter Druckschriften::Zeichensumme(std::string_view text, const Druckschrift& schrift) const {
    Eintrag& eintrag = Finden(schrift);
    Millimeter summe;
    for (const char byte : text) {
        const bool ascii = static_cast<unsigned char>(byte) < eintrag.zeichen.size();
        Millimeter& breite = eintrag.zeichen[ascii ? static_cast<unsigned char>(byte) : 'm'];
        if (breite <= Millimeter()) {
            const QLatin1Char zeichen(ascii ? byte : 'm');
            breite = aufloesung_.MillimeterAus(eintrag.mass.horizontalAdvance(QChar(zeichen)));
        }
        summe += breite;
    }
    return summe;
}

Millimeter Druckschriften::BreiteGegen(std::string_view text, const Druckschrift& schrift,
                                       Millimeter grenze) const {
    const Millimeter ungefaehr = Zeichensumme(text, schrift);
    return ungefaehr * 1.05F < grenze ? ungefaehr : Breite(text, schrift);
}

Millimeter Druckschriften::Hoehe(const Druckschrift& schrift) const {
    const QFontMetricsF& mass = Finden(schrift).mass;
    return aufloesung_.MillimeterAus(mass.ascent() + mass.descent());
}
