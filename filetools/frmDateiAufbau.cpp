#include "core/bilder.h"
#include "core/klappliste.h"
#include "core/lesehilfe.h"
#include "core/oberflaeche.h"
#include "filetools/dateitexte.h"
#include "filetools/dateivorschau.h"
#include "filetools/frmDatei.h"
#include "filetools/laufwerksfeld.h"
#include "filetools/pfadschild.h"
#include "rules/spielwerte.h"
#include "tooltips/hinweise.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace {

QLabel* Schild(QWidget* eltern, const char* name, const QString& text = QString()) {
    auto* schild = new QLabel(text, eltern);
    schild->setObjectName(QLatin1String(name));
    schild->setTextFormat(Qt::PlainText);
    return schild;
}

QListWidget* Liste(QWidget* eltern, const char* name, const QString& wort) {
    auto* liste = new QListWidget(eltern);
    liste->setObjectName(QLatin1String(name));
    liste->setAccessibleName(wort);
    liste->setUniformItemSizes(true);
    liste->setTextElideMode(Qt::ElideMiddle);
    return liste;
}

constexpr std::array tastenbilder{Tastenbild{"cmdDatei(0)", "editor/kopieren"},
                                  Tastenbild{"cmdDatei(1)", "datei/loeschen"},
                                  Tastenbild{"cmdDatei(2)", "datei/suchen"},
                                  Tastenbild{"cmdDatei(3)", "leiste/editor"},
                                  Tastenbild{"cmdOrdner(0)", "datei/ordner_neu"},
                                  Tastenbild{"cmdOrdner(1)", "datei/ordner_loeschen"},
                                  Tastenbild{"cmdOrdner(2)", "datei/ordner_serie"},
                                  Tastenbild{"cmdVorschau", "datei/vorschau"},
                                  Tastenbild{"cmdPfadZerlegen", "datei/pfad"},
                                  Tastenbild{"cmdLaden", "leiste/oeffnen"},
                                  Tastenbild{"cmdSpeichern", "leiste/speichern"},
                                  Tastenbild{"cmdAbbrechen", "datei/abbrechen"},
                                  Tastenbild{"cmdHilfe", "leiste/hilfe"}};

template <class Anordnung>
Anordnung* Rahmenlos(QWidget* feld) {
    auto* anordnung = new Anordnung(feld);
    anordnung->setContentsMargins(0, 0, 0, 0);
    return anordnung;
}

} // namespace

frmDatei::frmDatei(const Dateiauswahl& auswahl) : gewaehlt_(auswahl.pfad) {
    SystemschriftGeben(*this);
    setObjectName(QStringLiteral("frmDatei"));
    setWindowTitle(Anzeige(auswahl.titel));
    setWindowIcon(Bildzeichen("datei/ordner"));
    setModal(true);
    setSizeGripEnabled(true);
    auto* oben = new QWidget(this);
    auto* reihe = Rahmenlos<QHBoxLayout>(oben);
    reihe->setSpacing(4);
    reihe->addWidget(ListenBauen(), 5);
    reihe->addWidget(OrdnerspalteBauen(), 4);
    reihe->addWidget(AktionenBauen());
    auto* unten = new QHBoxLayout;
    unten->addWidget(ZeilenBauen(auswahl), 1);
    unten->addWidget(TastenBauen());
    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(oben, 1);
    spalte->addLayout(unten);
    HinweiseSetzen(*this, dateitexte::hinweise);
    TastenbilderSetzen(this, tastenbilder);
    ListenVerbinden();
    TastenVerbinden();
    resize(800, 520);
    Anfangen(auswahl);
}

QPushButton* frmDatei::TasteBauen(const QString& name, const QString& aufschrift, QWidget* eltern) {
    auto* taste = new QPushButton(aufschrift, eltern);
    taste->setObjectName(name);
    taste->setAutoDefault(false); // Enter belongs to loading or saving
    return taste;
}

