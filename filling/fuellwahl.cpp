#include "filling/fuellwahl.h"

#include "core/oberflaeche.h"
#include "filling/brettwahl.h"
#include "filling/testwahl.h"
#include "filling/texte.h"
#include "persistence/extrasdatei.h"

#include <QCheckBox>

namespace {

// As the file of what is kept calls it.
std::string Schluessel(const QObject& schalter) {
    return "Fuellen." + Modelltext(schalter.objectName());
}

} // namespace

Fuellwahl* Fuellwahl::Fuer(const Formularstand& stand, QWidget* eltern) {
    if (const auto* quiz = std::get_if<Quizstand>(&stand.form); quiz != nullptr) {
        return new Brettwahl(eltern, *quiz); // belongs to eltern
    }
    return new Testwahl(eltern, std::get<Teststand>(stand.form));
}

Fuellwahl::Fuellwahl(QWidget* eltern) : QWidget(eltern) {}

QCheckBox* Fuellwahl::UnbenutztBauen() {
    chkUnbenutzt_ = SchalterBauen("chkUnbenutzt", fuelltexte::nurUnbenutzte);
    return chkUnbenutzt_;
}

QCheckBox* Fuellwahl::SchalterBauen(const char* name, std::string_view aufschrift) {
    auto* schalter = new QCheckBox(Anzeige(aufschrift), this);
    schalter->setObjectName(QLatin1String(name));
    schalter->setFont(Schrift(8.25_pt));
    schalter->setChecked(ExtraWert(Schluessel(*schalter)) != "0");
    connect(schalter, &QCheckBox::toggled, this, [this, schalter](bool an) {
        ExtraSetzen(Schluessel(*schalter), an ? "1" : "0");
        Q_EMIT anders();
    });
    return schalter;
}

bool Fuellwahl::nurUnbenutzte() const {
    return chkUnbenutzt_->isChecked();
}
