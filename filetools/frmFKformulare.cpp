#include "filetools/frmFKformulare.h"

#include "core/bilder.h"
#include "core/fensterzeichen.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/lesehilfe.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "filetools/dateiaktionen.h"
#include "filetools/formularlistetexte.h"
#include "filetools/listentasten.h"
#include "filetools/ordnerwaechter.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <array>
#include <utility>

namespace {

struct Listenart {
    Formart art;
    std::string_view ordner;
    Farbe grund;
};
constexpr std::array<Listenart, 2> arten{{{Formart::Quiz, listentexte::quizordner, {255, 255, 191}},
                                          {Formart::Test, listentexte::testordner, {191, 255, 191}}}};

const Listenart& Listenzeile(Formart art) {
    return art == Formart::Test ? arten.back() : arten.front();
}

void Faerben(QWidget* liste, Farbe grund) {
    QPalette palette = liste->palette();
    palette.setColor(QPalette::Base, Qfarbe(grund));
    liste->setPalette(palette);
}

} // namespace

frmFKformulare::frmFKformulare(QWidget* eltern, std::function<bool(const std::string& pfad)> oeffnen)
    : QWidget(eltern, Qt::Tool),
      ordner_(Stand.AppPfad + std::string(listentexte::quizordner)),
      muster_(listentexte::muster.front()),
      oeffnen_(std::move(oeffnen)) {
    setObjectName(QStringLiteral("frmFKformulare"));
    SystemschriftGeben(*this);
    setWindowTitle(Anzeige(listentexte::fenstertitel));
    setWindowIcon(Bildzeichen("leiste/dateiliste"));
    setAttribute(Qt::WA_DeleteOnClose);
    setProperty("tag", Anzeige(Fensterzeichen(
                           Formart::Quiz))); // the quiz list is shown; the program's mode stays as it is
    vorschau_ = new QTimer(this);
    vorschau_->setSingleShot(true);
    waechter_ = new Ordnerwaechter(this, [this] { Auffrischen(false); });
    Aufbauen();
    Faerben(filDateiliste_, Listenzeile(Formart::Quiz).grund);
    Verbinden();
    // While a form is open only its own kind can be chosen.
    TastenSetzen(OffeneArt() != Formart::Test, OffeneArt() != Formart::Quiz);
    Einpassen();
}

void frmFKformulare::Verbinden() {
    connect(cmdNeuFK_, &QPushButton::clicked, this, [this] { ListeWaehlen(Formart::Quiz); });
    connect(cmdNeuHB_, &QPushButton::clicked, this, [this] { ListeWaehlen(Formart::Test); });
    connect(cmdAbbruch_, &QPushButton::clicked, this, &QWidget::close);
    for (std::size_t i = 0; i < optPattern_.size(); ++i) {
        connect(optPattern_.at(i), &QRadioButton::clicked, this, [this, i] {
            MusterSetzen(i);
            Auffrischen(true);
        });
    }
    connect(filDateiliste_, &QListWidget::itemSelectionChanged, this, &frmFKformulare::Markieren);
    // Behind the click that caused it: both may ask the user something.
    connect(filDateiliste_, &QListWidget::itemDoubleClicked, this, &frmFKformulare::Oeffnen,
            Qt::QueuedConnection);
    connect(vorschau_, &QTimer::timeout, this, &frmFKformulare::Vorschau);
}

void frmFKformulare::Rufen() {
    wartetAufFokus_ = !isActiveWindow();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    show();
    raise();
    activateWindow();
}

void frmFKformulare::TastenSetzen(bool fk, bool hb) {
    cmdNeuFK_->setEnabled(fk);
    cmdNeuHB_->setEnabled(hb);
}

// The list of one kind of forms. It sets the mode of the program too, and that is meant.
void frmFKformulare::ListeWaehlen(Formart art) {
    const Listenart& zeile = Listenzeile(art);
    Faerben(filDateiliste_, zeile.grund);
    MusterSetzen(0);
    ordner_ = Stand.AppPfad + std::string(zeile.ordner);
    const QString zeichen = Anzeige(Fensterzeichen(art));
    setProperty("tag", zeichen);
    if (QWidget* haupt = Hauptfenster(); haupt != nullptr) {
        haupt->setProperty("tag", zeichen);
    }
    gewaehlt_ = art;
    Stand.FormTyp = art;
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
    const Dateiort ort{ordner_, Markiert()};
    AuswahlMerken(ort.pfad(), ort.nativ()); // exactly the file of that name
    if (OffeneArt() == Formart::Keine && gewaehlt_) {
        Stand.FormTyp = *gewaehlt_; // a form that has gone, or the file dialog, has taken it back
    }
    QWidget* haupt = Hauptfenster();
    if (oeffnen_(ort.pfad()) && haupt != nullptr) {
        haupt->activateWindow(); // the user goes on in the form
    }
}

bool frmFKformulare::event(QEvent* ereignis) {
    // Also where a folder can't be watched the list is right when the user comes to it.
    if (ereignis->type() == QEvent::WindowActivate) {
        wartetAufFokus_ = false;
        Auffrischen(false);
    }
    return QWidget::event(ereignis);
}

bool frmFKformulare::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == filDateiliste_ && ereignis->type() == QEvent::KeyPress &&
        ErstenPfeilAusfuehren(filDateiliste_, *static_cast<QKeyEvent*>(ereignis))) {
        return true;
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
