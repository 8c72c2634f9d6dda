#include "periphery/dokumentleser.h"

#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "periphery/dokumentansicht.h"
#include "periphery/texte.h"
#include "periphery/uebergabe.h"
#include "periphery/zusatz.h"
#include "tooltips/hinweise.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace {

constexpr double stufe = 1.25;       // of the two buttons for the size
constexpr int tipppause = 250;       // milliseconds
constexpr int suchfeldBreite = 260;  // at most
constexpr int seitenfeldBreite = 40; // pixels
constexpr int bildkante = 16;

constexpr std::array tastenbilder{Tastenbild{"cmdSeiteZurueck", "seite/zurueck"},
                                  Tastenbild{"cmdSeiteWeiter", "seite/weiter"},
                                  Tastenbild{"cmdKleiner", "seite/kleiner"},
                                  Tastenbild{"cmdGroesser", "seite/groesser"},
                                  Tastenbild{"cmdBreite", "seite/breite"},
                                  Tastenbild{"cmdGanzeSeite", "seite/ganz"},
                                  Tastenbild{"cmdFundZurueck", "seite/fund_zurueck"},
                                  Tastenbild{"cmdFundWeiter", "seite/fund_weiter"}};

} // namespace

Dokumentleser::Dokumentleser(QWidget* eltern) : QWidget(eltern) {
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(2);
    LeisteBauen();
    spalte->addWidget(leiste_);
    suchzeile_ = SuchzeileBauen();
    spalte->addWidget(suchzeile_);
    TastenbilderSetzen(this, tastenbilder);
    auto* zusatz = Zusatz<Dokumentzusatz>(QStringLiteral("feldkranz_pdf"));
    if (zusatz != nullptr) {
        ansicht_ = zusatz->Bauen(this);
        ansicht_->Steuerelement()->setObjectName(QStringLiteral("seitenansicht"));
        ansicht_->Steuerelement()->setAccessibleName(Anzeige(periphertexte::seitenName));
        ansicht_->BeiWechsel([this] { Auffrischen(); });
        setFocusProxy(ansicht_->Steuerelement());
        spalte->addWidget(ansicht_->Steuerelement(), 1);
    }
    lblStand_ = new QLabel(this);
    lblStand_->setObjectName(QStringLiteral("lblStand"));
    lblStand_->setTextFormat(Qt::PlainText); // what was looked for stands in it
    lblStand_->setWordWrap(true);
    spalte->addWidget(lblStand_);
    cmdSystemleser_ = SystemleserBauen();
    if (ansicht_ == nullptr) {
        leiste_->hide(); // nothing to turn, to size or to search
        suchzeile_->hide();
        setFocusProxy(cmdSystemleser_);
        spalte->addWidget(cmdSystemleser_, 0, Qt::AlignLeft);
        spalte->addStretch(1);
    }
    TastenVerbinden();
    Auffrischen();
}

QPushButton* Dokumentleser::SystemleserBauen() {
    auto* knopf = new QPushButton(Anzeige(periphertexte::imSystemleser), this);
    knopf->setObjectName(QStringLiteral("cmdSystemleser"));
    knopf->setVisible(ansicht_ == nullptr);
    connect(knopf, &QPushButton::clicked, this, [this] {
        if (!DokumentUebergeben(datei_)) {
            lblStand_->setText(Anzeige(periphertexte::keinSystemleser));
        }
    });
    return knopf;
}

QToolButton* Dokumentleser::TasteBauen(const char* name, std::string_view aufschrift,
                                       void (Dokumentleser::*routine)()) {
    auto* knopf = new QToolButton(this);
    knopf->setObjectName(QLatin1String(name));
    knopf->setText(Anzeige(aufschrift));
    knopf->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    knopf->setIconSize(QSize(bildkante, bildkante));
    knopf->setAutoRaise(true);
    knopf->setFocusPolicy(Qt::TabFocus);
    connect(knopf, &QToolButton::clicked, this, routine);
    return knopf;
}

