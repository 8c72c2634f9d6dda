#include "catalogue/frmAuswahl.h"

#include "catalogue/auswahl.h"
#include "catalogue/auswahllisten.h"
#include "catalogue/auswahltexte.h"
#include "catalogue/blattfall.h"
#include "catalogue/katalogladen.h"
#include "catalogue/muell.h"
#include "catalogue/spaltenmodell.h"
#include "core/bilder.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "core/ziehen.h"
#include "tooltips/hinweise.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>

#include <span>
#include <utility>

namespace {

QPointer<frmAuswahl> offen;
std::function<void(const std::string&)> beiAuswahl;

// All twenty places, the empty ones too, and none of them picked.
void Fuellen(QComboBox* liste, std::span<const std::string> plaetze) {
    const QSignalBlocker still(liste);
    liste->clear();
    for (const std::string& platz : plaetze.subspan(1)) {
        liste->addItem(Anzeige(platz));
    }
    liste->setCurrentIndex(-1);
}

// Picks the entry of that text, also if it is picked already. False where there is none.
bool Waehlen(QComboBox* liste, std::string_view text) {
    const int stelle = liste->findText(Anzeige(text));
    {
        const QSignalBlocker still(liste);
        liste->setCurrentIndex(-1);
    }
    liste->setCurrentIndex(stelle);
    return stelle >= 0;
}

} // namespace

frmAuswahl::frmAuswahl(QWidget* eltern) : QWidget(eltern, Qt::Tool) {
    setObjectName(QStringLiteral("frmAuswahl"));
    setWindowTitle(Anzeige(auswahltexte::fenstertitel));
    setWindowIcon(Bildzeichen("leiste/auswahl"));
    setAttribute(Qt::WA_DeleteOnClose);
    Aufbauen();
    KeinZiel(this);
    EreignisseVerbinden();
    HinweiseSetzen(*this, auswahltexte::hinweise);
    Einpassen();
    ThemenLaden();
    Fuellen(cmbThemen_, Katalog.ThemenListe);
}

void frmAuswahl::EreignisseVerbinden() {
    BeiWahl(cmbThemen_, "AUSWAHL : cmbThemen_Click", [this] { ThemaGewaehlt(); });
    BeiWahl(cmbUnter_, "AUSWAHL : cmbUnter_Click", [this] { UnterthemaGewaehlt(); });
    BeiWahl(cmbFrage_, "AUSWAHL : cmbFrage_Click", [this] { FrageGewaehlt(); });
    txtFrage_->viewport()->installEventFilter(this);
    txtFrage_->installEventFilter(this);
    TastenEinrichten(txtFrage_, [this](Qt::KeyboardModifiers) { FrageZiehen(); });
}

void frmAuswahl::ThemaGewaehlt() {
    UnterthemenLaden(Modelltext(cmbThemen_->currentText()));
    Fuellen(cmbUnter_, Katalog.UnterthemenListe);
}

// The lists take the questions in one go, and none of them is picked.
void frmAuswahl::ListenSetzen(std::shared_ptr<const Fragenliste> liste) {
    const QSignalBlocker still(cmbFrage_); // a list filled anew would pick its first entry by itself
    fragen_ = std::move(liste);
    for (Spaltenmodell* spalte : spalten_) {
        spalte->setListe(fragen_);
    }
    cmbFrage_->setCurrentIndex(-1);
}

void frmAuswahl::UnterthemaGewaehlt() {
    ListenSetzen(std::make_shared<Fragenliste>());
    for (QLineEdit* zeile : {txtNr_, txtPunkte_}) {
        zeile->clear();
    }
    for (Textfeld* feld : {txtFrage_, txtAntwort_}) {
        feld->setText({});
    }
    auto liste = std::make_shared<Fragenliste>();
    FragenLaden(Modelltext(cmbThemen_->currentText()), Modelltext(cmbUnter_->currentText()), *liste);
    ListenSetzen(std::move(liste));
}

