#include "filetools/frmFKformulare.h"

#include "core/bilder.h"
#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/dateiaktionen.h"
#include "filetools/formularlistetexte.h"
#include "filetools/ordnerwaechter.h"
#include "persistence/oeffnen.h"
#include "quizform/fkformular.h"
#include "settings/einstellungen.h"
#include "testform/hbformular.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view quizTag = "FKFragen";
constexpr std::string_view testTag = "HBFragen";

struct Listenart {
    std::string_view tag;
    std::string_view ordner;
    Farbe grund;
    std::string_view formTyp;
};
constexpr std::array<Listenart, 2> arten{{{quizTag, listentexte::quizordner, {255, 255, 191}, "FK"},
                                          {testTag, listentexte::testordner, {191, 255, 191}, "Test"}}};

const Listenart& ArtFuer(std::string_view tag) {
    return tag == testTag ? arten.back() : arten.front();
}

void Faerben(QWidget* liste, Farbe grund) {
    QPalette palette = liste->palette();
    palette.setColor(QPalette::Base, Qfarbe(grund));
    liste->setPalette(palette);
}

bool FormularOffen() {
    return FKFragenOffen() != nullptr || HBFragenOffen() != nullptr;
}

} // namespace

frmFKformulare::Kopfzahlen frmFKformulare::Kopfzahlen::Jetzt() {
    return {FormTyp, FelderGesamt, FragenProWissen, AnzahlWissen};
}

void frmFKformulare::Kopfzahlen::Einsetzen() const {
    FormTyp = formTyp;
    FelderGesamt = felderGesamt;
    FragenProWissen = fragenProWissen;
    AnzahlWissen = anzahlWissen;
}

frmFKformulare::frmFKformulare(QWidget* eltern)
    : QWidget(eltern, Qt::Tool),
      ordner_(AppPfad + std::string(listentexte::quizordner)),
      muster_(listentexte::muster.front()) {
    setObjectName(QStringLiteral("frmFKformulare"));
    setWindowTitle(Anzeige(listentexte::fenstertitel));
    setWindowIcon(Bildzeichen("leiste/dateiliste"));
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("tag", Anzeige(quizTag)); // the quiz list is shown; the program's mode stays as it is
    vorschau_ = new QTimer(this);
    vorschau_->setSingleShot(true);
    waechter_ = new Ordnerwaechter(this, [this] { Auffrischen(false); });
    Aufbauen();
    Faerben(filDateiliste_, ArtFuer(quizTag).grund);
    Verbinden();
    // While a form is open only its own kind can be chosen.
    TastenSetzen(HBFragenOffen() == nullptr, FKFragenOffen() == nullptr);
    Einpassen();
}

void frmFKformulare::Verbinden() {
    connect(cmdNeuFK_, &QPushButton::clicked, this, [this] { ListeWaehlen(quizTag); });
    connect(cmdNeuHB_, &QPushButton::clicked, this, [this] { ListeWaehlen(testTag); });
    connect(cmdAbbruch_, &QPushButton::clicked, this, &QWidget::close);
    for (std::size_t i = 0; i < optPattern_.size(); ++i) {
        connect(optPattern_.at(i), &QRadioButton::clicked, this, [this, i] {
            MusterSetzen(i);
            Auffrischen(true);
        });
    }
    connect(filDateiliste_, &QListWidget::itemSelectionChanged, this, &frmFKformulare::Markieren);
    connect(filDateiliste_, &QListWidget::itemClicked, this, &frmFKformulare::DateiUebernehmen);
    // Behind the click that caused it: both may ask the user something.
    connect(filDateiliste_, &QListWidget::itemDoubleClicked, this, &frmFKformulare::Oeffnen,
            Qt::QueuedConnection);
    connect(vorschau_, &QTimer::timeout, this, &frmFKformulare::Vorschau);
}

void frmFKformulare::TastenSetzen(bool fk, bool hb) {
    cmdNeuFK_->setEnabled(fk);
    cmdNeuHB_->setEnabled(hb);
}

// The list of one kind of forms. It sets the mode of the program too, and that is meant.
void frmFKformulare::ListeWaehlen(std::string_view tag) {
    const Listenart& art = ArtFuer(tag);
    Faerben(filDateiliste_, art.grund);
    MusterSetzen(0);
    ordner_ = AppPfad + std::string(art.ordner);
    setProperty("tag", Anzeige(art.tag));
    if (QWidget* haupt = Hauptfenster(); haupt != nullptr) {
        haupt->setProperty("tag", Anzeige(art.tag));
    }
    FormTyp = art.formTyp;
    Auffrischen(true);
}

void frmFKformulare::MusterSetzen(std::size_t stelle) {
    optPattern_.at(stelle)->setChecked(true);
    muster_ = listentexte::muster.at(stelle);
}

