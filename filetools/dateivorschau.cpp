#include "filetools/dateivorschau.h"

#include "core/datei.h"
#include "core/oberflaeche.h"
#include "core/pfadname.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "persistence/formulardatei.h"
#include "rules/spielwerte.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

// The numbers of the file's head; a file without one, as a test form is, shows the numbers in force.
FKIni Zahlen(const std::string& bytes) {
    FKIni geltende;
    geltende.felderGesamt = Spiel.FelderGesamt;
    geltende.fragenProWissen = Spiel.FragenProWissen;
    geltende.anzahlWissen = Spiel.AnzahlWissen;
    return FKIniAusBytes(bytes).value_or(geltende);
}

} // namespace

Dateivorschau::Dateivorschau(QWidget* eltern)
    : Panel(eltern, QStringLiteral("pnlDatei")),
      grdDatei_(new QTableWidget(7, 3, this)),
      cmdDateiInfoEnde_(new QPushButton(QStringLiteral("Zurück zur Ordnerliste"), this)) {
    grdDatei_->setObjectName(QStringLiteral("grdDatei"));
    grdDatei_->setAccessibleName(QStringLiteral("Vorschau"));
    grdDatei_->horizontalHeader()->hide();
    grdDatei_->verticalHeader()->hide();
    grdDatei_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    grdDatei_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    grdDatei_->verticalHeader()->setDefaultSectionSize(22);
    grdDatei_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdDatei_->setSelectionMode(QAbstractItemView::NoSelection);
    grdDatei_->setTabKeyNavigation(false);
    grdDatei_->setSpan(0, 0, 1, 3);
    cmdDateiInfoEnde_->setObjectName(QStringLiteral("cmdDateiInfoEnde"));
    cmdDateiInfoEnde_->setAutoDefault(false);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(6, 6, 6, 6);
    spalte->addWidget(grdDatei_);
    spalte->addWidget(cmdDateiInfoEnde_);
    connect(cmdDateiInfoEnde_, &QPushButton::clicked, this, &Dateivorschau::beendet);
    connect(grdDatei_, &QTableWidget::cellClicked, this, &Dateivorschau::beendet);
    hide();
}

bool Dateivorschau::Fuellen(const std::string& pfad) {
    try {
        const std::string bytes = DateiLesen(pfad);
        const FKIni zahlen = Zahlen(bytes);
        const QString datum = Anzeige(DateiDatum(pfad)).left(10);
        Zeile(0, QStringLiteral(" V O R S C H A U"), QString());
        Zeile(1, QStringLiteral("Datei "), Anzeige(NurDateiname(pfad)));
        Zeile(2, QStringLiteral("Größe "), QString::number(bytes.size()), QStringLiteral(" Bytes"));
        Zeile(3, QStringLiteral("Datum "), datum);
        Zeile(4, QStringLiteral("Fragen"), QString::number(zahlen.felderGesamt));
        Zeile(5, QStringLiteral("Wissensgebiete"), QString::number(zahlen.anzahlWissen));
        Zeile(6, QStringLiteral("Fragen"), QString::number(zahlen.fragenProWissen), QStringLiteral(" je WG"));
        return true;
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(dateitexte::ortVorschau, fehler);
        return false;
    }
}

void Dateivorschau::Zeile(int zeile, const QString& links, const QString& mitte, const QString& rechts) {
    int spalte = 0;
    for (const QString& text : {links, mitte, rechts}) {
        grdDatei_->setItem(zeile, spalte, new QTableWidgetItem(text));
        grdDatei_->item(zeile, spalte)->setToolTip(text);
        ++spalte;
    }
}
