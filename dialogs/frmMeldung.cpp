#include "dialogs/frmMeldung.h"

#include "core/oberflaeche.h"
#include "core/panel.h"
#include "dialogs/hinweistexte.h"
#include "dialogs/meldung.h"
#include "dialogs/sinnbilder.h"
#include "tooltips/hinweise.h"

#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr Twips fensterBreite = 5055_tw;
constexpr Twips fensterHoehe = 2805_tw;
constexpr int grussBild = 3;

// The largest face of the row in which the caption fits the width.
QFont PassendeSchrift(const QString& text, int breite) {
    for (const Schriftpunkte groesse : {10_pt, 9.5_pt, 9_pt, 8.5_pt, 8_pt, 7.5_pt}) {
        const QFont schrift = Schrift(groesse);
        if (QFontMetrics(schrift).horizontalAdvance(text) <= breite) {
            return schrift;
        }
    }
    return Schrift(7_pt);
}

} // namespace

frmMeldung::frmMeldung(const MeldungsText& meldung)
    : Dialoggrund(QStringLiteral("frmMeldung"), fensterBreite, fensterHoehe,
                  Qt::Dialog | Qt::FramelessWindowHint),
      bild_(meldung.bild),
      pnlPic_(new Panel(this, QStringLiteral("pnlPic"))),
      pnlNr_(new Panel(this, QStringLiteral("pnlNr"))),
      lblNr_(new QLabel(pnlNr_)),
      lblMeldung_(new Textschild(this, QStringLiteral("lblMeldung"))),
      cmdKenntnis_(new QPushButton(this)) {
    // A message may interrupt a long step; the pointer mustn't go on saying "wait".
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
    HintergrundLaden("MELDUNG.bmp");
    TwipsGeometrie(lblMeldung_, 60_tw, 930_tw, 4875_tw, 1035_tw);
    BilderBauen();
    NummerBauen(meldung.nummer);
    TasteBauen();
    HinweiseSetzen(*this, dialogtexte::meldung);
    Anordnen();
    Beschriften(Anzeige(meldung.text), Anzeige(meldung.taste));
}

void frmMeldung::BilderBauen() {
    TwipsGeometrie(pnlPic_, 2265_tw, 270_tw, 480_tw, 480_tw);
    pnlPic_->setFrameShape(QFrame::NoFrame);
    pnlPic_->setAttribute(Qt::WA_NoSystemBackground);
    pnlPic_->setFarben(Qt::transparent, Qt::black);
    for (int i = 0; i < static_cast<int>(picMeldung_.size()); ++i) {
        auto* bild =
            SinnbildLabel(pnlPic_, "picMeldung", i, sinnbilder::meldung.at(static_cast<std::size_t>(i)));
        bild->move(Pixel(900_tw), 0);
        picMeldung_[static_cast<std::size_t>(i)] = bild;
    }
    picMeldung_[grussBild]->installEventFilter(this);
}

void frmMeldung::NummerBauen(std::string_view nummer) {
    TwipsGeometrie(pnlNr_, fensterBreite - 450_tw, 150_tw, 360_tw, 255_tw);
    lblNr_->setObjectName(QStringLiteral("lblNr"));
    lblNr_->setTextFormat(Qt::PlainText);
    lblNr_->setGeometry(pnlNr_->rect());
    lblNr_->setAlignment(Qt::AlignCenter);
    lblNr_->setFont(Schrift(7.5_pt));
    lblNr_->setText(Anzeige(nummer));
    lblNr_->installEventFilter(this);
}

void frmMeldung::TasteBauen() {
    TwipsGeometrie(cmdKenntnis_, 225_tw, fensterHoehe - 585_tw, fensterBreite - 450_tw, 420_tw);
    cmdKenntnis_->setObjectName(QStringLiteral("cmdKenntnis"));
    cmdKenntnis_->setDefault(true);
    cmdKenntnis_->setFocus();
    connect(cmdKenntnis_, &QPushButton::clicked, this, &frmMeldung::ZurKenntnisNehmen);
}

void frmMeldung::Beschriften(const QString& text, const QString& antwort) {
    lblMeldung_->setText(text);
    cmdKenntnis_->setFont(PassendeSchrift(antwort, cmdKenntnis_->width() - 10));
    // An ampersand of a caller is a character and no access key.
    cmdKenntnis_->setText(QString(antwort).replace(QLatin1Char('&'), QLatin1String("&&")));
    cmdKenntnis_->setAccessibleName(antwort);
    if (bild_ >= 0 && bild_ < static_cast<int>(picMeldung_.size())) {
        picMeldung_[static_cast<std::size_t>(bild_)]->show();
    }
}

// Done again at each painting: the window goes back to the centre and the chosen picture into its panel.
void frmMeldung::Anordnen() {
    Zentrieren(fensterHoehe);
    for (std::size_t i = 1; i < picMeldung_.size(); ++i) {
        picMeldung_[i]->move(static_cast<int>(i) == bild_ ? 0 : Pixel(900_tw), 0);
    }
    if (bild_ == 0) {
        picMeldung_[0]->move(0, 0);
    }
}

void frmMeldung::paintEvent(QPaintEvent* ereignis) {
    Dialoggrund::paintEvent(ereignis);
    QPainter maler(this);
    maler.setFont(Schrift(9_pt));
    const int zeilenhoehe = maler.fontMetrics().height();
    for (int i = 0; i < gruesse_; ++i) {
        maler.drawText(QRect(0, i * zeilenhoehe, width(), zeilenhoehe), Qt::AlignLeft,
                       QStringLiteral("Hallo Index !"));
    }
    Anordnen();
}

void frmMeldung::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        cmdKenntnis_->click();
        return;
    }
    Dialoggrund::keyPressEvent(ereignis);
}

bool frmMeldung::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == lblNr_ && ereignis->type() == QEvent::MouseButtonDblClick) {
        done(QDialog::Rejected); // without the button's sound, and the pictures stay
        return true;
    }
    // Has no use, and is to stay.
    if (objekt == picMeldung_[grussBild] && ereignis->type() == QEvent::MouseButtonRelease) {
        ++gruesse_;
        update();
        return true;
    }
    return Dialoggrund::eventFilter(objekt, ereignis);
}

void frmMeldung::ZurKenntnisNehmen() {
    for (QLabel* bild : picMeldung_) {
        bild->hide();
    }
    SoundSpielen("dubb");
    accept();
}