void frmAuswahl::FrageGewaehlt() {
    const auto gewaehlt = static_cast<std::size_t>(cmbFrage_->currentIndex());
    if (gewaehlt >= fragen_->anzahl()) {
        return;
    }
    const std::string_view frage = fragen_->wert(gewaehlt, Spalte::Frage);
    txtFrage_->setText(frage);
    // Meant: of questions with the same text the last one gives the answer, whichever was picked.
    std::size_t letzte = gewaehlt;
    for (std::size_t i = 0; i < fragen_->anzahl(); ++i) {
        if (fragen_->wert(i, Spalte::Frage) == frage) {
            letzte = i;
        }
    }
    txtAntwort_->setText(fragen_->wert(letzte, Spalte::Antwort));
    txtNr_->setText(Anzeige(fragen_->wert(letzte, Spalte::Nr)));
    txtPunkte_->setText(Anzeige(fragen_->wert(letzte, Spalte::Punkte)));
    if (beiAuswahl) {
        beiAuswahl(std::string(frage));
    }
}

void frmAuswahl::FrageZeigen(std::string_view thema, std::string_view unterthema, std::string_view frage,
                             std::size_t nr) {
    if (Waehlen(cmbThemen_, thema) && Waehlen(cmbUnter_, unterthema) && nr < fragen_->anzahl() &&
        fragen_->wert(nr, Spalte::Frage) == frage) {
        cmbFrage_->setCurrentIndex(static_cast<int>(nr));
    }
}

// Also an empty field begins a drag.
void frmAuswahl::FrageZiehen() {
    const auto wert = [this]() -> Ziehwert {
        return {Zugart::Auswahl, Formart::Keine, 0, txtFrage_->text(), txtAntwort_->text()};
    };
    Ziehen(txtFrage_, wert(),
           [this, wert] { return txtFrage_->text().empty() ? std::nullopt : std::optional(wert()); });
}

// The way by key: the question is held, and F8 puts it where the user goes in the main window.
void frmAuswahl::FrageAufnehmen() {
    if (!txtFrage_->text().empty() && OhneMausAufnehmen([this] { FrageZiehen(); }) &&
        Hauptfenster() != nullptr) {
        Hauptfenster()->activateWindow();
    }
}

std::string frmAuswahl::frage() const {
    return txtFrage_->text();
}

std::string frmAuswahl::antwort() const {
    return txtAntwort_->text();
}

void frmAuswahl::BlattFallenLassen() {
    blattfall_->Anstossen();
}

bool frmAuswahl::eventFilter(QObject* objekt, QEvent* ereignis) {
    const bool druck =
        ereignis->type() == QEvent::MouseButtonPress || ereignis->type() == QEvent::MouseButtonDblClick;
    if (druck && objekt == txtFrage_->viewport() &&
        static_cast<QMouseEvent*>(ereignis)->button() == Qt::LeftButton) {
        FrageZiehen();
        return true;
    }
    if (ereignis->type() == QEvent::KeyPress && objekt == txtFrage_) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if (taste == Qt::Key_Return || taste == Qt::Key_Enter) {
            FrageAufnehmen();
            return true;
        }
    }
    return QWidget::eventFilter(objekt, ereignis);
}

void frmAuswahl::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(ereignis);
}

void frmAuswahl::closeEvent(QCloseEvent* ereignis) {
    if (offen == this) {
        offen = nullptr; // the next opening makes a new window, with empty lists
    }
    QWidget::closeEvent(ereignis);
}

void AuswahlZeigen() {
    if (offen == nullptr) {
        offen = new frmAuswahl(Hauptfenster());
    }
    offen->show();
    offen->raise();
    offen->activateWindow();
}

frmAuswahl* AuswahlOffen() {
    return offen;
}

std::string AuswahlAntwort() {
    return offen != nullptr ? offen->antwort() : std::string();
}

std::string AuswahlFrage() {
    return offen != nullptr ? offen->frage() : std::string();
}

void AuswahlFrageZeigen(std::string_view thema, std::string_view unterthema, std::string_view frage,
                        std::size_t nr) {
    AuswahlZeigen();
    offen->FrageZeigen(thema, unterthema, frage, nr);
}

void BeiAuswahl(std::function<void(const std::string& frage)> gewaehlt) {
    beiAuswahl = std::move(gewaehlt);
}
