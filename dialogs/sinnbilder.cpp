#include "dialogs/sinnbilder.h"

#include "core/bilder.h"
#include "core/oberflaeche.h"

#include <QGuiApplication>
#include <QLabel>

QLabel* SinnbildLabel(QWidget* eltern, const char* feld, int nummer, const Sinnbild& sinnbild) {
    auto* label = new QLabel(eltern);
    label->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(feld)).arg(nummer));
    label->setAccessibleName(Anzeige(sinnbild.wort));
    label->setPixmap(Bild(sinnbild.bild, qGuiApp->devicePixelRatio()));
    label->resize(32, 32);
    label->hide();
    return label;
}
