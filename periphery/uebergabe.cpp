#include "periphery/uebergabe.h"

#include <QDesktopServices>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace {

std::function<bool(const std::string&)> ersatz;

constexpr std::array<std::string_view, 3> erlaubt{"mailto:", "http:", "https:"};

} // namespace

bool AnSystemUebergeben(std::string_view adresse) {
    if (std::ranges::none_of(erlaubt, [adresse](std::string_view schema) {
            return adresse.substr(0, schema.size()) == schema;
        })) {
        return false;
    }
    if (ersatz) {
        return ersatz(std::string(adresse));
    }
    return QDesktopServices::openUrl(
        QUrl(QString::fromUtf8(adresse.data(), static_cast<qsizetype>(adresse.size()))));
}

bool DokumentUebergeben(const QString& datei) {
    if (!datei.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
        return false;
    }
    const QUrl adresse = QUrl::fromLocalFile(datei);
    return ersatz ? ersatz(adresse.toString(QUrl::FullyEncoded).toStdString())
                  : QDesktopServices::openUrl(adresse);
}

void UebergabeErsetzen(std::function<bool(const std::string& adresse)> empfaenger) {
    ersatz = std::move(empfaenger);
}
