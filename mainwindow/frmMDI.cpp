#include "mainwindow/frmMDI.h"

#include "core/bilder.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "core/ziehen.h"
#include "editor/editor.h"
#include "editor/frmEditor.h"
#include "filetools/formularliste.h"
#include "forms/formularjournal.h"
#include "forms/oeffnen.h"
#include "mainwindow/ablage.h"
#include "mainwindow/extras.h"
#include "mainwindow/fortschrittsbalken.h"
#include "mainwindow/hilfepanel.h"
#include "mainwindow/hinweistexte.h"
#include "mainwindow/listenfalte.h"
#include "mainwindow/menueleiste.h"
#include "mainwindow/stationen.h"
#include "mainwindow/texte.h"
#include "mainwindow/werkzeugleisten.h"
#include "periphery/tray.h"
#include "persistence/einstellungenladen.h"
#include "rules/spielwerte.h"
#include "start/einrichtungsbalken.h"
#include "tooltips/hinweise.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QPointer<frmMDI> hauptfenster;

constexpr Twips kranzHoehe = 495_tw;
constexpr Twips hilfeHoehe = 375_tw;
constexpr Twips felderBreite = 3615_tw;
constexpr int tippBreite = 180; // pixels

// Unsaved work goes ahead: what else there is to tell waits for the next start then.
void StandMelden() {
    const std::string vorher = HilfeStand();
    JournaleMelden();
    if (HilfeStand() == vorher) {
        DanebenliegendesMelden();
    }
}

Panel* FelderPanelBauen(QWidget* pnlHilfe) {
    auto* panel = new Panel(pnlHilfe, QStringLiteral("pnlFKFelder"));
    panel->setFont(Schrift(7.5_pt));
    panel->hide();
    return panel;
}

} // namespace

frmMDI::frmMDI() {
    hauptfenster = this;
    setObjectName(QStringLiteral("frmMDI"));
    setWindowTitle(Anzeige(kerntexte::hauptfenster));
    setWindowIcon(Programmzeichen());
    TippsEinrichten(this, tippBreite);
    FlaechenBauen();
    WerkzeugleistenBauen(pnlKranz_);
    AblageBauen(pnlHilfe_);
    FortschrittsbalkenBauen(pnlHilfe_);
    MenueleisteBauen(*this);
    StationenEinrichten(*this);
    ListenfalteEinrichten(*this);
    HinweiseSetzen(*this, kerntexte::haupthinweise);
    connect(kindflaeche_, &QMdiArea::subWindowActivated, this, &frmMDI::KindGewechselt);
    findChild<QAction*>(QStringLiteral("mBackUp"))->setChecked(Spiel.OptionDatei);
    BefehleFreigeben(Formart::Quiz, false); // the forms bring them into use
    BefehleFreigeben(Formart::Test, false);
    DateilisteAnzeigen();
    setMinimumSize(640, 400);
    resize(Bildschirmgroesse(this) * 3 / 4); // the size for a user who takes it out of full screen
    Anordnen();
}

frmMDI::~frmMDI() {
    ExtrasAbbauen(*this);
    kindflaeche_->disconnect(this); // child windows that go with it have nobody to tell any more
}

void frmMDI::FlaechenBauen() {
    auto* mitte = new QWidget(this);
    auto* anordnung = new QVBoxLayout(mitte);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->setSpacing(0);
    pnlKranz_ = new Panel(mitte, QStringLiteral("pnlKranz"));
    pnlKranz_->setFixedHeight(Pixel(kranzHoehe));
    kindflaeche_ = new QMdiArea(mitte);
    kindflaeche_->setObjectName(QStringLiteral("kindflaeche"));
    kindflaeche_->setBackground(QColor(166, 160, 148));
    kindflaeche_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    kindflaeche_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    TrayVerbinden(kindflaeche_);
    pnlHilfe_ = new Hilfepanel(mitte);
    pnlHilfe_->setFixedHeight(Pixel(hilfeHoehe));
    pnlFKFelder_ = FelderPanelBauen(pnlHilfe_);
    KeinZiel(pnlFKFelder_);
    auto* picSystray = new QLabel(pnlHilfe_); // carries the picture of the tray icon, out of sight
    picSystray->setObjectName(QStringLiteral("picSystray"));
    picSystray->setPixmap(QApplication::windowIcon().pixmap(16));
    picSystray->hide();
    anordnung->addWidget(pnlKranz_);
    anordnung->addWidget(kindflaeche_, 1);
    anordnung->addWidget(pnlHilfe_);
    setCentralWidget(mitte);
}

void frmMDI::Anordnen() {
    WerkzeugleistenAnordnen(pnlKranz_);
    AblageAnordnen();
    TwipsGeometrie(pnlFKFelder_, TwipsAus(pnlHilfe_->width()) - 3675_tw, 45_tw, felderBreite, 285_tw);
}

void frmMDI::resizeEvent(QResizeEvent* ereignis) {
    QMainWindow::resizeEvent(ereignis);
    // The layout gives the panels their width only now.
    centralWidget()->layout()->activate();
    Anordnen();
}

void frmMDI::closeEvent(QCloseEvent* ereignis) {
    // Each child's own closing question runs, and can keep the window; nothing else is asked. The editor goes
    // last, and asks first: a form that stays would come too late for a text that has gone.
    ereignis->ignore();
    if (!EditorTextGesichert()) {
        return;
    }
    const QWidget* editor = EditorFenster();
    const auto bleibt = [editor](const QMdiSubWindow* kind) { return kind->widget() == editor; };
    const QList<QMdiSubWindow*> kinder = kindflaeche_->subWindowList();
    for (QMdiSubWindow* kind : kinder) {
        if (!bleibt(kind)) {
            kind->close();
        }
    }
    const QList<QMdiSubWindow*> rest = kindflaeche_->subWindowList();
    if (std::ranges::all_of(rest, bleibt)) {
        EditorEntladen();
        ereignis->accept();
        QCoreApplication::quit();
    }
}

void frmMDI::KindGewechselt(const QMdiSubWindow* kind) {
    if (kind == nullptr && QApplication::activeWindow() != nullptr && QApplication::activeWindow() != this &&
        !kindflaeche_->subWindowList().isEmpty()) {
        return; // a tool window has the focus, the child is in front all the same
    }
    Formularfenster* form = OffenesFormular();
    const bool vorn = form != nullptr && AktivesKind() == form->fenster();
    FormularmenueZeigen(*this, vorn ? form->art() : Formart::Keine);
}

frmMDI* MDIFenster() {
    return hauptfenster;
}

QWidget* Hauptfenster() {
    return hauptfenster;
}

void HauptfensterZeigen() {
    SanduhrZeigen();
    QDir::setCurrent(
        NativerPfad(Stand.AppPfad + std::string(kerntexte::kranzordner))); // without it all goes on too
    try {
        EinstellungenLesen();
    } catch (const Laufzeitfehler&) {
        // A missing or damaged settings file leaves what was read so far, without a word.
    }
    auto* fenster = new frmMDI;
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->showMaximized();
    FormularlisteOeffnetMit(FormularErsetzen);
    FormularlisteMitStartZeigen();
    NormalerZeiger();
    QTimer::singleShot(0, fenster, StandMelden); // behind what the list says as it comes up
}
