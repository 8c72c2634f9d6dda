#include "search/frmSuche.h"

#include "core/hauptfenster.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "core/ziehen.h"
#include "persistence/extrasdatei.h"
#include "search/fragendienst.h"
#include "search/suchen.h"
#include "search/texte.h"
#include "search/treffermodell.h"
#include "search/treffertabelle.h"
#include "search/trefferweg.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <set>

namespace {

QPointer<frmSuche> offen;

// Low and at the right edge: the form's upper rows stay in sight, and so does the list of forms.
void Platzieren(QMdiSubWindow& rahmen) {
    constexpr QSize gewuenscht(940, 400);
    const QSize flaeche = rahmen.parentWidget()->size();
    const QSize groesse = gewuenscht.boundedTo(flaeche);
    const QSize rest = flaeche - groesse;
    rahmen.setGeometry(QRect(QPoint(rest.width(), rest.height()), groesse));
}

} // namespace

void frmSuche::Verbinden() {
    connect(txtSuche_, &QLineEdit::textChanged, this, &frmSuche::Eingegeben);
    connect(cmbThema_, &QComboBox::currentIndexChanged, this, &frmSuche::Eingegeben);
    connect(cmbPunkte_, &QComboBox::currentIndexChanged, this, &frmSuche::Eingegeben);
    connect(chkUnbenutzt_, &QCheckBox::toggled, this, &frmSuche::Eingegeben);
    txtSuche_->installEventFilter(this);
    connect(&Fragen(), &Fragendienst::bestandNeu, this, [this] {
        PunkteFuellen();
        Suchen();
    });
    connect(&Fragen(), &Fragendienst::benutzungNeu, this,
            [this] { chkUnbenutzt_->isChecked() ? Suchen() : modell_->NutzungNeu(); });
    TabelleVerbinden();
}

void frmSuche::TabelleVerbinden() {
    connect(tblTreffer_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& neu) { Gewaehlt(neu.row()); });
    connect(tblTreffer_, &Treffertabelle::gezogen, this, &frmSuche::Ziehen);
    connect(tblTreffer_, &Treffertabelle::bestaetigt, this, &frmSuche::Einsetzen);
    connect(tblTreffer_, &Treffertabelle::kopieren, this,
            [this](int zeile) { TrefferKopieren(modell_->treffer(zeile)); });
    connect(tblTreffer_, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& stelle) {
        TrefferZeigen(modell_->bestand(), modell_->nummer(stelle.row()));
    });
    TastenEinrichten(tblTreffer_, [this](Qt::KeyboardModifiers) {
        if (const QModelIndex stelle = tblTreffer_->currentIndex(); stelle.isValid()) {
            Ziehen(stelle.row());
        }
    });
}

void frmSuche::Wiederherstellen() {
    txtSuche_->setText(Anzeige(ExtraWert("Suche.Text")));
    const int thema = cmbThema_->findText(Anzeige(ExtraWert("Suche.Thema")));
    cmbThema_->setCurrentIndex(std::max(0, thema));
    chkUnbenutzt_->setChecked(ExtraWert("Suche.Unbenutzt") == "1");
}

void frmSuche::Behalten() const {
    ExtraSetzen("Suche.Text", txtSuche_->wert());
    ExtraSetzen("Suche.Thema", cmbThema_->currentIndex() > 0 ? Modelltext(cmbThema_->currentText()) : "");
    ExtraSetzen("Suche.Unbenutzt", chkUnbenutzt_->isChecked() ? "1" : "0");
}

void frmSuche::Ansprechen() {
    txtSuche_->setFocus(Qt::ShortcutFocusReason);
    txtSuche_->selectAll();
}

void frmSuche::Eingegeben() {
    Suchen();
    Fragen().Pruefen();
}

Suchfilter frmSuche::Filter() const {
    Suchfilter filter;
    if (cmbThema_->currentIndex() > 0) {
        filter.thema = Modelltext(cmbThema_->currentText());
    }
    if (cmbPunkte_->currentIndex() > 0) {
        filter.punkte = Modelltext(cmbPunkte_->currentText());
    }
    if (chkUnbenutzt_->isChecked()) {
        filter.behalten = [](std::uint64_t abdruck) { return !Fragen().benutzt(abdruck); };
    }
    return filter;
}

