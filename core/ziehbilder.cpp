#include "core/ziehbilder.h"

#include "core/bilder.h"

QPixmap Ziehpixmap(ZiehBild bild, double pixelverhaeltnis) {
    switch (bild) {
    case ZiehBild::Aufnehmen:
        return Bild("ziehen/aufnehmen", pixelverhaeltnis);
    case ZiehBild::Ablegen:
        return Bild("ziehen/ablegen", pixelverhaeltnis);
    case ZiehBild::Nein:
        return Bild("ziehen/nein", pixelverhaeltnis);
    case ZiehBild::Atom:
        return Bild("ziehen/atom", pixelverhaeltnis);
    case ZiehBild::Keins:
        break;
    }
    return {};
}
