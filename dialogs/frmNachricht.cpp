#include "dialogs/frmNachricht.h"

#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "dialogs/hinweistexte.h"
#include "dialogs/meldung.h"
#include "dialogs/sinnbilder.h"
#include "tooltips/hinweise.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QShowEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <optional>

namespace {

constexpr Twips innenBreite = 6585_tw;
constexpr Twips innenHoehe = 1950_tw;
constexpr Twips fensterHoehe = innenHoehe + titelHoehe;
constexpr Twips tastenBreite = 1485_tw;
constexpr Twips tastenHoehe = 450_tw;
constexpr Twips ungenutzt = -1_tw;

enum Taste { Ja, Nein, Abbrechen, Hilfe, OK };

// By Taste.
struct Antwortwort {
    const char* wort;
    std::string_view bild;
    std::optional<Antwort> antwort; // the button without one gives none
};
constexpr std::array antwortworte{
    Antwortwort{"Ja", "wort/ja", Antwort::Ja}, Antwortwort{"Nein", "wort/nein", Antwort::Nein},
    Antwortwort{"Abbrechen", "wort/abbrechen", Antwort::Abbrechen},
    Antwortwort{"Hilfe", "wort/hilfe", std::nullopt}, Antwortwort{"OK", "wort/ok", Antwort::OK}};
constexpr QSize wortbild(93, 22);
constexpr int beiseite = 40; // blanks

// A button whose word is part of its picture. The caption holds only the access key, and is pushed out of
// sight.
class Worttaste : public QPushButton {
public:
    Worttaste(QWidget* eltern, const Antwortwort& antwort) : QPushButton(eltern) {
        setText(QLatin1Char('&') + QString(QLatin1Char(*antwort.wort)) + QString(beiseite, QLatin1Char(' ')));
        setAccessibleName(QLatin1String(antwort.wort));
        setIcon(Bildzeichen(antwort.bild));
        setIconSize(wortbild);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter maler(this);
        QStyleOptionButton art;
        initStyleOption(&art);
        art.text.clear();
        maler.drawControl(QStyle::CE_PushButton, art);
    }
};

// Left edges of the buttons by button set.
constexpr std::array<std::array<Twips, 5>, 5> tastenLinks{{
    {ungenutzt, ungenutzt, ungenutzt, ungenutzt, 2565_tw},
    {885_tw, 2565_tw, ungenutzt, 4245_tw, ungenutzt},
    {120_tw, 1740_tw, 3360_tw, 4980_tw, ungenutzt},
    {ungenutzt, ungenutzt, 2565_tw, 4245_tw, 885_tw},
    {885_tw, ungenutzt, 2565_tw, 4245_tw, ungenutzt},
}};

} // namespace

frmNachricht::frmNachricht()
    : Dialoggrund(QStringLiteral("frmNachricht"), innenBreite, innenHoehe,
                  Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      lblNachrichtentext_(new Textschild(this, QStringLiteral("lblNachrichtentext"))) {
    Zentrieren(fensterHoehe, 450_tw);
    HintergrundLaden("NACHRICHT.bmp");
    TwipsGeometrie(lblNachrichtentext_, 750_tw, 255_tw, 5295_tw, 1155_tw);
    for (int i = 1; i < static_cast<int>(picSymbol_.size()); ++i) {
        auto* bild =
            SinnbildLabel(this, "picSymbol", i, sinnbilder::nachricht.at(static_cast<std::size_t>(i)));
        bild->move(Pixel(195_tw), Pixel(240_tw));
        picSymbol_[static_cast<std::size_t>(i)] = bild;
    }
    TastenBauen();
    HinweiseSetzen(*this, dialogtexte::nachricht);
}

void frmNachricht::TastenBauen() {
    constexpr std::array<Twips, 5> entwurfLinks{120_tw, 1740_tw, 3360_tw, 4980_tw, 2565_tw};
    for (std::size_t i = 0; i < cmdAntwort_.size(); ++i) {
        auto* taste = new Worttaste(this, antwortworte.at(i));
        taste->setObjectName(QStringLiteral("cmdAntwort(%1)").arg(i));
        TwipsGeometrie(taste, entwurfLinks[i], fensterHoehe - 1140_tw, tastenBreite, tastenHoehe);
        connect(taste, &QPushButton::clicked, this, [this, i] { Beantworten(static_cast<int>(i)); });
        cmdAntwort_[i] = taste;
    }
}

void frmNachricht::Stellen(const NachrichtText& frage, Antwort beimSchliessen) {
    bild_ = frage.bild;
    tasten_ = frage.tasten;
    antwort_ = beimSchliessen;
    lblNachrichtentext_->setText(Anzeige(frage.text));
    setWindowTitle(Anzeige(frage.titel) + QLatin1Char(' '));
    TastenAnordnen();
}

// Done again at each painting. A button out of use isn't hidden but stands below the window's edge; a set
// that doesn't exist leaves the buttons where they are.
void frmNachricht::TastenAnordnen() {
    if (tasten_ < 0 || tasten_ >= static_cast<int>(tastenLinks.size())) {
        return;
    }
    const auto& links = tastenLinks[static_cast<std::size_t>(tasten_)];
    for (std::size_t i = 0; i < cmdAntwort_.size(); ++i) {
        QPushButton* taste = cmdAntwort_[i];
        const bool inGebrauch = links[i] != ungenutzt;
        const int x = inGebrauch ? Pixel(links[i]) : taste->x();
        const QPoint ort(x, Pixel(inGebrauch ? fensterHoehe - 930_tw : fensterHoehe + 60_tw));
        if (taste->pos() != ort) {
            taste->move(ort);
        }
        taste->setEnabled(inGebrauch);
    }
}

void frmNachricht::BildZeigen(bool sichtbar) {
    if (bild_ >= 1 && bild_ < static_cast<int>(picSymbol_.size())) {
        picSymbol_[static_cast<std::size_t>(bild_)]->setVisible(sichtbar);
    }
}

void frmNachricht::paintEvent(QPaintEvent* ereignis) {
    Dialoggrund::paintEvent(ereignis);
    TastenAnordnen();
}

void frmNachricht::showEvent(QShowEvent* ereignis) {
    Dialoggrund::showEvent(ereignis);
    if (ereignis->spontaneous()) {
        return;
    }
    BildZeigen(true);
    SoundSpielen("freiz_2");
    for (const Taste erste : {Ja, OK}) {
        if (cmdAntwort_[erste]->isEnabled()) {
            cmdAntwort_[erste]->setFocus();
            return;
        }
    }
}

void frmNachricht::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape && cmdAntwort_[Abbrechen]->isEnabled()) {
        cmdAntwort_[Abbrechen]->click();
        return;
    }
    Dialoggrund::keyPressEvent(ereignis);
}

// Closing by the frame leaves the answer that it counts as.
void frmNachricht::reject() {
    BildZeigen(false);
    done(QDialog::Rejected);
}

void frmNachricht::Beantworten(int taste) {
    if (taste == Abbrechen) {
        SoundSpielen("clack");
    }
    // Hilfe gives no help: the question stays, without its picture.
    if (const auto& antwort = antwortworte.at(static_cast<std::size_t>(taste)).antwort; antwort) {
        done(QDialog::Accepted);
        antwort_ = *antwort;
    }
    BildZeigen(false);
}
