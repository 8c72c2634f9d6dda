#include "search/formularblick.h"

#include "core/datei.h"
#include "core/laufzeitfehler.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/plattform.h"
#include "persistence/formulardatei.h"
#include "quizform/quizformular.h"

#include <QDateTime>
#include <QDir>

#include <new>
#include <utility>
#include <vector>

namespace {

template <typename Texte>
std::vector<std::uint64_t> Abdruecke(const Texte& fragen) {
    std::vector<std::uint64_t> abdruecke;
    for (const std::string& frage : fragen) {
        if (const std::uint64_t abdruck = AbdruckVon(frage); abdruck != 0) {
            abdruecke.push_back(abdruck);
        }
    }
    return abdruecke;
}

std::string Tag(std::int64_t zeit) {
    return QDateTime::fromMSecsSinceEpoch(zeit).toString(QStringLiteral("dd.MM.yyyy")).toStdString();
}

// A file that can't be read, or is no form, has no questions.
void Einlesen(const QString& pfad, Formulareintrag& eintrag) {
    try {
        const std::string bytes = plattform::Lesen(pfad, groesstesFormular);
        Formularwerte werte;
        if (!IstFormular(bytes)) {
            return;
        }
        static_cast<void>(FormularAusBytes(bytes, Formart::Keine, werte, {})); // what was read counts
        const bool test = werte.art == Formart::Test;
        eintrag.abdruecke = test ? Abdruecke(werte.test.HBFrageText) : Abdruecke(werte.quiz.FrageText);
        if (const std::string datum = Getrimmt(werte.quiz.FormDatum); !test && !datum.empty()) {
            eintrag.datum = datum;
        }
    } catch (const Laufzeitfehler&) {
        eintrag.abdruecke.clear();
    } catch (const std::bad_alloc&) {
        eintrag.abdruecke.clear();
    }
}

std::vector<QString> Formulare(const QString& ordner) {
    std::vector<QString> pfade;
    try {
        for (const QString& name : plattform::NamenLesen(ordner)) {
            if (!name.startsWith(QLatin1Char('.')) && MusterPasst(name.toStdString(), "*.FKR")) {
                pfade.push_back(QDir(ordner).filePath(name));
            }
        }
    } catch (const Laufzeitfehler&) {
        // A folder that isn't there has no forms.
    }
    return pfade;
}

} // namespace

Formularort FormularortVon(const std::string& ordner) {
    return {NativerPfad(ordner), ordner};
}

std::string Eintragspfad(std::string_view pfad) {
    return Grossschreiben(pfad);
}

bool Formularblick::Nachsehen(std::span<const Formularort> orte, const std::function<bool()>& weiter) {
    std::map<QString, Bekannt> neu;
    bool anders = false;
    for (const Formularort& ort : orte) {
        for (const QString& pfad : Formulare(ort.nativ)) {
            if (!weiter()) {
                return false;
            }
            const auto alt = bekannt_.find(pfad);
            Bekannt jetzt{SpurVon(pfad), {}};
            if (jetzt.spur.groesse < 0) {
                continue; // a folder of that name
            }
            if (alt != bekannt_.end() && Unveraendert(alt->second.spur, jetzt.spur)) {
                jetzt = alt->second;
            } else {
                const std::string name = QFileInfo(pfad).fileName().toStdString();
                jetzt.eintrag = {Eintragspfad(PfadVerbinden(ort.eigen, name)),
                                 name,
                                 Tag(jetzt.spur.zeit),
                                 jetzt.spur.zeit,
                                 {}};
                Einlesen(pfad, jetzt.eintrag);
                anders = anders || alt == bekannt_.end() || !(alt->second.eintrag == jetzt.eintrag);
            }
            neu.insert_or_assign(pfad, std::move(jetzt));
        }
    }
    anders = anders || neu.size() != bekannt_.size();
    bekannt_ = std::move(neu);
    if (anders) {
        std::vector<Formulareintrag> formulare;
        for (const auto& [pfad, bekannt] : bekannt_) {
            formulare.push_back(bekannt.eintrag);
        }
        benutzung_ = std::make_shared<const Benutzung>(std::move(formulare));
    }
    return anders;
}
