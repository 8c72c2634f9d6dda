// How the selection dialog is put together; what happens in it is catalogue/frmAuswahl.cpp.
#include "catalogue/auswahllisten.h"
#include "catalogue/blattfall.h"
#include "catalogue/frmAuswahl.h"
#include "catalogue/muell.h"
#include "catalogue/spaltenmodell.h"
#include "core/bilder.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "core/ziehbilder.h"
#include "core/ziehen.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

const QColor orange(255, 184, 84);

QLabel* Beschriftung(QWidget* rahmen, const char* name, const QString& text, QWidget* zu) {
    auto* label = new QLabel(text, rahmen);
    label->setObjectName(QLatin1String(name));
    label->setBuddy(zu);
    return label;
}

QLineEdit* Anzeigezeile(QWidget* rahmen, const QString& name) {
    auto* zeile = new QLineEdit(rahmen);
    zeile->setObjectName(name);
    zeile->setReadOnly(true);
    return zeile;
}

Textfeld* Anzeigefeld(QWidget* rahmen, const QString& name) {
    auto* feld = new Textfeld(rahmen, name);
    feld->setReadOnly(true);
    feld->setMinimumHeight(46); // two lines; the layout gives more where there is more
    // Read-only takes the keyboard's way into the text away; it is given back for reading and copying.
    feld->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return feld;
}

// The part of the screen that the window may use: never under a task bar.
QRect Bereich(const QWidget& fenster) {
    const QSize groesse = Bildschirmgroesse(Hauptfenster());
    const QScreen* schirm = fenster.screen();
    return groesse == schirm->size() ? schirm->availableGeometry() : QRect(QPoint(0, 0), groesse);
}

bool Grosser() {
    return Bildschirmgroesse(Hauptfenster()).width() >= 1280;
}

// On a low screen the trash field stands beside the lists, and everything moves closer together.
bool Niedrig(const QWidget& fenster) {
    return Bereich(fenster).height() < 580;
}

} // namespace

void frmAuswahl::Aufbauen() {
    auto* raster = new QGridLayout(this);
    QGroupBox* fraAuswahl = AuswahlAufbauen();
    QGroupBox* fraMuell = MuellAufbauen();
    auto* cmdAbbruch = new QPushButton(QStringLiteral("&Schließen"), this);
    cmdAbbruch->setObjectName(QStringLiteral("cmdAbbruch"));
    TastenbildSetzen(cmdAbbruch, "datei/abbrechen");
    connect(cmdAbbruch, &QPushButton::clicked, this, &QWidget::close);
    KeinZiel(cmdAbbruch);
    if (Niedrig(*this)) {
        raster->setContentsMargins(4, 4, 4, 4);
        raster->addWidget(fraAuswahl, 0, 0, 2, 1);
        raster->addWidget(fraMuell, 0, 1);
        raster->addWidget(cmdAbbruch, 1, 1);
    } else {
        raster->addWidget(fraAuswahl, 0, 0, 1, 2);
        raster->addWidget(fraMuell, 1, 0);
        raster->addWidget(cmdAbbruch, 1, 1, Qt::AlignBottom);
    }
    raster->setRowStretch(0, 1);
    raster->setColumnStretch(0, 1);
}

QGroupBox* frmAuswahl::AuswahlAufbauen() {
    auto* fraAuswahl = new QGroupBox(QStringLiteral("Auswahl"), this);
    fraAuswahl->setObjectName(QStringLiteral("fraAuswahl"));
    KeinZiel(fraAuswahl);
    const int klappbreite = Grosser() ? 520 : 420;
    cmbThemen_ = AuswahlListe(fraAuswahl, QStringLiteral("cmbThemen"), klappbreite);
    cmbUnter_ = AuswahlListe(fraAuswahl, QStringLiteral("cmbUnter"), klappbreite);
    spalten_.push_back(new Spaltenmodell(Spalte::Frage, this));
    cmbFrage_ = AuswahlListe(fraAuswahl, QStringLiteral("cmbFrage"), klappbreite, spalten_.back());
    auto* raster = new QGridLayout(fraAuswahl);
    raster->setColumnStretch(1, 1);
    raster->setVerticalSpacing(Niedrig(*this) ? 2 : 6);
    int zeile = 0;
    for (const auto& [name, text, liste] :
         {std::tuple{"lblThemen", "&Themen (Wissensgebiete)", cmbThemen_},
          std::tuple{"lblUnter", "&Unterthemen", cmbUnter_}, std::tuple{"lblFragen", "&Fragen", cmbFrage_}}) {
        raster->addWidget(Beschriftung(fraAuswahl, name, QString::fromUtf8(text), liste), zeile++, 0, 1, 4);
        raster->addWidget(liste, zeile++, 0, 1, 4);
        raster->setRowMinimumHeight(zeile++, Niedrig(*this) ? 0 : 4);
    }
    FelderAufbauen(raster);
    VerborgeneAufbauen(fraAuswahl);
    return fraAuswahl;
}

