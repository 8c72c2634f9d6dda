// How the window of the search is put together; what happens in it is search/frmSuche.cpp.
#include "catalogue/themen.h"
#include "core/bilder.h"
#include "core/fensterzeichen.h"
#include "core/klappliste.h"
#include "core/lesehilfe.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "core/ziehen.h"
#include "search/fragendienst.h"
#include "search/frmSuche.h"
#include "search/texte.h"
#include "search/treffermaler.h"
#include "search/treffermodell.h"
#include "search/treffertabelle.h"
#include "tooltips/hinweise.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace {

QLabel* Beschriftung(QWidget* fenster, const char* name, const QString& text, QWidget* zu) {
    auto* label = new QLabel(text, fenster);
    label->setObjectName(QLatin1String(name));
    label->setBuddy(zu);
    return label;
}

QComboBox* Liste(QWidget* fenster, const char* name, std::string_view erster) {
    auto* liste = new Klappliste(fenster, QLatin1String(name));
    liste->addItem(Anzeige(erster));
    liste->setMaxVisibleItems(20);
    return liste;
}

} // namespace

frmSuche::frmSuche() {
    SystemschriftGeben(*this);
    setObjectName(QStringLiteral("frmSuche"));
    setProperty("tag", Anzeige(Fensterzeichen(Kindfenster::Suche)));
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    setWindowTitle(Anzeige(suchtexte::fenstertitel));
    Aufbauen();
    KeinZiel(this);
    HinweiseSetzen(*this, suchtexte::hinweise);
    PunkteFuellen();
    Wiederherstellen();
    Verbinden();
    Suchen();
}

void frmSuche::SuchzeileBauen(QGridLayout& raster) {
    txtSuche_ = new Textzeile(this, QStringLiteral("txtSuche"));
    txtSuche_->setAccessibleName(QStringLiteral("Suchen nach"));
    txtSuche_->setClearButtonEnabled(true);
    cmbThema_ = Liste(this, "cmbSuchThema", suchtexte::alleThemen);
    for (const Thema& thema : Themen()) {
        cmbThema_->addItem(Anzeige(thema.name));
    }
    cmbPunkte_ = Liste(this, "cmbSuchPunkte", suchtexte::allePunkte);
    cmbPunkte_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    chkUnbenutzt_ = new QCheckBox(QStringLiteral("&nur Fragen, die noch in keinem Formular stehen"), this);
    chkUnbenutzt_->setObjectName(QStringLiteral("chkUnbenutzt"));

    raster.addWidget(Beschriftung(this, "lblSuche", QStringLiteral("&Suchen nach"), txtSuche_), 0, 0);
    raster.addWidget(txtSuche_, 0, 1, 1, 5);
    raster.addWidget(Beschriftung(this, "lblSuchThema", QStringLiteral("&Thema"), cmbThema_), 1, 0);
    raster.addWidget(cmbThema_, 1, 1);
    raster.addWidget(Beschriftung(this, "lblSuchPunkte", QStringLiteral("&Punkte"), cmbPunkte_), 1, 2);
    raster.addWidget(cmbPunkte_, 1, 3);
    raster.addWidget(chkUnbenutzt_, 1, 4);
    raster.setColumnStretch(5, 1);
}

void frmSuche::TabelleBauen() {
    tblTreffer_ = new Treffertabelle(this);
    tblTreffer_->setAccessibleName(QStringLiteral("Gefundene Fragen"));
    modell_ = new Treffermodell({[](std::string_view frage) { return Fragen().Benutztspalte(frage); },
                                 [](std::string_view frage) { return Fragen().Benutzttext(frage); }},
                                this);
    tblTreffer_->setModel(modell_);
    tblTreffer_->setItemDelegate(new Treffermaler(tblTreffer_));
    QHeaderView* kopf = tblTreffer_->horizontalHeader();
    constexpr std::array<int, 6> breiten{340, 170, 95, 95, 55, 150};
    for (int i = 0; i < static_cast<int>(breiten.size()); ++i) {
        kopf->resizeSection(i, breiten.at(static_cast<std::size_t>(i)));
    }
    kopf->setSectionResizeMode(0, QHeaderView::Stretch);
    kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void frmSuche::Aufbauen() {
    auto* raster = new QGridLayout(this);
    raster->setContentsMargins(8, 8, 8, 8);
    SuchzeileBauen(*raster);
    TabelleBauen();
    raster->addWidget(tblTreffer_, 2, 0, 1, 6);
    raster->setRowStretch(2, 1);
    lblFrage_ = new QLabel(this);
    lblFrage_->setObjectName(QStringLiteral("lblFrage"));
    lblFrage_->setTextFormat(Qt::PlainText);
    lblFrage_->setWordWrap(true);
    lblFrage_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblFrage_->setFixedHeight(3 * fontMetrics().height() + 4); // a long question takes two lines
    lblFrage_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    raster->addWidget(lblFrage_, 3, 0, 1, 6);
    lblTreffer_ = new QLabel(this);
    lblTreffer_->setObjectName(QStringLiteral("lblTreffer"));
    auto* cmdAbbruch = new QPushButton(QStringLiteral("S&chließen"), this);
    cmdAbbruch->setObjectName(QStringLiteral("cmdAbbruch"));
    TastenbildSetzen(cmdAbbruch, "datei/abbrechen");
    connect(cmdAbbruch, &QPushButton::clicked, this, [this] {
        QWidget* rahmen = parentWidget();
        (rahmen != nullptr ? rahmen : this)->close();
    });
    raster->addWidget(lblTreffer_, 4, 0, 1, 5);
    raster->addWidget(cmdAbbruch, 4, 5, Qt::AlignRight);
}
