#include "filetools/frmFKformulare.h"

#include "core/bilder.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/zustand.h"
#include "filetools/formularlistetexte.h"
#include "filetools/ordnerwaechter.h"
#include "persistence/oeffnen.h"
#include "quizform/fkformular.h"
#include "testform/hbformular.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <algorithm>
#include <array>

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

} // namespace

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

void frmFKformulare::Oeffnen() {
    if (Markiert().empty()) {
        return;
    }
    if (vorschau_->isActive()) {
        vorschau_->stop();
        Vorschau(); // a key was faster; behind the opening it would speak over what that says
    }
    DateiUebernehmen();
    QWidget* haupt = Hauptfenster();
    if (FormularErsetzen() && haupt != nullptr) {
        haupt->activateWindow(); // the user goes on in the form
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
