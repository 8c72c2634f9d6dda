#include "core/plattform.h"
#include "core/plattform_windows.h"

#include <algorithm>

namespace plattform {

namespace {

constexpr QLatin1String anfang(".feldkranz-");
constexpr QLatin1String endung(".neu");

// Opened alone, a scrap goes with its handle; one that somebody writes is open already.
void VerwaistenLoeschen(const QString& pfad) {
    const Griff datei(::CreateFileW(Systempfad(pfad).c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

} // namespace

QString Restname(quint64 nummer) {
    return anfang + QString::number(nummer, 16) + endung;
}

bool IstRestname(const QString& name) {
    constexpr qsizetype laengste = 16;
    if (!name.startsWith(anfang) || !name.endsWith(endung) || name.size() <= anfang.size() + endung.size()) {
        return false;
    }
    const QString nummer = name.mid(anfang.size()).chopped(endung.size());
    return nummer.size() <= laengste && std::ranges::all_of(nummer, [](QChar ziffer) {
               return QStringLiteral("0123456789abcdef").contains(ziffer);
           });
}

void ResteLoeschen(const QString& ordner) {
    try {
        for (const QString& name : NamenLesen(ordner)) {
            if (IstRestname(name)) {
                VerwaistenLoeschen(ordner + QLatin1Char('/') + name);
            }
        }
    } catch (const Laufzeitfehler&) {
        // A folder that can't be read keeps what it has.
    }
}

} // namespace plattform
