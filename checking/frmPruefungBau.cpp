// What the window with the findings is made of.
#include "checking/befundmodell.h"
#include "checking/frmPruefung.h"
#include "checking/texte.h"
#include "core/bilder.h"
#include "core/fensterzeichen.h"
#include "core/oberflaeche.h"
#include "core/taste.h"
#include "tooltips/hinweise.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// A row is marked as a whole, and no single cell of it.
class Zeilenmaler : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& stelle) const override {
        QStyledItemDelegate::initStyleOption(option, stelle);
        option->state &= ~QStyle::State_HasFocus;
    }
};

} // namespace

void frmPruefung::Aufbauen() {
    setObjectName(QStringLiteral("frmPruefung"));
    setProperty("tag", Anzeige(Fensterzeichen(Kindfenster::Pruefung)));
    setAttribute(Qt::WA_DeleteOnClose);
    setAutoFillBackground(true);
    setWindowTitle(Anzeige(pruefungtexte::fenstertitel));
    setMinimumSize(300, 140);
    lblBefunde_ = new QLabel(this);
    lblBefunde_->setObjectName(QStringLiteral("lblBefunde"));
    lblBefunde_->setTextFormat(Qt::PlainText);
    lblBefunde_->setFont(Schrift(9_pt, true));
    ListeBauen();
    cmdErsetzen_ = TasteBauen("cmdErsetzen", pruefungtexte::ueberallErsetzen, "editor/schreiben", this);
    cmdAbbruch_ = TasteBauen("cmdAbbruch", pruefungtexte::schliessen, "datei/abbrechen", this);

    auto* unten = new QHBoxLayout;
    unten->addWidget(cmdErsetzen_);
    unten->addStretch(1);
    unten->addWidget(cmdAbbruch_);
    auto* aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(6, 6, 6, 6);
    aussen->setSpacing(6);
    aussen->addWidget(lblBefunde_);
    aussen->addWidget(tblBefunde_, 1);
    aussen->addLayout(unten);
    setTabOrder(tblBefunde_, cmdErsetzen_);
    setTabOrder(cmdErsetzen_, cmdAbbruch_);
    setFocusProxy(tblBefunde_);
    HinweiseSetzen(*this, pruefungtexte::hinweise);
}

void frmPruefung::ListeBauen() {
    modell_ = new Befundmodell(this);
    tblBefunde_ = new QTableView(this);
    tblBefunde_->setObjectName(QStringLiteral("tblBefunde"));
    tblBefunde_->setAccessibleName(Anzeige(pruefungtexte::listenname));
    tblBefunde_->setFont(Schrift(9_pt));
    tblBefunde_->setModel(modell_);
    tblBefunde_->setItemDelegate(new Zeilenmaler(tblBefunde_));
    tblBefunde_->installEventFilter(this);
    tblBefunde_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tblBefunde_->setSelectionMode(QAbstractItemView::SingleSelection);
    tblBefunde_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblBefunde_->setTabKeyNavigation(false); // Tab leads to the buttons
    tblBefunde_->setShowGrid(false);
    tblBefunde_->setAlternatingRowColors(true);
    tblBefunde_->setIconSize(QSize(tastenbildKante, tastenbildKante));
    tblBefunde_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // long texts have more lines
    tblBefunde_->verticalHeader()->hide();
    tblBefunde_->verticalHeader()->setMinimumSectionSize(tastenbildKante + 4);
    QHeaderView* kopf = tblBefunde_->horizontalHeader();
    kopf->setFont(Schrift(9_pt));
    kopf->setHighlightSections(false);
    kopf->setSectionsClickable(false);
    kopf->setSectionResizeMode(modell_->columnCount() - 1, QHeaderView::Stretch);
    // As soon as the columns have their widths.
    connect(kopf, &QHeaderView::sectionResized, tblBefunde_, &QTableView::resizeRowsToContents,
            Qt::QueuedConnection);
    const QFontMetrics mass(Schrift(9_pt));
    tblBefunde_->setColumnWidth(0, mass.horizontalAdvance(Anzeige(pruefungtexte::hinweis)) + tastenbildKante +
                                       20);
    tblBefunde_->setColumnWidth(1, mass.horizontalAdvance(QStringLiteral("Gebiet 6, Antwort 5")) + 16);
}
