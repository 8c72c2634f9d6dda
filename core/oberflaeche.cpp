#include "core/oberflaeche.h"

#include "core/bilder.h"
#include "core/lesehilfe.h"
#include "core/palettenstil.h"

#include <QApplication>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>
#include <QTranslator>
#include <QWidget>

namespace {

QSize vorgegebeneGroesse;

} // namespace

// Piece by piece: the toolkit's own replacing moves the rest of a long text again and again.
QString Anzeige(std::string_view text) {
    std::string zeilen;
    zeilen.reserve(text.size());
    for (std::size_t ende = 0; (ende = text.find("\r\n")) != std::string_view::npos;) {
        zeilen.append(text.substr(0, ende)) += '\n';
        text.remove_prefix(ende + 2);
    }
    zeilen.append(text);
    return QString::fromStdString(zeilen);
}

std::string Modelltext(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    std::string_view rest(utf8.constData(), static_cast<std::size_t>(utf8.size()));
    std::string modell;
    modell.reserve(rest.size() + rest.size() / 16);
    for (std::size_t ende = 0; (ende = rest.find('\n')) != std::string_view::npos;) {
        const std::string_view zeile = rest.substr(0, ende);
        modell.append(zeile).append(zeile.ends_with('\r') ? "\n" : "\r\n");
        rest.remove_prefix(ende + 1);
    }
    return modell.append(rest);
}

QColor Systemflaeche() {
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Button);
}

QFont Schrift(Schriftpunkte groesse, bool fett) {
    QFont schrift(QStringList{QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    schrift.setPixelSize(Pixel(groesse));
    schrift.setBold(fett);
    return schrift;
}

void SanduhrZeigen() {
    if (QGuiApplication::overrideCursor() == nullptr) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
}

void NormalerZeiger() {
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
}

void OberflaecheEinrichten() {
    QApplication::setStyle(new Palettenstil(QStyleFactory::create(QStringLiteral("Fusion"))));
    LesehilfeEinrichten();
    QApplication::setPalette(Programmpalette(false));
    QApplication::setFont(Schrift(9_pt));
    QApplication::setWindowIcon(Programmzeichen(48));
    auto* uebersetzung = new QTranslator(qApp);
    // Without the toolkit's German texts its few own buttons speak English; nothing else is lost.
    if (uebersetzung->load(QStringLiteral(":/uebersetzung/qtbase_de.qm"))) {
        QCoreApplication::installTranslator(uebersetzung);
    }
}

QSize Bildschirmgroesse(const QWidget* fenster) {
    if (!vorgegebeneGroesse.isEmpty()) {
        return vorgegebeneGroesse;
    }
    const QScreen* schirm = fenster != nullptr ? fenster->screen() : QGuiApplication::primaryScreen();
    return schirm != nullptr ? schirm->size() : QSize(1280, 1024);
}

void BildschirmgroesseVorgeben(QSize groesse) {
    vorgegebeneGroesse = groesse;
}

void TwipsGeometrie(QWidget* steuerelement, Twips links, Twips oben, Twips breite, Twips hoehe) {
    const int x = Pixel(links);
    const int y = Pixel(oben);
    steuerelement->setGeometry(x, y, Pixel(links + breite) - x, Pixel(oben + hoehe) - y);
}