QWidget* frmDatei::ListenBauen() {
    picList_ = new QWidget(this);
    picList_->setObjectName(QStringLiteral("picList"));
    auto* spalte = Rahmenlos<QVBoxLayout>(picList_);
    filDateiliste_ = Liste(picList_, "filDateiliste", QStringLiteral("Dateien"));
    auto* titel = Schild(picList_, "lblDateiliste", QStringLiteral("Date&ien"));
    titel->setTextFormat(Qt::AutoText);
    titel->setBuddy(filDateiliste_);
    picDatei_ = new QWidget(picList_);
    picDatei_->setObjectName(QStringLiteral("picDatei"));
    auto* zeile = Rahmenlos<QHBoxLayout>(picDatei_);
    lblDateienAnzahl_ = Schild(picDatei_, "lblDateienAnzahl");
    lblAlleDateienAnzahl_ = Schild(picDatei_, "lblAlleDateienAnzahl");
    auto* fortschritt = Schild(picDatei_, "picSuchfortschritt");
    fortschritt->hide(); // there is no search that could go on
    zeile->addWidget(lblDateienAnzahl_);
    zeile->addWidget(fortschritt);
    zeile->addStretch();
    zeile->addWidget(Schild(picDatei_, "lblAlle", QStringLiteral("insgesamt")));
    zeile->addWidget(lblAlleDateienAnzahl_);
    spalte->addWidget(titel);
    spalte->addWidget(filDateiliste_, 1);
    spalte->addWidget(picDatei_);
    return picList_;
}

QWidget* frmDatei::OrdnerspalteBauen() {
    auto* spaltenfeld = new QWidget(this);
    auto* spalte = Rahmenlos<QVBoxLayout>(spaltenfeld);
    fraLaufwerk_ = new Laufwerksfeld(spaltenfeld);
    fraDir_ = new QGroupBox(QStringLiteral("Ordner"), spaltenfeld);
    fraDir_->setObjectName(QStringLiteral("fraDir"));
    auto* innen = new QVBoxLayout(fraDir_);
    innen->setContentsMargins(6, 2, 6, 6);
    lblDir_ = new Pfadschild(fraDir_, QStringLiteral("lblDir"));
    lblDir_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblDir_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long path doesn't widen the window
    lblDir_->setFixedHeight(2 * lblDir_->fontMetrics().lineSpacing() + 2);
    dirVerzeichnisliste_ = Liste(fraDir_, "dirVerzeichnisliste", QStringLiteral("Ordner"));
    innen->addWidget(lblDir_);
    innen->addWidget(dirVerzeichnisliste_, 1);
    pnlDatei_ = new Dateivorschau(spaltenfeld);
    spalte->addWidget(fraLaufwerk_);
    spalte->addWidget(fraDir_, 1);
    spalte->addWidget(pnlDatei_, 1);
    return spaltenfeld;
}

void frmDatei::TastenFuellen(QGroupBox* rahmen, const char* feld, const std::vector<const char*>& worte,
                             std::span<QPushButton*> tasten) {
    auto* innen = new QVBoxLayout(rahmen);
    innen->setContentsMargins(6, 2, 6, 6);
    innen->setSpacing(3);
    for (std::size_t i = 0; i < worte.size(); ++i) {
        tasten[i] = TasteBauen(QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(i),
                               QString::fromUtf8(worte[i]), rahmen);
        innen->addWidget(tasten[i]);
    }
}

QWidget* frmDatei::AktionenBauen() {
    picButtons_ = new QWidget(this);
    picButtons_->setObjectName(QStringLiteral("picButtons"));
    auto* spalte = Rahmenlos<QVBoxLayout>(picButtons_);
    fraDatei_ = new QGroupBox(QStringLiteral("Datei"), picButtons_);
    fraDatei_->setObjectName(QStringLiteral("fraDatei"));
    fraOrdner_ = new QGroupBox(QStringLiteral("Ordner"), picButtons_);
    fraOrdner_->setObjectName(QStringLiteral("fraOrdner"));
    TastenFuellen(fraDatei_, "cmdDatei", {"&Kopieren ...", "Lös&chen ...", "S&uchen", "&Editieren"},
                  cmdDatei_);
    TastenFuellen(fraOrdner_, "cmdOrdner", {"&Neu ...", "L&öschen ...", "Serie A-&Z"}, cmdOrdner_);
    cmdVorschau_ = TasteBauen(QStringLiteral("cmdVorschau"), QStringLiteral("&Vorschau"), picButtons_);
    cmdPfadZerlegen_ = TasteBauen(QStringLiteral("cmdPfadZerlegen"), QStringLiteral("Pfad"), picButtons_);
    spalte->addWidget(fraDatei_);
    spalte->addWidget(fraOrdner_);
    spalte->addWidget(cmdVorschau_);
    spalte->addWidget(cmdPfadZerlegen_);
    spalte->addStretch();
    return picButtons_;
}