void frmSuche::Suchen() {
    const auto bestand = Fragen().bestand();
    Suchanfrage anfrage = AnfrageAus(txtSuche_->wert());
    std::vector<std::uint32_t> nummern = suchlauf_.Suchen(bestand, anfrage, Filter());
    modell_->setTreffer(bestand, std::move(nummern), std::move(anfrage));
    tblTreffer_->setCurrentIndex(modell_->index(0, 0)); // Enter takes the best
    if (modell_->anzahl() == 0) {
        Gewaehlt(-1);
    }
    AnzahlZeigen();
}

void frmSuche::AnzahlZeigen() {
    lblTreffer_->setText(
        Anzeige(::Einsetzen(suchtexte::anzahl, {std::to_string(modell_->anzahl()),
                                                std::to_string(modell_->bestand().anzahl())})));
}

// Which points there are is the catalogue's affair; numbers in their order, whatever else behind them.
void frmSuche::PunkteFuellen() {
    const auto kleiner = [](const std::string& a, const std::string& b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    };
    std::set<std::string, decltype(kleiner)> punkte(kleiner);
    const auto& bestand = *Fragen().bestand();
    for (const auto& datei : bestand.dateien()) {
        for (std::size_t i = 0; i < datei->fragen.anzahl(); ++i) {
            punkte.emplace(datei->fragen.wert(i, Spalte::Punkte));
        }
    }
    const QSignalBlocker still(cmbPunkte_);
    const QString gewaehlt = cmbPunkte_->currentText();
    cmbPunkte_->clear();
    cmbPunkte_->addItem(Anzeige(suchtexte::allePunkte));
    for (const std::string& wert : punkte) {
        if (!wert.empty()) {
            cmbPunkte_->addItem(Anzeige(wert));
        }
    }
    cmbPunkte_->setCurrentIndex(std::max(0, cmbPunkte_->findText(gewaehlt)));
}

// The whole of what a row may cut short.
void frmSuche::Gewaehlt(int zeile) {
    if (zeile < 0) {
        lblFrage_->clear();
        return;
    }
    const Katalogfrage frage = modell_->treffer(zeile);
    const std::string benutzt = Fragen().Benutzttext(frage.frage);
    lblFrage_->setText(Anzeige(frage.frage) + QLatin1String("\n") + Anzeige(frage.antwort) +
                       (benutzt.empty() ? QString() : QLatin1String("  –  ") + Anzeige(benutzt)));
}

void frmSuche::Ziehen(int zeile) {
    ::Ziehen(tblTreffer_, Trefferwert(modell_->treffer(zeile)));
}

void frmSuche::Einsetzen(int zeile) {
    TrefferEinsetzen(modell_->treffer(zeile));
    QTimer::singleShot(0, this, [this] { // what the form shows now counts as used
        chkUnbenutzt_->isChecked() ? Suchen() : modell_->NutzungNeu();
        Gewaehlt(tblTreffer_->currentIndex().row());
    });
}

// From the text the hits can be gone through and taken without leaving it.
bool frmSuche::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt != txtSuche_ || ereignis->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(objekt, ereignis);
    }
    const auto& taste = *static_cast<QKeyEvent*>(ereignis);
    const QModelIndex stelle = tblTreffer_->currentIndex();
    switch (taste.key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        QCoreApplication::sendEvent(tblTreffer_, ereignis);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (stelle.isValid()) {
            Einsetzen(stelle.row());
        }
        return true;
    default:
        return QWidget::eventFilter(objekt, ereignis);
    }
}

void frmSuche::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape) {
        QWidget* rahmen = parentWidget();
        (rahmen != nullptr ? rahmen : this)->close();
        return;
    }
    QWidget::keyPressEvent(ereignis);
}

void frmSuche::closeEvent(QCloseEvent* ereignis) {
    Behalten();
    QWidget::closeEvent(ereignis);
}

void SucheZeigen() {
    if (offen == nullptr) {
        offen = new frmSuche; // owned by the child window that takes it
        if (QMdiSubWindow* rahmen = KindfensterAufnehmen(offen); rahmen != nullptr) {
            Platzieren(*rahmen);
        }
    }
    Fragen().Pruefen();
    offen->show();
    KindNachVorn(offen);
    offen->Ansprechen();
}
