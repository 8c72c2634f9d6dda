// Texts of the catalogue as the regular expressions of its checks see them.
#pragma once

#include <QRegularExpression>
#include <QString>

#include <string_view>

[[nodiscard]] inline QString Text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// A word ends behind ß as well.
[[nodiscard]] inline QRegularExpression Muster(const QString& muster) {
    return QRegularExpression(muster, QRegularExpression::UseUnicodePropertiesOption);
}

[[nodiscard]] inline bool Trifft(const QRegularExpression& muster, const QString& text) {
    return muster.match(text).hasMatch();
}
