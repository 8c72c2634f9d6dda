#include "filetools/frmDatei.h"

#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/plattform.h"
#include "core/zustand.h"
#include "dialogs/dialoggrund.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/dateivorschau.h"
#include "filetools/kopiername.h"
#include "filetools/laufwerksfeld.h"
#include "filetools/ordneraktionen.h"

#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace {

const QString hoeher = QStringLiteral("..");

// Where the file lies: exactly the one of that name, or else the one that the name leads to.
QString NativGenau(const Dateiort& ort) {
    const QString genau = NativerPfad(ort.ordner) + QLatin1Char('/') + QString::fromStdString(ort.name);
    return plattform::ArtVon(genau) != plattform::Art::Nichts ? genau : NativerPfad(ort.pfad());
}

void AlleUmschalten(auto& tasten) {
    const bool an = !tasten[0]->isEnabled();
    for (QPushButton* taste : tasten) {
        taste->setEnabled(an);
    }
}

void Fuellen(QListWidget* liste, const std::vector<std::string>& namen) {
    QStringList texte;
    texte.reserve(static_cast<qsizetype>(namen.size()));
    std::ranges::transform(namen, std::back_inserter(texte), [](const auto& n) { return Anzeige(n); });
    const QSignalBlocker still(liste);
    liste->clear();
    liste->addItems(texte);
}

} // namespace

void frmDatei::Anfangen(const Dateiauswahl& auswahl) {
    muster_ = auswahl.aktuell.empty() && cmbAppend_->count() > 0
                  ? MusterAus(cmbAppend_->itemText(0).toStdString())
                  : auswahl.aktuell;
    std::string ordner = auswahl.ordner;
    while (!OrdnerDa(ordner) && Oberordner(ordner) != ordner) {
        ordner = Oberordner(ordner); // a folder that is gone: the nearest one that is left
    }
    if (!OrdnerSetzen(ordner)) {
        ordner_ = ordner;
    }
    MusterSetzen(muster_);
    if (!auswahl.vorschlag.empty()) {
        NameZeigen(auswahl.vorschlag);
    }
    txtDateiname_->setFocus();
    txtDateiname_->selectAll();
}

// Shows a folder. One that can't be read is reported, and the dialog stays where it was.
bool frmDatei::OrdnerSetzen(const std::string& ordner) {
    std::vector<std::string> unterordner;
    try {
        unterordner = OrdnerIn(ordner);
        alleDateien_ = DateienIn(ordner, "*.*");
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(dateitexte::ortDateiliste, fehler);
        return false;
    }
    ordner_ = ordner;
    if (Oberordner(ordner) != ordner) {
        unterordner.insert(unterordner.begin(), hoeher.toStdString());
    }
    Fuellen(dirVerzeichnisliste_, unterordner);
    const QIcon ordnerbild = style()->standardIcon(QStyle::SP_DirIcon);
    for (int i = 0; i < dirVerzeichnisliste_->count(); ++i) {
        dirVerzeichnisliste_->item(i)->setIcon(ordnerbild);
    }
    lblDir_->setText(Anzeige(ordner));
    lblDir_->setToolTip(Anzeige(ordner));
    Filtern();
    return true;
}

void frmDatei::OrdnerBetreten(const QListWidgetItem* eintrag) {
    const std::string vorher = ordner_;
    const bool hinauf = eintrag->text() == hoeher;
    if (!OrdnerSetzen(hinauf ? Oberordner(ordner_) : PfadVerbinden(ordner_, eintrag->text().toStdString()))) {
        return;
    }
    const auto kinder = dirVerzeichnisliste_->findItems(Anzeige(Ordnername(vorher)), Qt::MatchExactly);
    if (hinauf && !kinder.isEmpty()) {
        dirVerzeichnisliste_->setCurrentItem(kinder.first());
    } else {
        dirVerzeichnisliste_->setCurrentRow(0);
    }
}

// Reads the folder anew and marks a file there, "" for none.
void frmDatei::Auffrischen(const std::string& name) {
    if (OrdnerSetzen(ordner_) && !name.empty()) {
        NameZeigen(name);
    }
}

