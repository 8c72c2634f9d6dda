#include "persistence/dateiblick.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "core/plattform.h"

#include <QByteArray>
#include <QCryptographicHash>

Dateistand StandVon(std::string_view bytes) {
    const QByteArray ansicht = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return {Dateistand::Art::Inhalt, bytes.size(),
            QCryptographicHash::hash(ansicht, QCryptographicHash::Blake2b_256).toStdString()};
}

// What can't be read is neither taken for gone nor for known: then a save would destroy it without a word.
// Nor does it keep the save away for ever: the person is asked, and knows more than a broken disk tells.
Dateistand StandAuf(std::string_view pfad) {
    try {
        return StandVon(DateiLesen(pfad));
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.art() == Fehler::DateiNichtGefunden) {
            return {};
        }
        const bool keine = fehler.art() == Fehler::DateinameFalsch &&
                           plattform::ArtVon(NativerPfad(pfad)) != plattform::Art::Datei;
        return {keine ? Dateistand::Art::KeineDatei : Dateistand::Art::Unlesbar, 0, {}};
    }
}

void BekanntSchreiben(std::string_view pfad, std::string_view bytes, Dateikenntnis& kenntnis) {
    const Dateistand neu = StandVon(bytes);
    kenntnis.Ergaenzen(neu);
    DateiSchreiben(pfad, bytes);
    kenntnis = Dateikenntnis(neu);
}
