#include "sheets/frmVorschau.h"

#include "core/lesehilfe.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "forms/formularfolger.h"
#include "persistence/extrasdatei.h"
#include "printing/druckschrift.h"
#include "sheets/blatthinweis.h"
#include "sheets/texte.h"
#include "sheets/vorschaumaler.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::milliseconds sammelzeit(10);
constexpr double lupenschritt = 1.25;

std::string Schluessel(Formart art) {
    return art == Formart::Test ? "Vorschau.BlattHB" : "Vorschau.BlattFK";
}

bool HatAntworten(const Blattvorlage& vorlage) {
    const auto* test = std::get_if<Testvorlage>(&vorlage);
    return test != nullptr && std::ranges::any_of(test->druck.zeilen, [](const Testdruckzeile& zeile) {
               return !zeile.antwort.empty();
           });
}

} // namespace

frmVorschau::frmVorschau() : drucker_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    SystemschriftGeben(*this);
    drucker_->setOutputFormat(QPrinter::PdfFormat); // nothing is ever written
    drucker_->setPageSize(QPageSize(QPageSize::A4));
    drucker_->setFullPage(true);
    schriften_ = std::make_unique<Druckschriften>(*drucker_);
    Aufbauen();
    Verbinden();
    chkOhneTitel_->setChecked(ExtraWert("Vorschau.OhneTitel") == "1");
    chkMitAntworten_->setChecked(ExtraWert("Vorschau.MitAntworten") == "1");
}

frmVorschau::~frmVorschau() = default;

void frmVorschau::Verbinden() {
    folger_ = new Formularfolger(sammelzeit, this);
    connect(folger_, &Formularfolger::nachsehen, this, &frmVorschau::Auffrischen);
    connect(picBlatt_, &QPrintPreviewWidget::paintRequested, this, &frmVorschau::Malen);
    connect(cmbBlatt_, &QComboBox::currentIndexChanged, this, [this] {
        Auffrischen();
        AnsichtEinstellen();
    });
    connect(chkOhneTitel_, &QCheckBox::toggled, this, &frmVorschau::Auffrischen);
    connect(chkMitAntworten_, &QCheckBox::toggled, this, &frmVorschau::Auffrischen);
    // What is printed is what is seen: as it stands now, whatever comes while a dialog is open.
    connect(cmdDrucken_, &QPushButton::clicked, this, [this] {
        Auffrischen();
        if (const auto vorlage = vorlage_; vorlage) {
            BlattDrucken(*vorlage, Wunsch());
        }
    });
    connect(cmdAlsPDF_, &QPushButton::clicked, this, [this] {
        Auffrischen();
        if (const auto vorlage = vorlage_; vorlage) {
            BlattAlsPdf(*vorlage, Wunsch(), this);
        }
    });
    const auto schliessen = [this] { (parentWidget() != nullptr ? parentWidget() : this)->close(); };
    connect(cmdAbbruch_, &QPushButton::clicked, this, schliessen);
    const auto* esc = new QShortcut(Qt::Key_Escape, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(esc, &QShortcut::activated, this, schliessen);
    LupenVerbinden();
}

void frmVorschau::LupenVerbinden() {
    connect(cmdGanz_, &QToolButton::clicked, picBlatt_, &QPrintPreviewWidget::fitInView);
    connect(cmdBreite_, &QToolButton::clicked, picBlatt_, &QPrintPreviewWidget::fitToWidth);
    connect(cmdKleiner_, &QToolButton::clicked, picBlatt_, [this] { picBlatt_->zoomOut(lupenschritt); });
    connect(cmdGroesser_, &QToolButton::clicked, picBlatt_, [this] { picBlatt_->zoomIn(lupenschritt); });
}

// After a dialog: paper, gap or printer may be another.
bool frmVorschau::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::WindowActivate) {
        folger_->Bald();
    }
    return QWidget::event(ereignis);
}

