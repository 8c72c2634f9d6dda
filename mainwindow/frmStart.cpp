#include "mainwindow/frmStart.h"

#include "core/bilder.h"
#include "core/datei.h"
#include "core/konfiguration.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/hinweistexte.h"
#include "mainwindow/texte.h"
#include "periphery/zusatz.h"
#include "start/einrichtungsbalken.h"
#include "start/startorte.h"
#include "start/texte.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltipregeln.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace {

constexpr Twips breite = 5605_tw; // client area
constexpr Twips hoehe = 3045_tw;
constexpr int tippBreite = 300; // pixels

} // namespace

frmStart::frmStart(const std::string& lieferung) {
    SanduhrZeigen();
    setObjectName(QStringLiteral("frmStart"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Anzeige(kerntexte::startfenster));
    setFixedSize(Pixel(breite), Pixel(hoehe));
    const QRect schirm = screen()->geometry();
    move(schirm.center() - QPoint(width() / 2, height() / 2));
    BildLaden(lieferung);
    lblVersion_ = new QLabel(this);
    lblVersion_->setObjectName(QStringLiteral("lblVersion"));
    lblVersion_->setFont(Schrift(8.25_pt));
    lblVersion_->setAlignment(Qt::AlignCenter);
    lblVersion_->setText(QStringLiteral("[ Rev. %1.%2.%3 ]")
                             .arg(konfiguration::versionHaupt)
                             .arg(konfiguration::versionNeben)
                             .arg(konfiguration::versionRevision));
    lblVersion_->setGeometry(0, height() - 58, width(), 16);
    cmdStart_ = new QPushButton(Anzeige(kerntexte::startZeile), this);
    cmdStart_->setObjectName(QStringLiteral("cmdStart"));
    cmdStart_->setGeometry(40, height() - 38, width() - 80, 28);
    cmdStart_->setAutoDefault(true); // Enter presses it, as a click does
    cmdStart_->setFocus();
    TippsEinrichten(this, tippBreite);
    HinweiseSetzen(*this, kerntexte::starthinweise);
    HinweisSetzen(this, "", tipp::titelStandard, ""); // the window itself only has the standard style
    connect(cmdStart_, &QPushButton::clicked, this, [this] {
        // The main window first, so that the program doesn't end with its last window.
        HauptfensterZeigen();
        QTimer::singleShot(0, MDIFenster(), [] { SchreibortPruefen(Stand.AppPfad); });
        close();
    });
    auto* Timer1 = new QTimer(this); // it never closes the window by itself: its handler does nothing
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->start(2500);
    Einrichten(lieferung);
    // While the user looks at this window: it costs the start nothing.
    QTimer::singleShot(0, this, [] { ResteEntfernen(Stand.AppPfad); });
    NormalerZeiger();
}

void frmStart::Einrichten(const std::string& lieferung) {
    if (lieferung.empty()) {
        return;
    }
    Einrichtung einrichtung(lieferung, Stand.AppPfad);
    if (einrichtung.fertig()) {
        return;
    }
    auto* balken = new Einrichtungsbalken(std::move(einrichtung), this);
    balken->setGeometry(40, height() - 60, width() - 80, 20);
    HinweisSetzen(balken, kerntexte::einrichtenTipp, tipp::titelStandard, kerntexte::einrichtenStatus);
    lblVersion_->hide();
    cmdStart_->setEnabled(false);
    cmdStart_->setText(Anzeige(starttexte::richteEin));
    connect(balken, &Einrichtungsbalken::fertig, this, [this, balken] {
        balken->hide();
        lblVersion_->show();
        cmdStart_->setText(Anzeige(kerntexte::startZeile));
        cmdStart_->setEnabled(true);
        cmdStart_->setFocus();
    });
}

void frmStart::BildLaden(const std::string& lieferung) {
    std::string pfad = Stand.AppPfad + std::string(kerntexte::startbild);
    if (!lieferung.empty() && !DateiDa(pfad)) {
        pfad = lieferung + std::string(kerntexte::startbild); // the folder is only being made
    }
    const QString datei = NativerPfad(pfad);
    // The format is known: asking every picture plug-in for it would cost a good part of the start.
    QImageReader leser(datei, "bmp");
    leser.setAutoDetectImageFormat(false);
    bild_ = QPixmap::fromImage(leser.read());
    if (!bild_.isNull()) {
        bild_ = Feinbild(bild_, pfad, devicePixelRatioF());
        return;
    }
    if (QFileInfo::exists(datei)) {
        Meldung(kerntexte::startbildProblem);
    } else {
        Meldung(kerntexte::startbildFehlt, {pfad});
    }
}

void frmStart::paintEvent(QPaintEvent* ereignis) {
    QWidget::paintEvent(ereignis);
    if (!bild_.isNull()) {
        QPainter(this).drawPixmap(rect(), bild_);
    }
}

void SchreibortPruefen(std::string_view ordner) {
    if (!OrdnerBeschreibbar(ordner)) {
        Meldung(kerntexte::keinSchreibort, {ordner});
    }
}

void StartfensterZeigen(const Startorte& orte) {
    Stand.AppPfad = EigenerPfad(orte.programmordner);
    ZusatzordnerVorgeben(orte.zusatzordner);
    auto* fenster = new frmStart(EigenerPfad(orte.lieferung));
    fenster->show();
}