void frmDatei::MusterSetzen(const std::string& muster) {
    if (!muster.empty()) {
        muster_ = muster;
    }
    for (QRadioButton* wahl : optAppend_) {
        wahl->setAutoExclusive(false); // a pattern that no place has leaves none of them marked
        wahl->setChecked(wahl->text().compare(Anzeige(muster_), Qt::CaseInsensitive) == 0);
        wahl->setAutoExclusive(true);
    }
    for (int i = 0; i < cmbAppend_->count(); ++i) {
        if (Anzeige(MusterAus(cmbAppend_->itemText(i).toStdString()))
                .compare(Anzeige(muster_), Qt::CaseInsensitive) == 0) {
            cmbAppend_->setCurrentIndex(i);
            break;
        }
    }
    Filtern();
}

void frmDatei::Filtern() {
    std::vector<std::string> passende;
    std::ranges::copy_if(alleDateien_, std::back_inserter(passende),
                         [this](const std::string& name) { return MusterPasst(name, muster_); });
    Fuellen(filDateiliste_, passende);
    lblDateienAnzahl_->setText(Anzeige(Einsetzen(dateitexte::anzahl, {std::to_string(passende.size())})));
    lblAlleDateienAnzahl_->setText(
        Anzeige(Einsetzen(dateitexte::anzahl, {std::to_string(alleDateien_.size())})));
    // While no file is chosen the name box shows the pattern; a name that was typed for saving stays.
    const std::string name = txtDateiname_->text().toStdString();
    const bool imOrdner = std::ranges::find(alleDateien_, name) != alleDateien_.end();
    if (NichtsGewaehlt(name) || (!imOrdner && cmdSpeichern_->isHidden())) {
        txtDateiname_->setText(Anzeige(muster_));
    }
}

void frmDatei::Waehlen(const QListWidgetItem* eintrag) {
    if (eintrag == nullptr) {
        return;
    }
    const Dateiort ort{ordner_, eintrag->text().toStdString()};
    DateiName = Grossschreiben(ort.pfad());
    AuswahlMerken(DateiName, NativGenau(ort));
    txtDateiname_->setText(eintrag->text());
}

void frmDatei::NameZeigen(const std::string& name) {
    const QSignalBlocker still(filDateiliste_);
    txtDateiname_->setText(Anzeige(name));
    const auto treffer = filDateiliste_->findItems(Anzeige(name), Qt::MatchExactly);
    filDateiliste_->setCurrentItem(treffer.isEmpty() ? nullptr : treffer.first());
}

// The file that the name box names.
Dateiort frmDatei::Ort() const {
    const Dateiort ort{ordner_, txtDateiname_->text().toStdString()};
    if (!NichtsGewaehlt(ort.name)) {
        AuswahlMerken(ort.pfad(), NativGenau(ort));
    }
    return ort;
}

void frmDatei::Bestaetigen() {
    if (windowTitle() == Anzeige(dateitexte::titelSpeichern)) {
        Speichern_Click();
    } else {
        Laden_Click();
    }
}

// With no file chosen the result is empty, which the callers have their words for.
void frmDatei::Laden_Click() {
    const Dateiort ort = Ort();
    DateiName = NichtsGewaehlt(ort.name) ? std::string() : Grossschreiben(ort.pfad());
    if (!DateiName.empty()) {
        AuswahlMerken(DateiName, NativGenau(ort));
    }
    accept();
}

// The name keeps its case: it is the name of a file to be.
void frmDatei::Speichern_Click() {
    const Dateiort ort = Ort();
    DateiName = NichtsGewaehlt(ort.name) ? std::string() : ort.pfad();
    accept();
}

void frmDatei::reject() {
    SoundSpielen("falscherWeg");
    DateiName.clear();
    DateiAbbruch = 1;
    QDialog::reject();
}

void frmDatei::Datei_Click(int index) {
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

void frmDatei::Ordner_Click(int index) {
    if (index == 0) {
        OrdnerAnlegenMitFrage(ordner_, [this] { OrdnerSetzen(ordner_); });
    } else if (index == 1) {
        OrdnerLoeschenMitFrage(ordner_, [this] { OrdnerSetzen(Oberordner(ordner_)); });
    }
    // The third button has no action: it is meant.
}

void frmDatei::Vorschau_Click() {
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
    picList_->setFixedWidth(Pixel(5235));
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