void frmFKformulare::Auffrischen(bool melden) {
    waechter_->Beobachten(NativerPfad(ordner_)); // before reading, so that nothing slips between
    try {
        ListeFuellen(DateienIn(ordner_, muster_));
    } catch (const Laufzeitfehler& fehler) {
        ListeFuellen({});
        if (melden) {
            FehlerMelden(listentexte::ortDateiliste, fehler);
        }
    }
}

void frmFKformulare::ListeFuellen(std::vector<std::string> namen) {
    if (namen == namen_) {
        return;
    }
    namen_ = std::move(namen);
    const std::string markiert = Markiert();
    const int stelle = filDateiliste_->verticalScrollBar()->value();
    QStringList texte;
    texte.reserve(static_cast<qsizetype>(namen_.size()));
    std::ranges::transform(namen_, std::back_inserter(texte), [](const auto& n) { return Anzeige(n); });
    const QSignalBlocker still(filDateiliste_); // the preview stands as long as its file does
    filDateiliste_->clear();
    filDateiliste_->addItems(texte);
    const auto fund = std::ranges::find(namen_, markiert);
    if (!markiert.empty() && fund != namen_.end()) {
        filDateiliste_->setCurrentRow(static_cast<int>(fund - namen_.begin()));
        filDateiliste_->verticalScrollBar()->setValue(stelle);
    } else {
        vorschau_->stop();
        lblDateiInfo_->setText(Anzeige(listentexte::infoLeer));
    }
}

std::string frmFKformulare::Markiert() const {
    const auto markierte = filDateiliste_->selectedItems();
    return markierte.isEmpty() ? std::string() : markierte.first()->text().toStdString();
}

// The marked file becomes the program's current one, exactly the one of that name.
void frmFKformulare::DateiUebernehmen() {
    const Dateiort ort{ordner_, Markiert()};
    if (ort.name.empty()) {
        return;
    }
    DateiName = ort.pfad();
    AuswahlMerken(DateiName, ort.nativ());
}

void frmFKformulare::Markieren() {
    DateiUebernehmen();
    vorschau_->start(0);
}

// The reader changes the values in force. While a form is open they are its own, and a look at another file
// must not change what is saved with it: they come back. A file without such values goes on showing those of
// the file before.
void frmFKformulare::Vorschau() {
    if (Markiert().empty()) {
        return;
    }
    const Kopfzahlen eigene = Kopfzahlen::Jetzt();
    if (FormularOffen() && stand_ && stand_->eigene == eigene) {
        stand_->gezeigt.Einsetzen();
    }
    FormularInfoLesen();
    lblDateiInfo_->setText(Anzeige(Vorschautext(FelderGesamt, AnzahlWissen, FragenProWissen)));
    stand_.reset();
    if (FormularOffen()) {
        stand_ = {eigene, Kopfzahlen::Jetzt()};
        eigene.Einsetzen();
    }
}

void frmFKformulare::Oeffnen() {
    if (Markiert().empty()) {
        return;
    }
    if (vorschau_->isActive()) {
        vorschau_->stop();
        Vorschau(); // a key was faster; behind the opening it would speak over what that says
    }
    DateiUebernehmen();
    const QPointer<frmFKformulare> da = this;
    FormularErsetzen();
    if (da != nullptr && FormularOffen()) {
        Hauptfenster()->activateWindow();
    }
}

bool frmFKformulare::event(QEvent* ereignis) {
    // Also where a folder can't be watched the list is right when the user comes to it.
    if (ereignis->type() == QEvent::WindowActivate) {
        Auffrischen(false);
    }
    return QWidget::event(ereignis);
}

// The first arrow key marks the row on which the keyboard stands, which the toolkit would skip.
bool frmFKformulare::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == filDateiliste_ && ereignis->type() == QEvent::KeyPress && Markiert().empty()) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        if ((taste == Qt::Key_Down || taste == Qt::Key_Up) && filDateiliste_->count() > 0) {
            filDateiliste_->setCurrentRow(std::max(0, filDateiliste_->currentRow()),
                                          QItemSelectionModel::ClearAndSelect);
            return true;
        }
    }
    return QWidget::eventFilter(objekt, ereignis);
}

void frmFKformulare::closeEvent(QCloseEvent* ereignis) {
    Q_EMIT geschlossen();
    QWidget::closeEvent(ereignis);
}

void frmFKformulare::keyPressEvent(QKeyEvent* ereignis) {
    const int taste = ereignis->key();
    if (taste == Qt::Key_Escape) {
        close();
    } else if ((taste == Qt::Key_Return || taste == Qt::Key_Enter) && filDateiliste_->hasFocus()) {
        Oeffnen();
    } else {
        QWidget::keyPressEvent(ereignis);
    }
}
