#include "core/massfenster.h"

#include "core/oberflaeche.h"
#include "core/textfeld.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

namespace {

// Lines are counted only when they have been laid out, and that waits until they are needed.
void ZeilenZaehlen(const QTextDocument& text) {
    for (QTextBlock absatz = text.begin(); absatz.isValid(); absatz = absatz.next()) {
        (void)text.documentLayout()->blockBoundingRect(absatz);
    }
}

int ErstesZeichen(const QTextDocument& text, int zeile) {
    const QTextBlock absatz = text.findBlockByLineNumber(zeile);
    const int imAbsatz = zeile - absatz.firstLineNumber();
    const bool da = absatz.isValid() && imAbsatz < absatz.layout()->lineCount();
    return da ? absatz.position() + absatz.layout()->lineAt(imAbsatz).textStart() : 0;
}

int ZeileVon(const QTextDocument& text, int zeichen) {
    const QTextBlock absatz = text.findBlock(zeichen);
    const QTextLine zeile =
        absatz.isValid() ? absatz.layout()->lineForTextPosition(zeichen - absatz.position()) : QTextLine();
    return zeile.isValid() ? absatz.firstLineNumber() + zeile.lineNumber() : 0;
}

} // namespace

Massfenster::Rollstand Massfenster::Rollstelle(Textfeld* feld) const {
    const QTextDocument& text = *feld->document();
    const int wert = feld->verticalScrollBar()->value();
    if (const auto fund = gerollt_.find(feld);
        fund != gerollt_.end() && fund->wert == wert && fund->fassung == text.revision()) {
        return *fund;
    }
    return {wert == 0 ? 0 : ErstesZeichen(text, wert), wert, text.revision()};
}

void Massfenster::Zurueckrollen(Textfeld* feld, Rollstand stand) {
    ZeilenZaehlen(*feld->document());
    feld->verticalScrollBar()->setValue(ZeileVon(*feld->document(), stand.zeichen));
    stand.wert = feld->verticalScrollBar()->value();
    gerollt_.insert(feld, stand);
}

void Massfenster::MassstabSetzen(Massstab massstab) {
    if (massstab == massstab_) {
        return;
    }
    const QList<Textfeld*> felder = findChildren<Textfeld*>();
    QList<Rollstand> staende;
    for (Textfeld* feld : felder) {
        staende.append(Rollstelle(feld));
    }
    massstab_ = massstab;
    setUpdatesEnabled(false);
    Auslegen(massstab);
    for (qsizetype i = 0; i < felder.size(); ++i) {
        Zurueckrollen(felder.at(i), staende.at(i));
    }
    setUpdatesEnabled(true);
}

QFont Schrift(Schriftpunkte groesse, bool fett, Massstab massstab) {
    QFont schrift = Schrift(groesse, fett);
    schrift.setPixelSize(massstab.Schriftgroesse(schrift.pixelSize()));
    return schrift;
}

void TwipsGeometrie(QWidget* steuerelement, Twips links, Twips oben, Twips breite, Twips hoehe,
                    Massstab massstab) {
    TwipsGeometrie(steuerelement, links * massstab, oben * massstab, breite * massstab, hoehe * massstab);
}

void PixelGeometrie(QWidget* steuerelement, QRect original, Massstab massstab) {
    const QPoint ecke(massstab.Kante(original.x()), massstab.Kante(original.y()));
    const QPoint ende(massstab.Kante(original.x() + original.width()),
                      massstab.Kante(original.y() + original.height()));
    steuerelement->setGeometry(ecke.x(), ecke.y(), ende.x() - ecke.x(), ende.y() - ecke.y());
}
