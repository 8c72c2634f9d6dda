#include "start/einrichtungsbalken.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "start/texte.h"

#include <QElapsedTimer>

#include <utility>

Einrichtungsbalken::Einrichtungsbalken(Einrichtung einrichtung, QWidget* eltern)
    : Panel(eltern, QStringLiteral("pnlEinrichten")), einrichtung_(std::move(einrichtung)) {
    setAccessibleName(QStringLiteral("Fortschritt"));
    setFont(Schrift(8.25_pt));
    setFarben(Qfarbe({0, 223, 0}), Qt::black);
    setFocusPolicy(Qt::NoFocus);
    setValue(0.0);
    connect(&uhr_, &QTimer::timeout, this, &Einrichtungsbalken::Weiter);
    uhr_.start(0);
}

void Einrichtungsbalken::Weiter() {
    constexpr qint64 atemzug = 30; // ms until the window gets its events again
    QElapsedTimer zeit;
    zeit.start();
    while (!einrichtung_.fertig() && zeit.elapsed() < atemzug) {
        einrichtung_.Schritt();
    }
    setValue(einrichtung_.prozent());
    if (!einrichtung_.fertig()) {
        return;
    }
    uhr_.stop();
    if (const auto& fehler = einrichtung_.fehler(); fehler) {
        Meldung(starttexte::nichtEingerichtet, {fehler->pfad, fehler->grund.text()});
    }
    Q_EMIT fertig();
}

void DanebenliegendesMelden() {
    const std::vector<std::string> pfade = UngemeldetesHolen(Stand.AppPfad);
    if (!pfade.empty()) {
        HilfeText(Danebentext(pfade));
    }
}
