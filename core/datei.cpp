#include "core/datei.h"

#include "core/pfad.h"
#include "core/plattform.h"
#include "core/programmstand.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryFile>

#include <new>

namespace {

[[nodiscard]] QString NativerDateipfad(std::string_view pfad) {
    if (pfad.empty() || pfad.find('\0') != std::string_view::npos) {
        throw Laufzeitfehler(Fehler::DateinameFalsch);
    }
    return NativerPfad(pfad);
}

[[nodiscard]] plattform::Art ArtVonPfad(std::string_view pfad) {
    try {
        return plattform::ArtVon(NativerDateipfad(pfad));
    } catch (const Laufzeitfehler&) {
        return plattform::Art::Nichts; // a name that can't exist
    }
}

// The old file, which can be written: where it can't be read, it is the save that is refused.
[[nodiscard]] std::string AltesLesen(const QString& ziel) {
    try {
        return plattform::Lesen(ziel, groessteDatei);
    } catch (const Laufzeitfehler& fehler) {
        throw fehler.art() == Fehler::DateinameFalsch ? Laufzeitfehler(Fehler::ZugriffVerweigert) : fehler;
    }
}

// The folder is closed, so the file itself is overwritten. Killed at any step, either the file or the copy is
// whole; a copy whose file couldn't be put right again stays.
void AnOrtSchreiben(const QString& ziel, std::string_view bytes) {
    const std::string alt = AltesLesen(ziel);
    const QString kopie = plattform::KopieAblegen(ziel, alt);
    try {
        plattform::AnOrtUeberschreiben(ziel, bytes);
    } catch (const Laufzeitfehler&) {
        try {
            plattform::AnOrtUeberschreiben(ziel, alt);
            plattform::Loeschen(kopie);
        } catch (const Laufzeitfehler&) {
            // The copy is the only whole file now; the first error is the one to report.
        }
        throw;
    }
    try {
        plattform::Loeschen(kopie);
    } catch (const Laufzeitfehler&) {
        // A copy too many does no harm.
    }
}

} // namespace

std::string DateiLesen(std::string_view pfad, std::size_t hoechstens) {
    const QString nativ = NativerDateipfad(pfad);
    try {
        return plattform::Lesen(nativ, hoechstens);
    } catch (const std::bad_alloc&) {
        throw Laufzeitfehler(Fehler::SpeicherVoll);
    }
}

void DateiSchreiben(std::string_view pfad, std::string_view bytes) {
    const QString nativ = NativerDateipfad(pfad);
    if (!plattform::DauerhaftErsetzen(nativ, bytes)) {
        AnOrtSchreiben(nativ, bytes);
    }
}

void ResteEntfernen(std::string_view ordner) {
    const QString wurzel = NativerPfad(ordner);
    if (wurzel.isEmpty()) {
        return; // or it would be the current folder
    }
    plattform::ResteLoeschen(wurzel);
    QDirIterator unterordner(wurzel, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (unterordner.hasNext()) {
        plattform::ResteLoeschen(unterordner.next());
    }
}

bool DateiDa(std::string_view pfad) {
    const plattform::Art art = ArtVonPfad(pfad);
    return art == plattform::Art::Datei || art == plattform::Art::Anderes;
}

bool OrdnerDa(std::string_view pfad) {
    return ArtVonPfad(pfad) == plattform::Art::Ordner;
}

bool OrdnerBeschreibbar(std::string_view pfad) {
    return OrdnerDa(pfad) &&
           QTemporaryFile(NativerDateipfad(pfad) + QStringLiteral("/.feldkranz-XXXXXX")).open();
}

void DateiKopieren(std::string_view quelle, std::string_view ziel) {
    DateiSchreiben(ziel, DateiLesen(quelle));
}

void DateiLoeschen(std::string_view pfad) {
    plattform::Loeschen(NativerDateipfad(pfad));
}

void OrdnerAnlegen(std::string_view pfad) {
    plattform::OrdnerAnlegen(NativerDateipfad(pfad));
}

void OrdnerLoeschen(std::string_view pfad) {
    plattform::OrdnerLoeschen(NativerDateipfad(pfad));
}

std::int64_t DateiGroesse(std::string_view pfad) {
    return plattform::Nachsehen(NativerDateipfad(pfad)).groesse;
}

std::int64_t DateiZeit(std::string_view pfad) {
    return plattform::Nachsehen(NativerDateipfad(pfad)).geaendert;
}

std::string DateiDatum(std::string_view pfad) {
    return QDateTime::fromSecsSinceEpoch(DateiZeit(pfad))
        .toString(QStringLiteral("dd.MM.yyyy hh:mm:ss"))
        .toStdString();
}
