#include "search/katalogblick.h"

#include "catalogue/katalogdatei.h"
#include "catalogue/themen.h"
#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/plattform.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <new>
#include <optional>
#include <utility>

namespace {

// Names of a folder, upper-cased, with the names as they are.
using Namen = std::map<std::string, QString>;

Namen NamenVon(const QString& ordner) {
    Namen namen;
    try {
        for (const QString& name : plattform::NamenLesen(ordner)) {
            namen.emplace(Grossschreiben(name.toStdString()), name);
        }
    } catch (const Laufzeitfehler&) {
        // A folder without names: each of its files is told as one that can't be read.
    }
    return namen;
}

QString Pfad(const QString& ordner, const Namen& namen, std::string_view datei) {
    QString genau = QDir(ordner).filePath(QString::fromStdString(std::string(datei)));
    if (QFileInfo::exists(genau)) {
        return genau;
    }
    const auto fund = namen.find(Grossschreiben(datei));
    return fund == namen.end() ? genau : QDir(ordner).filePath(fund->second);
}

// No value for a file that can't be read.
std::optional<std::string> Bytes(const QString& pfad) {
    try {
        return plattform::Lesen(pfad, groessteDatei);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

// nullptr for bytes that are too many.
Fragenbestand::Datei Datei(const std::string& bytes, const Thema& thema, std::string_view unterthema) {
    Fragenliste fragen;
    try {
        try {
            FragenLesen(bytes, thema.kommentarzeilen, fragen);
        } catch (const Laufzeitfehler& fehler) {
            if (fehler.art() != Fehler::DateiZuEnde) {
                throw;
            }
            // A last record cut short is left out, as everywhere.
        }
        return BestandsdateiAus(thema.name, unterthema, std::move(fragen));
    } catch (const Laufzeitfehler&) {
        return nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

Dateispur SpurVon(const QString& datei) {
    const QFileInfo auskunft(datei);
    if (!auskunft.isFile()) {
        return {};
    }
    constexpr std::int64_t uhrschritt = 2000; // ms, of the coarsest file systems
    const std::int64_t zeit = auskunft.lastModified().toMSecsSinceEpoch();
    return {auskunft.size(), zeit, QDateTime::currentMSecsSinceEpoch() - zeit < uhrschritt};
}

bool Unveraendert(const Dateispur& bekannt, const Dateispur& jetzt) {
    return !bekannt.frisch && bekannt.groesse == jetzt.groesse && bekannt.zeit == jetzt.zeit;
}

std::vector<QString> Katalogordner(const std::string& appPfad) {
    std::vector<QString> ordner;
    for (const Thema& thema : Themen()) {
        ordner.push_back(NativerPfad(appPfad + "\\WISSEN\\" + std::string(thema.ordner)));
    }
    return ordner;
}

void Katalogblick::Aktualisieren(Bekannt& datei, const QString& pfad, const Thema& thema,
                                 std::string_view unterthema) {
    const Dateispur jetzt = SpurVon(pfad);
    // One that couldn't be read is tried again: that it may be read now changes nothing about it.
    if (datei.fragen != nullptr && Unveraendert(datei.spur, jetzt)) {
        return;
    }
    datei.spur = jetzt;
    const std::optional<std::string> bytes = Bytes(pfad);
    const std::size_t abdruck = bytes ? std::hash<std::string>()(*bytes) : 0;
    if (bytes && datei.fragen != nullptr && abdruck == datei.abdruck) {
        return; // looked at again, and the same
    }
    const bool war = datei.fragen != nullptr;
    datei.fragen = bytes ? Datei(*bytes, thema, unterthema) : nullptr;
    datei.abdruck = abdruck;
    anders_ = anders_ || war || datei.fragen != nullptr;
    if (datei.fragen == nullptr && (war || !datei.gesehen)) {
        neuUnlesbar_.emplace_back(UnterthemaDatei(thema, unterthema));
    }
    datei.gesehen = true;
}

bool Katalogblick::Nachsehen(std::span<const QString> ordner,
                             const std::function<bool(float getan)>& weiter) {
    anders_ = false;
    neuUnlesbar_.clear();
    std::vector<Fragenbestand::Datei> dateien;
    const auto themen = Themen();
    for (std::size_t t = 0; t < themen.size() && t < ordner.size(); ++t) {
        const Namen namen = NamenVon(ordner[t]);
        const auto anzahl = static_cast<float>(themen[t].unterthemen.size());
        float hier = 0;
        for (const Unterthema& unter : themen[t].unterthemen) {
            if (!weiter((static_cast<float>(t) + hier++ / anzahl) / static_cast<float>(themen.size()))) {
                return false;
            }
            Bekannt& datei = bekannt_[{t, unter.datei}];
            Aktualisieren(datei, Pfad(ordner[t], namen, unter.datei), themen[t], unter.name);
            if (datei.fragen != nullptr) {
                dateien.push_back(datei.fragen);
            }
        }
    }
    if (anders_) {
        bestand_ = std::make_shared<const Fragenbestand>(std::move(dateien));
    }
    return anders_;
}
