#include "filetools/frmDatei.h"

#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/dateivorschau.h"
#include "filetools/kopiername.h"
#include "filetools/laufwerksfeld.h"
#include "filetools/listentasten.h"
#include "filetools/ordneraktionen.h"
#include "rules/spielwerte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace {

void AlleUmschalten(auto& tasten) {
    const bool an = !tasten[0]->isEnabled();
    for (QPushButton* taste : tasten) {
        taste->setEnabled(an);
    }
}

} // namespace

void frmDatei::ListenVerbinden() {
    fraDatei_->installEventFilter(this);
    fraOrdner_->installEventFilter(this);
    dirVerzeichnisliste_->installEventFilter(this);
    filDateiliste_->installEventFilter(this);
    connect(fraLaufwerk_, &Laufwerksfeld::gewaehlt, this, &frmDatei::OrdnerSetzen);
    connect(dirVerzeichnisliste_, &QListWidget::itemDoubleClicked, this, &frmDatei::OrdnerBetreten);
    // Not the current entry: that one changes as soon as the focus reaches the list.
    connect(filDateiliste_, &QListWidget::itemSelectionChanged, this, [this] {
        const auto gewaehlte = filDateiliste_->selectedItems();
        Waehlen(gewaehlte.isEmpty() ? nullptr : gewaehlte.first());
    });
    connect(filDateiliste_, &QListWidget::itemClicked, this, &frmDatei::Waehlen);
    connect(filDateiliste_, &QListWidget::itemDoubleClicked, this, &frmDatei::Bestaetigen);
    connect(cmbAppend_, &QComboBox::activated, this,
            [this] { MusterSetzen(MusterAus(cmbAppend_->currentText().toStdString())); });
    for (QRadioButton* wahl : optAppend_) {
        connect(wahl, &QRadioButton::clicked, this,
                [this, wahl] { MusterSetzen(wahl->text().toStdString()); });
    }
    connect(chkBackUp_, &QCheckBox::clicked, this, [](bool an) { Spiel.OptionDatei = an; });
}

void frmDatei::TastenVerbinden() {
    for (std::size_t i = 0; i < cmdDatei_.size(); ++i) {
        connect(cmdDatei_[i], &QPushButton::clicked, this, [this, i] { DateiBefehl(static_cast<int>(i)); });
    }
    for (std::size_t i = 0; i < cmdOrdner_.size(); ++i) {
        connect(cmdOrdner_[i], &QPushButton::clicked, this, [this, i] { OrdnerBefehl(static_cast<int>(i)); });
    }
    connect(cmdVorschau_, &QPushButton::clicked, this, &frmDatei::VorschauZeigen);
    connect(pnlDatei_, &Dateivorschau::beendet, this, &frmDatei::VorschauBeenden);
    connect(cmdPfadZerlegen_, &QPushButton::clicked, this, [this] { PfadAnzeigen(gewaehlt_.value_or("")); });
    connect(cmdLaden_, &QPushButton::clicked, this, &frmDatei::Laden);
    connect(cmdSpeichern_, &QPushButton::clicked, this, &frmDatei::Speichern);
    connect(cmdAbbrechen_, &QPushButton::clicked, this, &frmDatei::reject);
    connect(cmdHilfe_, &QPushButton::clicked, this, [] { SoundSpielen("Hilfe"); });
}

void frmDatei::Bestaetigen() {
    if (windowTitle() == Anzeige(dateitexte::titelSpeichern)) {
        Speichern();
    } else {
        Laden();
    }
}

// With no file chosen the result is empty, which the callers have their words for.
void frmDatei::Laden() {
    const Dateiort ort = Ort();
    gewaehlt_ = NichtsGewaehlt(ort.name) ? std::string() : Grossschreiben(ort.pfad());
    if (!gewaehlt_->empty()) {
        AuswahlMerken(*gewaehlt_, ort.nativ());
    }
    accept();
}

// The name keeps its case: it is the name of a file to be.
void frmDatei::Speichern() {
    const Dateiort ort = Ort();
    gewaehlt_ = NichtsGewaehlt(ort.name) ? std::string() : ort.pfad();
    accept();
}

void frmDatei::reject() {
    SoundSpielen("falscherWeg");
    gewaehlt_.reset();
    QDialog::reject();
}

void frmDatei::DateiBefehl(int index) {
    switch (index) {
    case 0:
        DateiKopierenMitFrage(Ort(), [this](const std::string& name) { Auffrischen(name); });
        break;
    case 1:
        DateiLoeschenMitFrage(Ort(), [this](const std::string&) {
            txtDateiname_->clear();
            Auffrischen("");
        });
        break;
    case 2:
        Suchansicht();
        break;
    default:
        DateiEditieren(Ort());
        break;
    }
}

void frmDatei::OrdnerBefehl(int index) {
    if (index == 0) {
        OrdnerAnlegenMitFrage(ordner_, [this] { OrdnerSetzen(ordner_); });
    } else if (index == 1) {
        OrdnerLoeschenMitFrage(ordner_, [this] { OrdnerSetzen(Oberordner(ordner_)); });
    }
    // The third button has no action: it is meant.
}

void frmDatei::VorschauZeigen() {
    const Dateiort ort = Ort();
    if (NichtsGewaehlt(ort.name)) {
        Systemkasten(Kastenart::Schlicht, dateitexte::hinweisTitel, dateitexte::nichtsSelektiert);
    } else if (pnlDatei_->Fuellen(ort.pfad())) {
        fraDir_->hide();
        pnlDatei_->show();
    }
}

void frmDatei::VorschauBeenden() {
    pnlDatei_->hide();
    fraDir_->show();
}

// What the button for finding a file does: it changes the view and looks for nothing. It is meant.
void frmDatei::Suchansicht() {
    picDatei_->hide();
    picList_->setFixedWidth(Pixel(5235_tw));
    fraLaufwerk_->SuchansichtZeigen();
    fraDir_->setFixedWidth(fraLaufwerk_->width());
    picButtons_->hide();
}

bool frmDatei::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (ereignis->type() == QEvent::MouseButtonDblClick) {
        if (objekt == fraDatei_) {
            AlleUmschalten(cmdDatei_);
            return true;
        }
        if (objekt == fraOrdner_) {
            AlleUmschalten(cmdOrdner_);
            return true;
        }
    }
    if (objekt == filDateiliste_ && ereignis->type() == QEvent::KeyPress &&
        ErstenPfeilAusfuehren(filDateiliste_, *static_cast<QKeyEvent*>(ereignis))) {
        return true;
    }
    if (objekt == dirVerzeichnisliste_ && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        const QListWidgetItem* eintrag = dirVerzeichnisliste_->currentItem();
        if ((taste == Qt::Key_Return || taste == Qt::Key_Enter) && eintrag != nullptr) {
            OrdnerBetreten(eintrag);
            return true;
        }
    }
    return QDialog::eventFilter(objekt, ereignis);
}