void frmVorschau::closeEvent(QCloseEvent* ereignis) {
    Behalten();
    ereignis->accept();
}

void frmVorschau::Behalten() const {
    if (angeboten_ != Formart::Keine) {
        ExtraSetzen(Schluessel(angeboten_), Modelltext(cmbBlatt_->currentText()));
    }
    ExtraSetzen("Vorschau.OhneTitel", chkOhneTitel_->isChecked() ? "1" : "0");
    ExtraSetzen("Vorschau.MitAntworten", chkMitAntworten_->isChecked() ? "1" : "0");
}

// The sheets of that kind of form, with the one of the last evening chosen.
void frmVorschau::BlaetterAnbieten(Formart art) {
    if (art == angeboten_) {
        return;
    }
    if (angeboten_ != Formart::Keine) {
        Behalten();
    }
    angeboten_ = art;
    const QSignalBlocker still(cmbBlatt_);
    cmbBlatt_->clear();
    const Blattart letztes = BlattartAus(art, ExtraWert(Schluessel(art)));
    for (const Blattart blatt : Blattarten(art)) {
        cmbBlatt_->addItem(Anzeige(Blattname(blatt)));
        if (blatt == letztes) {
            cmbBlatt_->setCurrentIndex(cmbBlatt_->count() - 1);
        }
    }
    AnsichtEinstellen();
}

Blattwunsch frmVorschau::Wunsch() const {
    const Blattart blatt = BlattartAus(angeboten_, Modelltext(cmbBlatt_->currentText()));
    return {blatt, chkOhneTitel_->isChecked(), chkMitAntworten_->isChecked()};
}

void frmVorschau::Auffrischen() {
    folger_->Nachgesehen();
    std::optional<Blattvorlage> jetzt = VorlageJetzt();
    if (jetzt) {
        BlaetterAnbieten(FormartVon(*jetzt));
    }
    const Blattwunsch wunsch = Wunsch();
    fertig_ = jetzt ? BlattFertigen(*jetzt, wunsch) : Fertigblatt();
    vorlage_ = std::move(jetzt);
    wunsch_ = wunsch;
    WahlZeigen();
    drucker_->setPageOrientation(fertig_.blatt.quer ? QPageLayout::Landscape : QPageLayout::Portrait);
    picBlatt_->updatePreview();
}

void frmVorschau::WahlZeigen() {
    const bool bogen = wunsch_->blatt == Blattart::Bogen;
    const bool test = angeboten_ == Formart::Test;
    const bool da = !fertig_.blatt.seiten.empty();
    chkOhneTitel_->setVisible(!test);
    chkOhneTitel_->setEnabled(bogen && da);
    chkMitAntworten_->setVisible(test);
    chkMitAntworten_->setEnabled(bogen && da && HatAntworten(*vorlage_));
    cmbBlatt_->setEnabled(vorlage_.has_value());
    cmdDrucken_->setEnabled(da);
    cmdAlsPDF_->setEnabled(da);
    lblBlattHinweis_->setText(Hinweis());
}

// Boards and cards are looked at as a whole, texts to read as wide as the window, one below the other.
void frmVorschau::AnsichtEinstellen() {
    const Blattart blatt = Wunsch().blatt;
    const bool lesen = blatt == Blattart::Antwortbogen;
    picBlatt_->setViewMode(blatt == Blattart::Bogen || lesen ? QPrintPreviewWidget::SinglePageView
                                                             : QPrintPreviewWidget::AllPagesView);
    picBlatt_->setZoomMode(lesen ? QPrintPreviewWidget::FitToWidth : QPrintPreviewWidget::FitInView);
}

QString frmVorschau::Hinweis() const {
    return Anzeige(!vorlage_ ? std::string(blatttexte::nichtsOffen)
                             : Blatthinweis(fertig_.blatt, wunsch_->blatt));
}

void frmVorschau::Malen(QPrinter* drucker) const {
    VorschauMalen(*drucker, fertig_, *schriften_);
}