void Dokumentleser::LeisteBauen() {
    leiste_ = new QToolBar(this); // what a narrow window has no room for goes into its menu
    leiste_->setObjectName(QStringLiteral("leisteSeiten"));
    leiste_->setIconSize(QSize(bildkante, bildkante)); // of its buttons, whatever they say themselves
    leiste_->addWidget(TasteBauen("cmdSeiteZurueck", "Zurück", &Dokumentleser::Zurueck));
    leiste_->addWidget(TasteBauen("cmdSeiteWeiter", "Weiter", &Dokumentleser::Weiter));
    leiste_->addWidget(new QLabel(Anzeige(periphertexte::seite), this));
    txtSeite_ = new QLineEdit(this);
    txtSeite_->setObjectName(QStringLiteral("txtSeite"));
    txtSeite_->setAccessibleName(Anzeige(periphertexte::seite));
    txtSeite_->setFixedWidth(seitenfeldBreite);
    txtSeite_->setValidator(new QIntValidator(0, 99999, txtSeite_));
    leiste_->addWidget(txtSeite_);
    lblSeiten_ = new QLabel(this);
    lblSeiten_->setObjectName(QStringLiteral("lblSeiten"));
    lblSeiten_->setMinimumWidth(seitenfeldBreite); // the bar doesn't make room for a longer text later
    leiste_->addWidget(lblSeiten_);
    leiste_->addSeparator();
    QToolButton* kleiner = TasteBauen("cmdKleiner", "−", &Dokumentleser::Kleiner);
    QToolButton* groesser = TasteBauen("cmdGroesser", "+", &Dokumentleser::Groesser);
    kleiner->setAccessibleName(Anzeige(periphertexte::kleiner)); // a sign alone can't be read out
    groesser->setAccessibleName(Anzeige(periphertexte::groesser));
    leiste_->addWidget(kleiner);
    leiste_->addWidget(groesser);
    for (QToolButton* passung : {TasteBauen("cmdBreite", "Breite", &Dokumentleser::Breite),
                                 TasteBauen("cmdGanzeSeite", "Ganze Seite", &Dokumentleser::GanzeSeite)}) {
        passung->setCheckable(true);
        leiste_->addWidget(passung);
    }
    connect(txtSeite_, &QLineEdit::returnPressed, this, &Dokumentleser::SeiteGewaehlt);
}

QWidget* Dokumentleser::SuchzeileBauen() {
    auto* zeile = new QWidget(this);
    zeile->setObjectName(QStringLiteral("suchzeile"));
    auto* reihe = new QHBoxLayout(zeile);
    reihe->setContentsMargins(4, 0, 4, 0);
    auto* lblSuche = new QLabel(Anzeige(periphertexte::suchen), zeile);
    lblSuche->setObjectName(QStringLiteral("lblSuche"));
    txtSuche_ = new QLineEdit(zeile);
    txtSuche_->setObjectName(QStringLiteral("txtSuche"));
    txtSuche_->setMaximumWidth(suchfeldBreite);
    txtSuche_->setClearButtonEnabled(true);
    lblSuche->setBuddy(txtSuche_);
    reihe->addWidget(lblSuche);
    reihe->addWidget(txtSuche_, 1);
    reihe->addWidget(TasteBauen("cmdFundZurueck", "Vorige", &Dokumentleser::VorigerFund));
    reihe->addWidget(TasteBauen("cmdFundWeiter", "Nächste", &Dokumentleser::NaechsterFund));
    reihe->addStretch();
    verzoegerung_.setSingleShot(true);
    verzoegerung_.setInterval(tipppause);
    connect(txtSuche_, &QLineEdit::textChanged, this, [this] { verzoegerung_.start(); });
    connect(&verzoegerung_, &QTimer::timeout, this, &Dokumentleser::Suchen);
    connect(txtSuche_, &QLineEdit::returnPressed, this, &Dokumentleser::NaechsterFund);
    return zeile;
}

void Dokumentleser::Kurztaste(const QKeySequence& taste, void (Dokumentleser::*routine)()) {
    auto* kurztaste = new QShortcut(taste, this);
    kurztaste->setContext(Qt::WidgetWithChildrenShortcut);
    connect(kurztaste, &QShortcut::activated, this, routine);
}

void Dokumentleser::TastenVerbinden() {
    if (ansicht_ == nullptr) {
        return;
    }
    Kurztaste(Qt::CTRL | Qt::Key_F, &Dokumentleser::SucheBeginnen);
    Kurztaste(Qt::Key_Escape, &Dokumentleser::SucheVerlassen);
    Kurztaste(Qt::Key_F3, &Dokumentleser::NaechsterFund);
    Kurztaste(Qt::SHIFT | Qt::Key_F3, &Dokumentleser::VorigerFund);
    Kurztaste(Qt::SHIFT | Qt::Key_Return, &Dokumentleser::VorigerFund);
    Kurztaste(Qt::CTRL | Qt::Key_Plus, &Dokumentleser::Groesser);
    Kurztaste(Qt::CTRL | Qt::Key_Minus, &Dokumentleser::Kleiner);
    Kurztaste(Qt::CTRL | Qt::Key_0, &Dokumentleser::Breite);
    Kurztaste(Qt::CTRL | Qt::Key_1, &Dokumentleser::GanzeSeite);
    Kurztaste(Qt::CTRL | Qt::Key_PageUp, &Dokumentleser::Zurueck);
    Kurztaste(Qt::CTRL | Qt::Key_PageDown, &Dokumentleser::Weiter);
}

