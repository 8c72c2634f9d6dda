#include "quizform/frmFKFragen.h"

#include "catalogue/katalogladen.h"
#include "core/bilder.h"
#include "core/fensterzeichen.h"
#include "core/klappliste.h"
#include "core/oberflaeche.h"
#include "core/ziehbilder.h"
#include "quizform/fkansage.h"
#include "quizform/fkereignisse.h"
#include "quizform/fkformular.h"
#include "quizform/texte.h"
#include "rules/spezialfelder.h"
#include "rules/spielwerte.h"

#include <QCloseEvent>
#include <QLabel>

#include <utility>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

QString Name(const char* feld, int n) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(n);
}

} // namespace

frmFKFragen::frmFKFragen(std::function<bool()> darfSchliessen)
    : darfSchliessen_(std::move(darfSchliessen)), masse_(&FormMasseFuer(HolAuflösungX())) {
    setObjectName(QStringLiteral("frmFKFragen"));
    setProperty("tag", Anzeige(Fensterzeichen(Formart::Quiz)));
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    // Face and colours first: the controls take them over as they are made, all in one go.
    setFont(Schrift(masse_->schrift));
    if (Spiel.FarbeHintergrund == 0) {
        Spiel.FarbeHintergrund = 7;
    }
    HintergrundMalen(Spiel.FarbeHintergrund);
    for (int n = 1; n <= anzahlFelder; ++n) {
        FKForm.FeldPunkte.at(Stelle(n)) = static_cast<std::int16_t>(ZeileVon(n));
    }
    KopfBauen();
    TitelBauen();
    for (int n = 1; n <= anzahlFelder; ++n) {
        FeldBauen(n);
    }
    AnsagenEinrichten(*this);
    ListenBauen();
    BilderBauen();
    Anordnen(Massstab());
    TabfolgeSetzen();
    HinweiseSetzen();
    EreignisseVerbinden();
}

int frmFKFragen::HolAuflösungX() const {
    return Bildschirmgroesse(this).width();
}

int frmFKFragen::HolAuflösungY() const {
    return Bildschirmgroesse(this).height();
}

frmFKFragen::Zelltexte frmFKFragen::Texte(int n) const {
    return {txtFrage.at(Stelle(n))->text(), txtAntwort.at(Stelle(n))->text()};
}

void frmFKFragen::HintergrundMalen(int farbe) {
    QPalette farben = palette();
    farben.setColor(QPalette::Window, Qfarbe(FormularFarbe(farbe)));
    setPalette(farben);
}

void frmFKFragen::KopfBauen() {
    pnlKranz = new Panel(this, QStringLiteral("pnlKranz"));
    pnlKranz->setCaption(QStringLiteral("FELDKRANZ!"));
    pnlDatum = new Panel(this, QStringLiteral("pnlDatum"));
    pnlZeit = new Panel(this, QStringLiteral("pnlZeit"));
    pnlNr = new Panel(this, QStringLiteral("pnlNr"));
    txtDatum = new Textzeile(pnlDatum, QStringLiteral("txtDatum"));
    txtZeit = new Textzeile(pnlZeit, QStringLiteral("txtZeit"));
    txtNr = new Textzeile(pnlNr, QStringLiteral("txtNr"));
    struct Kopfteil {
        Panel* panel;
        Textzeile* zeile;
        const char* aufschrift;
    };
    for (const auto& teil : {Kopfteil{pnlDatum, txtDatum, " Datum :"}, Kopfteil{pnlZeit, txtZeit, " Zeit :"},
                             Kopfteil{pnlNr, txtNr, " Nr. :"}}) {
        teil.panel->setCaption(QString::fromUtf8(teil.aufschrift));
        teil.panel->setAusrichtung(Qt::AlignLeft);
        teil.zeile->setAccessibleName(teil.panel->caption().trimmed());
    }
    cmdFKSchliessen = new QPushButton(QStringLiteral("Schließen"), this);
    TastenbildSetzen(cmdFKSchliessen, "leiste/schliessen");
    cmdFKSchliessen->setObjectName(QStringLiteral("cmdFKSchliessen"));
}

void frmFKFragen::TitelBauen() {
    for (int a = 1; a <= anzahlGebiete; ++a) {
        auto* titel = new Panel(this, Name("pnlWissen", a));
        titel->setCaption(QStringLiteral("Wissen"));
        titel->setFocusPolicy(Qt::TabFocus);
        titel->setCursor(Qt::PointingHandCursor);
        pnlWissen.at(Stelle(a)) = titel;
    }
}

void frmFKFragen::FeldBauen(int n) {
    auto* rahmen = new QWidget(this); // made first, so that it lies behind the cell
    rahmen->setObjectName(Name("shpFrage", n));
    rahmen->setAutoFillBackground(true);
    rahmen->hide();
    shpFrage.at(Stelle(n)) = rahmen;
    auto* punkte = new Panel(this, Name("pnlPunkte", n));
    punkte->setCaption(QString::number(FKForm.FeldPunkte.at(Stelle(n))));
    pnlPunkte.at(Stelle(n)) = punkte;
    auto* spezial = new Panel(this, Name("pnlSpezial", n));
    spezial->setFocusPolicy(Qt::TabFocus);
    spezial->setCursor(Qt::PointingHandCursor);
    pnlSpezial.at(Stelle(n)) = spezial;
    txtFrage.at(Stelle(n)) = new Textfeld(this, Name("txtFrage", n));
    txtAntwort.at(Stelle(n)) = new Textfeld(this, Name("txtAntwort", n));
}

void frmFKFragen::ListenBauen() {
    cmbSpezial = new Klappliste(this, QStringLiteral("cmbSpezial"));
    cmbSpezial->setAccessibleName(QStringLiteral("Spezialfeld"));
    for (const std::string_view eintrag : Spezialliste()) {
        cmbSpezial->addItem(Anzeige(eintrag));
    }
    cmbSpezial->hide();
    cmbWissen = new Klappliste(this, QStringLiteral("cmbWissen"));
    cmbWissen->setAccessibleName(QStringLiteral("Wissensgebiet"));
    cmbWissen->setMaxVisibleItems(anzahlListenplaetze + 1);
    ThemenLaden();
    cmbWissen->addItem(QString());
    for (int i = 1; i <= anzahlListenplaetze; ++i) {
        cmbWissen->addItem(Anzeige(Katalog.ThemenListe.at(Stelle(i))));
    }
    cmbWissen->hide();
}

// The pictures that a drag shows.
void frmFKFragen::BilderBauen() {
    for (const auto& [name, bild] :
         {std::pair{"picBildAufnehmen", ZiehBild::Aufnehmen}, std::pair{"picBildAblegen", ZiehBild::Ablegen},
          std::pair{"picBildNein", ZiehBild::Nein}}) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(name));
        label->setPixmap(Ziehpixmap(bild, devicePixelRatioF()));
        label->hide();
    }
}

void frmFKFragen::closeEvent(QCloseEvent* ereignis) {
    if (!darfSchliessen_()) {
        ereignis->ignore();
        return;
    }
    ereignis->accept();
    Q_EMIT geschlossen();
}
