#include "core/pfad.h"

#include "core/plattform.h"

#include <QDir>
#include <QStringList>

#include <algorithm>
#include <map>

namespace {

constexpr QChar breiterBackslash(0xFF3C);
constexpr QChar unlesbar(0xFFFD);

// What the user chose by its upper-cased path: files, and the folders of those files.
std::map<QString, QString> gemerkteDateien;
std::map<QString, QString> gemerkteOrdner;

// A name of the file system as the program shows it.
[[nodiscard]] QString Gezeigt(QString name) {
    if constexpr (plattform::unterscheidetSchreibung) {
        name.replace(QLatin1Char('\\'), breiterBackslash);
    }
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar zeichen = name.at(i);
        const bool paar = zeichen.isHighSurrogate() ? i + 1 < name.size() && name.at(i + 1).isLowSurrogate()
                                                    : i > 0 && name.at(i - 1).isHighSurrogate();
        if (zeichen.isSurrogate() && !paar) {
            name[i] = unlesbar;
        }
    }
    return name;
}

[[nodiscard]] QString MitSchraegstrichen(std::string_view pfad) {
    QString text = QString::fromUtf8(pfad.data(), static_cast<qsizetype>(pfad.size()));
    return text.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

// Folder of a path with slashes, its last slash included; "" for none.
[[nodiscard]] QString Ordnerteil(const QString& pfad) {
    return pfad.left(pfad.lastIndexOf(QLatin1Char('/')) + 1);
}

[[nodiscard]] QString OhneEndstriche(QString pfad) {
    while (pfad.endsWith(QLatin1Char('/'))) {
        pfad.chop(1);
    }
    return pfad;
}

[[nodiscard]] QString Wurzel(const QString& pfad) {
    return pfad.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
}

[[nodiscard]] bool Vorhanden(const QString& nativ) {
    return plattform::ArtVon(nativ) != plattform::Art::Nichts;
}

// Names in the folder that mean the given part: exactly the same first, then in a fixed order those that
// differ in case.
[[nodiscard]] QStringList Kandidaten(const QString& ordner, const QString& teil) {
    QStringList namen;
    try {
        for (const QString& name : plattform::NamenLesen(ordner.isEmpty() ? QStringLiteral(".") : ordner)) {
            if (Gezeigt(name).compare(teil, Qt::CaseInsensitive) == 0) {
                namen += name;
            }
        }
    } catch (const Laufzeitfehler&) {
        // What a folder doesn't show can still be there under exactly its name.
    }
    std::ranges::sort(namen);
    if (Vorhanden(ordner + teil)) {
        namen.removeAll(teil);
        namen.prepend(teil);
    }
    return namen;
}

// Goes down the parts from a folder ("" or with a slash at its end) as deep as the whole path exists. True
// with the path in treffer.
[[nodiscard]] bool Suchen(const QString& ordner, const QStringList& teile, qsizetype stelle,
                          QString& treffer) {
    if (stelle == teile.size()) {
        treffer = ordner;
        return true;
    }
    const QString genau = ordner + teile.mid(stelle).join(QLatin1Char('/'));
    if (Vorhanden(genau)) {
        treffer = genau + QLatin1Char('/');
        return true;
    }
    const QStringList namen = Kandidaten(ordner, teile.at(stelle));
    return std::ranges::any_of(namen, [&](const QString& name) {
        const QString gefunden = ordner + name;
        return Vorhanden(gefunden) && Suchen(gefunden + QLatin1Char('/'), teile, stelle + 1, treffer);
    });
}

// The path with its existing part as it is written on the disk.
[[nodiscard]] QString Aufgesucht(const QString& wurzel, const QStringList& teile) {
    for (qsizetype anzahl = teile.size(); anzahl > 0; --anzahl) {
        QString treffer;
        if (Suchen(wurzel, teile.first(anzahl), 0, treffer)) {
            const QString rest = teile.mid(anzahl).join(QLatin1Char('/'));
            return rest.isEmpty() ? treffer.chopped(1) : treffer + rest;
        }
    }
    return wurzel + teile.join(QLatin1Char('/'));
}

} // namespace

QString NativerPfad(std::string_view pfad) {
    QString gegeben = MitSchraegstrichen(pfad);
    if (const auto datei = gemerkteDateien.find(gegeben); datei != gemerkteDateien.end()) {
        return datei->second;
    }
    if constexpr (!plattform::unterscheidetSchreibung) {
        return gegeben;
    }
    if (const auto selbst = gemerkteOrdner.find(OhneEndstriche(gegeben) + QLatin1Char('/'));
        selbst != gemerkteOrdner.end() && !gegeben.isEmpty()) {
        return selbst->second.size() > 1 ? selbst->second.chopped(1) : selbst->second;
    }
    const auto ordner = gemerkteOrdner.find(Ordnerteil(gegeben));
    const bool gemerkt = ordner != gemerkteOrdner.end();
    const QString wurzel = gemerkt ? ordner->second : Wurzel(gegeben);
    const QString rest = gemerkt ? gegeben.mid(ordner->first.size()) : gegeben;
    const QStringList teile = rest.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    return teile.isEmpty() ? wurzel : Aufgesucht(wurzel, teile);
}

std::string EigenerPfad(const QString& nativ) {
    return Gezeigt(nativ).replace(QLatin1Char('/'), QLatin1Char('\\')).toStdString();
}

std::string PfadVerbinden(std::string_view ordner, std::string_view name) {
    std::string pfad(ordner);
    if (!pfad.ends_with('\\') && !pfad.ends_with('/')) {
        pfad += '\\';
    }
    return pfad.append(name);
}

void AuswahlMerken(std::string_view grossgeschrieben, const QString& nativ) {
    const QString gross = OhneEndstriche(MitSchraegstrichen(grossgeschrieben));
    const QString genau = OhneEndstriche(nativ);
    const plattform::Art art = plattform::ArtVon(genau);
    if (art == plattform::Art::Datei || art == plattform::Art::Anderes) {
        gemerkteDateien[gross] = genau;
    } else {
        gemerkteDateien.erase(gross); // the name of a new file is looked up like any other
    }
    // A name that holds a backslash itself has its folder elsewhere than the path seems to say.
    const QString name = Gezeigt(genau.mid(Ordnerteil(genau).size()));
    if (name.compare(gross.mid(Ordnerteil(gross).size()), Qt::CaseInsensitive) == 0) {
        gemerkteOrdner[Ordnerteil(gross)] = Ordnerteil(genau);
    }
}

void OrdnerMerken(std::string_view pfad, const QString& nativ) {
    gemerkteOrdner[OhneEndstriche(MitSchraegstrichen(pfad)) + QLatin1Char('/')] =
        OhneEndstriche(nativ) + QLatin1Char('/');
}

std::vector<Laufwerk> Laufwerke() {
    std::vector<Laufwerk> laufwerke;
    for (const QString& wurzel : plattform::Wurzeln()) {
        const QString name = wurzel.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
        laufwerke.push_back({wurzel, name.isEmpty() ? wurzel : name});
    }
    return laufwerke;
}
