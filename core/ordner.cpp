#include "core/datei.h"
#include "core/pfad.h"
#include "core/plattform.h"

#include <QCollator>
#include <QStringList>

#include <algorithm>

namespace {

// Whether a name matches one pattern, both in folded case: on a mismatch the last "*" takes one more
// character.
[[nodiscard]] bool PasstZu(const QString& name, const QString& muster) {
    qsizetype stelle = 0;
    qsizetype im = 0;
    qsizetype stern = -1;
    qsizetype ab = 0;
    while (stelle < name.size()) {
        if (im < muster.size() && muster.at(im) == QLatin1Char('*')) {
            stern = im++;
            ab = stelle;
        } else if (im < muster.size() &&
                   (muster.at(im) == QLatin1Char('?') || muster.at(im) == name.at(stelle))) {
            ++im;
            ++stelle;
        } else if (stern >= 0) {
            im = stern + 1;
            stelle = ++ab;
        } else {
            return false;
        }
    }
    return std::all_of(muster.begin() + im, muster.end(),
                       [](QChar rest) { return rest == QLatin1Char('*'); });
}

[[nodiscard]] QString Text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

[[nodiscard]] bool MusterPasst(const QString& name, const QString& muster) {
    const QStringList einzelne = muster.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    return std::ranges::any_of(einzelne, [&](const QString& einzelnes) {
        const QString gesucht = einzelnes.trimmed();
        return gesucht == QLatin1String("*.*") || PasstZu(name.toCaseFolded(), gesucht.toCaseFolded());
    });
}

// The visible names that are wanted, sorted: ä stands with a, and case doesn't count unless nothing else
// tells two names apart.
template <typename Bedingung>
[[nodiscard]] std::vector<std::string> NamenIn(std::string_view ordner, Bedingung gewollt) {
    QStringList namen;
    for (const plattform::Eintrag& eintrag : plattform::OrdnerLesen(NativerPfad(ordner))) {
        if (!eintrag.name.startsWith(QLatin1Char('.')) && gewollt(eintrag)) {
            namen += eintrag.name;
        }
    }
    QCollator ordnung(QLocale(QLocale::German, QLocale::Germany));
    ordnung.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(namen, [&](const QString& links, const QString& rechts) {
        const int vergleich = ordnung.compare(links, rechts);
        return vergleich != 0 ? vergleich < 0 : links < rechts;
    });
    std::vector<std::string> ergebnis;
    ergebnis.reserve(static_cast<std::size_t>(namen.size()));
    std::ranges::transform(namen, std::back_inserter(ergebnis), EigenerPfad);
    return ergebnis;
}

} // namespace

bool MusterPasst(std::string_view name, std::string_view muster) {
    return MusterPasst(Text(name), Text(muster));
}

std::vector<std::string> DateienIn(std::string_view ordner, std::string_view muster) {
    const QString gesucht = Text(muster);
    return NamenIn(ordner, [&](const plattform::Eintrag& eintrag) {
        return !eintrag.ordner && MusterPasst(eintrag.name, gesucht);
    });
}

std::vector<std::string> OrdnerIn(std::string_view ordner) {
    return NamenIn(ordner, [](const plattform::Eintrag& eintrag) { return eintrag.ordner; });
}