bool Dokumentleser::Laden(const QString& datei) {
    datei_ = datei;
    txtSuche_->clear();
    Suchen();
    geladen_ = ansicht_ != nullptr && ansicht_->Laden(datei);
    Auffrischen();
    return geladen_;
}

void Dokumentleser::Zurueck() {
    ansicht_->SeiteZeigen(ansicht_->Seite() - 1);
}

void Dokumentleser::Weiter() {
    ansicht_->SeiteZeigen(ansicht_->Seite() + 1);
}

void Dokumentleser::SeiteGewaehlt() {
    ansicht_->SeiteZeigen(txtSeite_->text().toInt());
    ansicht_->Steuerelement()->setFocus();
    Auffrischen(); // a number beyond the pages reads as the page that is shown
}

void Dokumentleser::Kleiner() {
    ansicht_->GroesseSetzen(ansicht_->Groesse() / stufe);
}

void Dokumentleser::Groesser() {
    ansicht_->GroesseSetzen(ansicht_->Groesse() * stufe);
}

void Dokumentleser::Breite() {
    ansicht_->Einpassen(Passung::Breite);
}

void Dokumentleser::GanzeSeite() {
    ansicht_->Einpassen(Passung::Seite);
}

// Where the reader is stands below the pages; why there is nothing to read stands where they would begin: the
// list of forms may cover the foot of the window.
void Dokumentleser::StandEinordnen() {
    if (ansicht_ == nullptr) {
        return;
    }
    auto* spalte = qobject_cast<QVBoxLayout*>(layout());
    const int platz = geladen_ ? spalte->count() - 1 : spalte->indexOf(suchzeile_) + 1;
    if (spalte->indexOf(lblStand_) != platz) {
        spalte->removeWidget(lblStand_);
        spalte->insertWidget(platz, lblStand_);
    }
}

void Dokumentleser::Auffrischen() {
    if (lblStand_ == nullptr) {
        return; // the plug-in reports while the control is still being built
    }
    StandEinordnen();
    leiste_->setEnabled(geladen_);
    suchzeile_->setEnabled(geladen_);
    if (!geladen_) {
        txtSeite_->clear();
        lblSeiten_->clear();
        lblStand_->setText(
            Anzeige(ansicht_ == nullptr ? periphertexte::kannNichtZeigen : periphertexte::nichtLesbar));
        return;
    }
    const std::string seite = std::to_string(ansicht_->Seite());
    const std::string seiten = std::to_string(ansicht_->Seiten());
    std::string stand = Einsetzen(periphertexte::seiteVon,
                                  {seite, seiten, std::to_string(std::lround(ansicht_->Groesse() * 100))});
    if (fund_ >= 0) {
        stand += Einsetzen(periphertexte::fundVon, {std::to_string(fund_ + 1), std::to_string(funde_)});
    } else if (!gesucht_.isEmpty()) {
        stand += Einsetzen(periphertexte::keinFund, {Modelltext(gesucht_)});
    }
    lblStand_->setText(Anzeige(stand));
    txtSeite_->setText(Anzeige(seite));
    lblSeiten_->setText(Anzeige(Einsetzen(periphertexte::von, {seiten})));
    findChild<QToolButton*>(QStringLiteral("cmdSeiteZurueck"))->setEnabled(ansicht_->Seite() > 1);
    findChild<QToolButton*>(QStringLiteral("cmdSeiteWeiter"))
        ->setEnabled(ansicht_->Seite() < ansicht_->Seiten());
    findChild<QToolButton*>(QStringLiteral("cmdBreite"))
        ->setChecked(ansicht_->Einpassung() == Passung::Breite);
    findChild<QToolButton*>(QStringLiteral("cmdGanzeSeite"))
        ->setChecked(ansicht_->Einpassung() == Passung::Seite);
}
