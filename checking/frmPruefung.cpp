#include "checking/frmPruefung.h"

#include "checking/anfuehrungen.h"
#include "checking/befundmodell.h"
#include "checking/fuehren.h"
#include "checking/pruefung.h"
#include "checking/texte.h"
#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/lesehilfe.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "core/schritt.h"
#include "core/textfeld.h"
#include "filetools/listentasten.h"
#include "forms/einsetzen.h"
#include "forms/formularfolger.h"
#include "forms/verlauf.h"
#include "search/fragendienst.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <map>
#include <utility>

namespace {

constexpr std::chrono::milliseconds sammelzeit(30);

// Texts for cells and rows, by number.
std::vector<Feldtext> Feldtexte(const std::vector<Ersatztext>& texte) {
    std::map<int, Feldtext> felder;
    for (const Ersatztext& text : texte) {
        if (text.ort.nummer > 0) {
            Feldtext& feld = felder[text.ort.nummer];
            feld.feld = text.ort.nummer;
            (text.ort.teil == Teil::Antwort ? feld.antwort : feld.frage) = text.text;
        }
    }
    std::vector<Feldtext> liste;
    liste.reserve(felder.size());
    for (auto& [nummer, feld] : felder) {
        liste.push_back(std::move(feld));
    }
    return liste;
}

void KopfSetzen(const QWidget& form, const Ersatztext& text) {
    if (auto* zeile = form.findChild<Textzeile*>(Anzeige(Ortselement(text.ort))); zeile != nullptr) {
        zeile->setWert(text.text);
    }
}

} // namespace

frmPruefung::frmPruefung() {
    SystemschriftGeben(*this);
    Aufbauen();
    Verbinden();
}

void frmPruefung::Verbinden() {
    folger_ = new Formularfolger(sammelzeit, this);
    connect(folger_, &Formularfolger::nachsehen, this, &frmPruefung::Nachsehen);
    connect(&Fragen(), &Fragendienst::benutzungNeu, folger_, &Formularfolger::Bald);
    connect(tblBefunde_, &QTableView::clicked, this, [this](const QModelIndex& ort) { ZumFeld(ort.row()); });
    connect(tblBefunde_, &QTableView::activated, this,
            [this](const QModelIndex& ort) { ZumFeld(ort.row()); });
    connect(tblBefunde_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmPruefung::TasteBeschriften);
    connect(cmdErsetzen_, &QPushButton::clicked, this, &frmPruefung::Ersetzen);
    const auto schliessen = [this] { (parentWidget() != nullptr ? parentWidget() : this)->close(); };
    connect(cmdAbbruch_, &QPushButton::clicked, this, schliessen);
    const auto* esc = new QShortcut(Qt::Key_Escape, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(esc, &QShortcut::activated, this, schliessen);
}

bool frmPruefung::eventFilter(QObject* objekt, QEvent* ereignis) {
    if (objekt == tblBefunde_ && ereignis->type() == QEvent::KeyPress) {
        return ErstenPfeilAusfuehren(tblBefunde_, static_cast<const QKeyEvent&>(*ereignis));
    }
    return QWidget::eventFilter(objekt, ereignis);
}

void frmPruefung::Nachsehen() {
    const Formularfenster* form = OffenesFormular();
    folger_->Nachgesehen();
    stand_.reset();
    if (form == nullptr) {
        Zeigen({});
        lblBefunde_->setText(Anzeige(pruefungtexte::nichtsOffen));
        return;
    }
    stand_ = FormularstandJetzt();
    const auto benutzt = [](std::string_view frage) { return Fragen().Benutzttext(frage, true); };
    Befunde befunde = FormularPruefen(*stand_, {schriften_.mass(), benutzt});
    lblBefunde_->setText(Anzeige(Befundzahl(befunde)));
    Zeigen(std::move(befunde));
}

void frmPruefung::Zeigen(Befunde befunde) {
    if (befunde != modell_->befunde()) {
        const std::optional<Befund> markiert = Markiert();
        modell_->setBefunde(std::move(befunde));
        MarkierungSetzen(markiert);
        tblBefunde_->resizeRowsToContents();
    }
    TasteBeschriften();
}

// The toolkit marks the next row when the marked one goes: better none than another.
void frmPruefung::MarkierungSetzen(const std::optional<Befund>& markiert) {
    const Befunde& befunde = modell_->befunde();
    auto fund = befunde.end();
    if (markiert) {
        fund = std::ranges::find(befunde, *markiert);
        fund =
            fund != befunde.end() ? fund : std::ranges::find_if(befunde, [&markiert](const Befund& befund) {
                return Derselbe(befund, *markiert);
            });
    }
    QItemSelectionModel* auswahl = tblBefunde_->selectionModel();
    if (fund == befunde.end()) {
        auswahl->clear();
    } else if (const auto zeile = static_cast<int>(fund - befunde.begin());
               !auswahl->isRowSelected(zeile, {})) {
        auswahl->setCurrentIndex(modell_->index(zeile, 0),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
}

std::optional<Befund> frmPruefung::Markiert() const {
    const QModelIndexList zeilen = tblBefunde_->selectionModel()->selectedRows();
    return zeilen.isEmpty()
               ? std::nullopt
               : std::optional(modell_->befunde().at(static_cast<std::size_t>(zeilen.front().row())));
}

void frmPruefung::TasteBeschriften() {
    const bool welche = std::ranges::any_of(
        modell_->befunde(), [](const Befund& befund) { return befund.anlass == Anlass::Anfuehrung; });
    const std::optional<Befund> markiert = Markiert();
    const bool hier = markiert && stand_ && HatAnfuehrung(*stand_, markiert->ort);
    cmdErsetzen_->setText(Anzeige(hier ? pruefungtexte::hierErsetzen : pruefungtexte::ueberallErsetzen));
    cmdErsetzen_->setEnabled(welche);
}

void frmPruefung::ZumFeld(int zeile) {
    Formularfenster* form = OffenesFormular();
    if (form == nullptr || zeile < 0 || zeile >= modell_->rowCount()) {
        return;
    }
    const Befund befund = modell_->befunde().at(static_cast<std::size_t>(zeile));
    ZumOrt(*form, befund.ort, *this);
    HilfeText(std::string(1, ' ').append(Ortsname(befund.ort)).append(" : ").append(befund.text));
}

void frmPruefung::Ersetzen() {
    Formularfenster* form = OffenesFormular();
    if (form == nullptr) {
        return;
    }
    const std::optional<Befund> markiert = Markiert();
    const std::vector<Ersatztext> texte =
        AnfuehrungenErsetzt(FormularstandJetzt(), markiert ? std::optional(markiert->ort) : std::nullopt);
    {
        const Schritt schritt(pruefungtexte::schrittname);
        FelderSetzen(pruefungtexte::schrittname, Feldtexte(texte));
        for (const Ersatztext& text : texte) {
            KopfSetzen(*form->fenster(), text);
        }
    }
    form->NachVorn(); // where a step back is at hand
    Nachsehen();
    // A box that was left with a mark in it speaks first.
    const std::string text = texte.size() == 1
                                 ? std::string(pruefungtexte::einenErsetzt)
                                 : Einsetzen(pruefungtexte::ersetzt, {std::to_string(texte.size())});
    QMetaObject::invokeMethod(
        this, [text] { HilfeText(text); }, Qt::QueuedConnection);
}
