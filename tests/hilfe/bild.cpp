#include "tests/hilfe/bild.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

namespace {

QString Ablegen(const QPixmap& bild, const QString& name) {
    const QString ordner = QStringLiteral(FELDKRANZ_BILDER);
    QString pfad = ordner + u'/' + name + QStringLiteral(".png");
    if (!QDir().mkpath(ordner) || !bild.save(pfad)) {
        qWarning("Can't write %s", qPrintable(pfad));
    }
    return pfad;
}

} // namespace

QString BildVon(QWidget* fenster, const QString& name) {
    return Ablegen(fenster->grab(), name);
}

QString BildVomBildschirm(const QString& name) {
    return Ablegen(QGuiApplication::primaryScreen()->grabWindow(0), name);
}
