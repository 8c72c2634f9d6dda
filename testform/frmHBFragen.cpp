#include "testform/frmHBFragen.h"

#include "catalogue/katalogladen.h"
#include "core/fensterzeichen.h"
#include "core/klappliste.h"
#include "core/oberflaeche.h"
#include "rules/spielwerte.h"
#include "testform/hbereignisse.h"
#include "testform/texte.h"

#include <QCloseEvent>

#include <utility>

namespace {

std::size_t Stelle(int n) {
    return static_cast<std::size_t>(n);
}

QString Name(const char* feld, int n) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(n);
}

Panel* PanelBauen(QWidget* eltern, const char* name, std::string_view aufschrift) {
    auto* panel = new Panel(eltern, QLatin1String(name));
    panel->setAusrichtung(Qt::AlignLeft);
    panel->setCaption(Anzeige(aufschrift));
    return panel;
}

// wort: "Titel", "Fach" or "Gruppe", the tail of the three names.
Kopfwahl WahlBauen(QWidget* eltern, const QString& wort, std::string_view aufschrift) {
    Kopfwahl wahl;
    wahl.panel = PanelBauen(eltern, "", aufschrift);
    wahl.panel->setObjectName(QStringLiteral("pnl") + wort);
    wahl.panel->setCursor(Qt::PointingHandCursor);
    wahl.taste = new QToolButton(eltern);
    wahl.taste->setObjectName(QStringLiteral("cmd") + wort);
    wahl.taste->setArrowType(Qt::DownArrow);
    wahl.taste->setFocusPolicy(Qt::StrongFocus);
    wahl.taste->setAccessibleName(wort + QStringLiteral(" auswählen"));
    wahl.liste = new Klappliste(eltern, QStringLiteral("cmb") + wort);
    wahl.liste->setAccessibleName(wort);
    wahl.liste->setMaxVisibleItems(anzahlListenplaetze);
    wahl.liste->hide();
    return wahl;
}

} // namespace

frmHBFragen::frmHBFragen(std::function<bool()> darfSchliessen)
    : darfSchliessen_(std::move(darfSchliessen)), masse_(&TestMasseFuer(Bildschirmgroesse(this).width())) {
    setObjectName(QStringLiteral("frmHBFragen"));
    setProperty("tag", Anzeige(Fensterzeichen(Formart::Test)));
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    KopfBauen();
    ListenFuellen();
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        ZeileBauen(n);
    }
    FussBauen();
    UeberschriftenBauen();
    Anordnen(Massstab());
    TabfolgeSetzen();
    if (Spiel.FarbeHintergrund == 0) {
        Spiel.FarbeHintergrund = 7;
    }
    HintergrundMalen();
    HinweiseSetzen();
    KopfEreignisseVerbinden(*this);
    ZeilenEreignisseVerbinden(*this);
    PunkteVerbinden(*this);
    TestziehenVerbinden(*this);
}

void frmHBFragen::HintergrundMalen() {
    QPalette farben = palette();
    farben.setColor(QPalette::Window, Qfarbe(FormularFarbe(Spiel.FarbeHintergrund)));
    setPalette(farben);
}

void frmHBFragen::KopfBauen() {
    titel = WahlBauen(this, QStringLiteral("Titel"), hbtexte::titel);
    fach = WahlBauen(this, QStringLiteral("Fach"), hbtexte::fach);
    gruppe = WahlBauen(this, QStringLiteral("Gruppe"), hbtexte::gruppe);
    lblGruppe = new QLabel(gruppe.panel);
    lblGruppe->setObjectName(QStringLiteral("lblGruppe"));
    lblGruppe->setTextFormat(Qt::PlainText);                   // it comes from a file
    lblGruppe->setAttribute(Qt::WA_TransparentForMouseEvents); // a click means the panel
    pnlTest = PanelBauen(this, "pnlTest", hbtexte::nummer);
    pnlName = PanelBauen(this, "pnlName", hbtexte::name);
}

void frmHBFragen::ListenFuellen() {
    for (const std::string_view eintrag : hbtexte::titelListe) {
        titel.liste->addItem(Anzeige(eintrag));
    }
    HBUnterthemenLaden();
    for (int i = 1; i <= anzahlListenplaetze; ++i) {
        fach.liste->addItem(Anzeige(Katalog.UnterthemenListe.at(Stelle(i))));
    }
    for (const std::string_view eintrag : hbtexte::gruppenListe) {
        gruppe.liste->addItem(Anzeige(eintrag));
    }
}

void frmHBFragen::UeberschriftenBauen() {
    for (const auto& [name, wort] : {std::pair{"lblFrage", "Frage"}, std::pair{"lblAntwort", "Antwort"},
                                     std::pair{"lblPunkte", "Punkte"}}) {
        auto* ueberschrift = new QLabel(QLatin1String(wort), this);
        ueberschrift->setObjectName(QLatin1String(name));
    }
}

void frmHBFragen::ZeileBauen(int n) {
    const auto i = Stelle(n);
    const QString zeile = QStringLiteral(" %1").arg(n);
    pnlNr.at(i) = new Panel(this, Name("pnlNr", n));
    pnlNr.at(i)->setCaption(QString::number(n));
    txtFrage.at(i) = new Textfeld(this, Name("txtFrage", n));
    txtFrage.at(i)->setAccessibleName(QStringLiteral("Frage") + zeile);
    txtAntwort.at(i) = new Textfeld(this, Name("txtAntwort", n));
    txtAntwort.at(i)->setAccessibleName(QStringLiteral("Antwort") + zeile);
    for (Textfeld* feld : {txtFrage.at(i), txtAntwort.at(i)}) {
        feld->setGrund(QColor());
        feld->document()->setDocumentMargin(2);
    }
    pnlPunkte.at(i) = new Panel(this, Name("pnlPunkte", n));
    pnlPunkte.at(i)->setFrameShadow(QFrame::Sunken);
    pnlPunkte.at(i)->setFarben(Qt::white, Qt::black);
    spnPunkte.at(i) = new Drehfeld(this, Name("spnPunkte", n), QStringLiteral("Punkte Frage") + zeile);
    spnPunkte.at(i)->setZahlpanel(pnlPunkte.at(i));
    pnlPunkte.at(i)->setAnsage(QStringLiteral("Punkte Frage") + zeile);
}

void frmHBFragen::FussBauen() {
    pnlGesamtpunkte = PanelBauen(this, "pnlGesamtpunkte", hbtexte::gesamtpunkte);
    pnlNote = PanelBauen(this, "pnlNote", hbtexte::note);
    pnlBewertet = PanelBauen(this, "pnlBewertet", hbtexte::bewertet);
    pnlPunktkontrolle = PanelBauen(this, "pnlPunktkontrolle", hbtexte::punktkontrolle);
}

void frmHBFragen::closeEvent(QCloseEvent* ereignis) {
    if (!darfSchliessen_()) {
        ereignis->ignore();
        return;
    }
    ereignis->accept();
    Q_EMIT geschlossen();
}