QWidget* frmDatei::ZeilenBauen(const Dateiauswahl& auswahl) {
    auto* feld = new QWidget(this);
    auto* zeilen = Rahmenlos<QFormLayout>(feld);
    // A plain line: names of files may hold any character.
    txtDateiname_ = new QLineEdit(feld);
    txtDateiname_->setObjectName(QStringLiteral("txtDateiname"));
    cmbAppend_ = new Klappliste(feld, QStringLiteral("cmbAppend"));
    for (const std::string& zeile : auswahl.filter) {
        cmbAppend_->addItem(Anzeige(zeile));
    }
    zeilen->addRow(QStringLiteral("&Dateiname:"), txtDateiname_);
    zeilen->addRow(QStringLiteral("Datei&typ:"), cmbAppend_);
    zeilen->addRow(QString(), MusterBauen(auswahl));
    zeilen->addRow(QString(), SicherungBauen(auswahl.backupBenutzbar));
    return feld;
}

QWidget* frmDatei::MusterBauen(const Dateiauswahl& auswahl) {
    auto* feld = new QWidget(this);
    auto* reihe = Rahmenlos<QHBoxLayout>(feld);
    for (std::size_t i = 0; i < auswahl.muster.size(); ++i) {
        auto* wahl = new QRadioButton(Anzeige(auswahl.muster[i]), feld);
        wahl->setObjectName(QStringLiteral("optAppend(%1)").arg(i));
        reihe->addWidget(wahl);
        optAppend_.push_back(wahl);
    }
    reihe->addStretch();
    return feld;
}

QWidget* frmDatei::SicherungBauen(bool benutzbar) {
    auto* feld = new QWidget(this);
    auto* reihe = Rahmenlos<QHBoxLayout>(feld);
    chkBackUp_ = new QCheckBox(QStringLiteral("&Back Up"), feld);
    chkBackUp_->setObjectName(QStringLiteral("chkBackUp"));
    chkBackUp_->setChecked(Spiel.OptionDatei);
    chkBackUp_->setEnabled(benutzbar);
    auto* lblBackUp = Schild(feld, "lblBackUp", QStringLiteral("(sichert vor dem Speichern)"));
    lblBackUp->setEnabled(benutzbar);
    reihe->addWidget(chkBackUp_);
    reihe->addWidget(lblBackUp);
    reihe->addStretch();
    return feld;
}

QWidget* frmDatei::TastenBauen() {
    auto* fraButtons = new QGroupBox(this);
    fraButtons->setObjectName(QStringLiteral("fraButtons"));
    auto* spalte = new QVBoxLayout(fraButtons);
    spalte->setContentsMargins(6, 6, 6, 6);
    spalte->setSpacing(4);
    cmdLaden_ = TasteBauen(QStringLiteral("cmdLaden"), QStringLiteral("&Laden"), fraButtons);
    cmdSpeichern_ = TasteBauen(QStringLiteral("cmdSpeichern"), QStringLiteral("&Speichern"), fraButtons);
    cmdAbbrechen_ = TasteBauen(QStringLiteral("cmdAbbrechen"), QStringLiteral("&Abbrechen"), fraButtons);
    cmdHilfe_ = TasteBauen(QStringLiteral("cmdHilfe"), QStringLiteral("&Hilfe"), fraButtons);
    for (QPushButton* taste : {cmdLaden_, cmdSpeichern_, cmdAbbrechen_, cmdHilfe_}) {
        taste->setMinimumWidth(110);
        spalte->addWidget(taste);
    }
    const bool speichern = windowTitle() == Anzeige(dateitexte::titelSpeichern);
    cmdLaden_->setHidden(speichern);
    cmdSpeichern_->setHidden(!speichern);
    (speichern ? cmdSpeichern_ : cmdLaden_)->setDefault(true);
    return fraButtons;
}
