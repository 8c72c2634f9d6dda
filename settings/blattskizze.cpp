#include "settings/blattskizze.h"

#include "core/bilder.h"

Blattskizze::Blattskizze(QWidget* eltern, const QString& name, bool halb) : QLabel(eltern) {
    setObjectName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setPixmap(Bild(halb ? "papier/halb" : "papier/quer", devicePixelRatioF()));
}
