#include "printing/druckschrift.h"

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

} // namespace

QFont DruckFont(const Schrift& schrift) {
    QFont font;
    font.setFamilies(Familien(schrift.art));
    font.setStyleHint(QFont::SansSerif, QFont::PreferOutline);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(static_cast<double>(schrift.groesse));
    if (schrift.art == Schriftart::ArialBlack) {
        font.setWeight(QFont::Black);
    } else {
        font.setBold(schrift.fett);
    }
    return font;
}

Druckschriften::Druckschriften(QPaintDevice& geraet)
    : geraet_(geraet), mmJePunkt_(25.4 / geraet.logicalDpiY()) {}

Druckschriften::Eintrag& Druckschriften::Finden(const Schrift& schrift) const {
    const auto stelle = std::find_if(eintraege_.begin(), eintraege_.end(),
                                     [&](const Eintrag& eintrag) { return eintrag.schrift == schrift; });
    if (stelle != eintraege_.end()) {
        return *stelle;
    }
    const QFont font = DruckFont(schrift);
    return eintraege_.emplace_back(Eintrag{schrift, font, QFontMetricsF(font, &geraet_), {}});
}

float Druckschriften::Breite(std::string_view text, const Schrift& schrift) const {
    return static_cast<float>(Finden(schrift).mass.horizontalAdvance(Text(text)) * mmJePunkt_);
}

// Letters of a text one by one, without kerning; each byte of a letter beyond ASCII counts as an m, so that
// the sum is rather too great than too small.
float Druckschriften::Zeichensumme(std::string_view text, const Schrift& schrift) const {
    Eintrag& eintrag = Finden(schrift);
    float summe = 0.0F;
    for (const char byte : text) {
        const bool ascii = static_cast<unsigned char>(byte) < eintrag.zeichen.size();
        float& breite = eintrag.zeichen[ascii ? static_cast<unsigned char>(byte) : 'm'];
        if (breite <= 0.0F) {
            const QLatin1Char zeichen(ascii ? byte : 'm');
            breite = static_cast<float>(eintrag.mass.horizontalAdvance(QChar(zeichen)) * mmJePunkt_);
        }
        summe += breite;
    }
    return summe;
}

float Druckschriften::BreiteGegen(std::string_view text, const Schrift& schrift, float grenze) const {
    const float ungefaehr = Zeichensumme(text, schrift);
    return ungefaehr * 1.05F < grenze ? ungefaehr : Breite(text, schrift);
}

float Druckschriften::Hoehe(const Schrift& schrift) const {
    const QFontMetricsF& mass = Finden(schrift).mass;
    return static_cast<float>((mass.ascent() + mass.descent()) * mmJePunkt_);
}