void frmAuswahl::FelderAufbauen(QGridLayout* raster) {
    QWidget* rahmen = raster->parentWidget();
    const int zeile = raster->rowCount();
    txtFrage_ = Anzeigefeld(rahmen, QStringLiteral("txtFrage"));
    txtFrage_->setGrund(orange);
    txtFrage_->setAccessibleName(QStringLiteral("Ausgewählte Frage"));
    txtFrage_->viewport()->setCursor(Qt::OpenHandCursor);
    txtNr_ = Anzeigezeile(rahmen, QStringLiteral("txtNr"));
    txtPunkte_ = Anzeigezeile(rahmen, QStringLiteral("txtPunkte"));
    txtAntwort_ = Anzeigefeld(rahmen, QStringLiteral("txtAntwort"));
    raster->addWidget(txtFrage_, zeile, 0, 1, 4);
    raster->addWidget(Beschriftung(rahmen, "lblNr", QStringLiteral("&Nr."), txtNr_), zeile + 1, 0);
    raster->addWidget(txtNr_, zeile + 1, 1);
    raster->addWidget(Beschriftung(rahmen, "lblPunkte", QStringLiteral("&Punkte"), txtPunkte_), zeile + 1, 2);
    raster->addWidget(txtPunkte_, zeile + 1, 3);
    raster->addWidget(Beschriftung(rahmen, "lblAntwort", QStringLiteral("&Antwort"), txtAntwort_), zeile + 2,
                      0, Qt::AlignTop);
    raster->addWidget(txtAntwort_, zeile + 2, 1, 1, 3);
    raster->setRowStretch(zeile, 3);
    raster->setRowStretch(zeile + 2, 2);
    raster->setColumnStretch(3, 1);
}

// The three columns that belong to the list of questions, and the pictures that a drag shows.
void frmAuswahl::VerborgeneAufbauen(QWidget* rahmen) {
    for (const auto& [name, spalte] :
         {std::pair{"cmbNr", Spalte::Nr}, std::pair{"cmbAntwort", Spalte::Antwort},
          std::pair{"cmbPunkte", Spalte::Punkte}}) {
        spalten_.push_back(new Spaltenmodell(spalte, this));
        AuswahlListe(rahmen, QLatin1String(name), 0, spalten_.back())->hide();
    }
    auto* picAtom = new QLabel(rahmen); // out of sight; the drag itself shows picAtom1
    picAtom->setObjectName(QStringLiteral("picAtom"));
    picAtom->setPixmap(Bild("ziehen/knaeuel", devicePixelRatioF()));
    picAtom->hide();
    for (const auto& [name, bild] :
         {std::pair{"picAtom1", ZiehBild::Atom}, std::pair{"picBildAufnehmen", ZiehBild::Aufnehmen},
          std::pair{"picBildAblegen", ZiehBild::Ablegen}, std::pair{"picBildNein", ZiehBild::Nein}}) {
        auto* label = new QLabel(rahmen);
        label->setObjectName(QLatin1String(name));
        label->setPixmap(Ziehpixmap(bild, devicePixelRatioF()));
        label->hide();
    }
}

QGroupBox* frmAuswahl::MuellAufbauen() {
    auto* fraMuell = new QGroupBox(QStringLiteral("Müll"), this);
    fraMuell->setObjectName(QStringLiteral("fraMuell"));
    auto* raster = new QGridLayout(fraMuell);
    blattfall_ = new Blattfall(fraMuell);
    raster->addWidget(blattfall_, 0, 0, Qt::AlignCenter);
    ZielEinrichten(fraMuell, ZiehBild::Atom, [this](const Ziehwert& wert) { MuellAblegen(*this, wert); });
    return fraMuell;
}

// At the right edge above the status panel, within the screen whatever its size.
void frmAuswahl::Einpassen() {
    constexpr int rand = 10;
    constexpr int titelzeile = 32;
    constexpr int statuszeile = 48;
    const QRect bereich = Bereich(*this);
    const QSize gewuenscht =
        Niedrig(*this) ? QSize(500, 360) : (Grosser() ? QSize(400, 600) : QSize(330, 520));
    resize(gewuenscht.boundedTo(bereich.size() - QSize(2 * rand, titelzeile + rand)));
    move(std::max(bereich.left(), bereich.right() - width() - rand),
         std::max(bereich.top(), bereich.bottom() - height() - titelzeile - statuszeile));
}
