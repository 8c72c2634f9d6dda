#include "core/bilder.h"
#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/dateivorschau.h"
#include "filetools/frmDatei.h"
#include "filetools/kopiername.h"
#include "filetools/pfadschild.h"
#include "tooltips/hinweise.h"

#include <QComboBox>
#include <QFileInfo>
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
    const QString nativ = NativerPfad(ordner);
    const std::string gezeigt = EigenerPfad(nativ);
    OrdnerMerken(gezeigt, nativ); // what is done here is done in exactly this folder
    std::vector<std::string> unterordner;
    try {
        unterordner = OrdnerIn(gezeigt);
        alleDateien_ = DateienIn(gezeigt, "*.*");
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(dateitexte::ortDateiliste, fehler);
        return false;
    }
    ordner_ = gezeigt;
    if (Oberordner(ordner_) != ordner_) {
        unterordner.insert(unterordner.begin(), hoeher.toStdString());
    }
    Fuellen(dirVerzeichnisliste_, unterordner);
    const QIcon ordnerbild = Bildzeichen("datei/ordner");
    for (int i = 0; i < dirVerzeichnisliste_->count(); ++i) {
        dirVerzeichnisliste_->item(i)->setIcon(ordnerbild);
    }
    lblDir_->setText(Anzeige(ordner_));
    HinweisSetzen(lblDir_, ordner_, dateitexte::ordnerTipptitel, dateitexte::ordnerStatus);
    Filtern();
    return true;
}

void frmDatei::OrdnerBetreten(const QListWidgetItem* eintrag) {
    const std::string vorher = ordner_;
    const bool hinauf = eintrag->text() == hoeher;
    const Dateiort kind{ordner_, eintrag->text().toStdString()};
    const std::string ziel = hinauf ? Oberordner(ordner_) : kind.pfad();
    OrdnerMerken(ziel, hinauf ? QFileInfo(NativerPfad(ordner_)).path() : kind.nativ());
    if (!OrdnerSetzen(ziel)) {
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
    gewaehlt_ = Grossschreiben(ort.pfad());
    AuswahlMerken(*gewaehlt_, ort.nativ());
    txtDateiname_->setText(eintrag->text());
    if (!pnlDatei_->isHidden() && !pnlDatei_->Fuellen(ort.pfad())) {
        VorschauBeenden(); // what it shows is another file's
    }
}

void frmDatei::NameZeigen(const std::string& name) {
    const QSignalBlocker still(filDateiliste_);
    txtDateiname_->setText(Anzeige(name));
    const auto treffer = filDateiliste_->findItems(Anzeige(name), Qt::MatchExactly);
    filDateiliste_->setCurrentItem(treffer.isEmpty() ? nullptr : treffer.first());
}

// The file that the name box names, a name with a way through folders in the program's own notation.
Dateiort frmDatei::Ort() const {
    Dateiort ort{ordner_, txtDateiname_->text().replace(QLatin1Char('/'), QLatin1Char('\\')).toStdString()};
    if (!NichtsGewaehlt(ort.name)) {
        AuswahlMerken(ort.pfad(), ort.nativ());
    }
    return ort;
}
