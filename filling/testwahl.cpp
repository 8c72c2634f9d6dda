#include "filling/testwahl.h"

#include "catalogue/themen.h"
#include "core/oberflaeche.h"
#include "core/textfeld.h"
#include "filling/befund.h"
#include "filling/texte.h"
#include "persistence/extrasdatei.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr std::string_view zielSchluessel = "Fuellen.txtZielpunkte";
constexpr int zielBreite = 48; // pixels
constexpr int hoechstesZiel = 999;

QLabel* SchildBauen(QWidget* eltern, const char* name, std::string_view text, QWidget* fuer) {
    auto* schild = new QLabel(Anzeige(text), eltern);
    schild->setObjectName(QLatin1String(name));
    schild->setFont(Schrift(8.25_pt));
    schild->setBuddy(fuer);
    return schild;
}

} // namespace

Testwahl::Testwahl(QWidget* eltern, const Teststand& form) : Fuellwahl(eltern) {
    lstUnterthemen_ = new QListWidget(this);
    lstUnterthemen_->setObjectName(QStringLiteral("lstUnterthemen"));
    lstUnterthemen_->setFont(Schrift(8.25_pt));
    lstUnterthemen_->setMinimumSize(200, 80);
    ListeFuellen(WahlAusFach(form.gezeigt.HBFach));
    txtZielpunkte_ = new Textzeile(this, QStringLiteral("txtZielpunkte"));
    txtZielpunkte_->setFont(Schrift(8.25_pt));
    txtZielpunkte_->setFixedWidth(zielBreite);
    txtZielpunkte_->setValidator(new QIntValidator(0, hoechstesZiel, txtZielpunkte_));
    txtZielpunkte_->setWert(ExtraWert(zielSchluessel));
    auto* ziel = new QHBoxLayout;
    ziel->addWidget(SchildBauen(this, "lblZielpunkte", fuelltexte::zielpunkte, txtZielpunkte_));
    ziel->addWidget(txtZielpunkte_);
    ziel->addStretch(1);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(4);
    spalte->addWidget(SchildBauen(this, "lblUnterthemen", fuelltexte::unterthemen, lstUnterthemen_));
    spalte->addWidget(lstUnterthemen_, 1);
    spalte->addLayout(ziel);
    spalte->addWidget(UnbenutztBauen());
    connect(lstUnterthemen_, &QListWidget::itemChanged, this, &Fuellwahl::anders);
    connect(txtZielpunkte_, &QLineEdit::textChanged, this, [this] {
        ExtraSetzen(zielSchluessel, txtZielpunkte_->wert());
        Q_EMIT anders();
    });
}

void Testwahl::ListeFuellen(const std::vector<Themenwahl>& angekreuzt) {
    QListWidgetItem* erstes = nullptr;
    for (const Thema& thema : Themen()) {
        if (!IstFragenthema(thema.name)) {
            continue;
        }
        for (const Unterthema& unter : thema.unterthemen) {
            eintraege_.push_back({std::string(thema.name), std::string(unter.name)});
            auto* eintrag = new QListWidgetItem(
                Anzeige(thema.name) + QStringLiteral(" - ") + Anzeige(unter.name), lstUnterthemen_);
            const bool an = std::ranges::find(angekreuzt, eintraege_.back()) != angekreuzt.end();
            eintrag->setCheckState(an ? Qt::Checked : Qt::Unchecked);
            erstes = an && erstes == nullptr ? eintrag : erstes;
        }
    }
    lstUnterthemen_->setCurrentItem(erstes);
    lstUnterthemen_->scrollToItem(erstes, QAbstractItemView::PositionAtTop);
}

std::optional<int> Testwahl::Zielpunkte() const {
    bool zahl = false;
    const int punkte = txtZielpunkte_->text().toInt(&zahl);
    return zahl ? std::optional(punkte) : std::nullopt;
}

std::vector<Themenwahl> Testwahl::Angekreuzt() const {
    std::vector<Themenwahl> wahl;
    for (int i = 0; i < lstUnterthemen_->count(); ++i) {
        if (lstUnterthemen_->item(i)->checkState() == Qt::Checked) {
            wahl.push_back(eintraege_.at(static_cast<std::size_t>(i)));
        }
    }
    return wahl;
}

Fuellauftrag Testwahl::auftrag(std::shared_ptr<const Fragenvorrat> vorrat, const Formularstand& stand) const {
    return TestauftragAus(std::move(vorrat), std::get<Teststand>(stand.form).gezeigt,
                          {Angekreuzt(), nurUnbenutzte()});
}

Vorschlag Testwahl::vorschlag(const Fuellauftrag& auftrag, std::uint64_t saat) const {
    return Testvorschlag(auftrag, Zielpunkte(), saat);
}

std::string Testwahl::befund(const Fuellauftrag& auftrag, const Vorschlag& vorschlag) const {
    return Testbefund(auftrag, vorschlag, Zielpunkte());
}

void Testwahl::Zeigen(const Fuellauftrag& /*auftrag*/) {}

void Testwahl::StandZeigen(const Formularstand& /*stand*/) {}
