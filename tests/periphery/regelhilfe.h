// What the tests of the rule document share: documents to read, and ways to the window and its parts.
#pragma once

#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "dialogs/modal.h"
#include "mainwindow/frmMDI.h"
#include "periphery/dokumentansicht.h"
#include "periphery/frmBrowser.h"
#include "periphery/spielregel.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/rundgang.h"
#include "tests/periphery/zusatzordner.h"

#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

inline const QString regel = QStringLiteral("REGEL/Feldkranz.pdf");

// Pages of A4; each has its number, and the word Kranzfeld stands once on the first and twice on the third.
inline QByteArray Dokument(int seiten) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter schreiber(&puffer);
        schreiber.setPageSize(QPageSize(QPageSize::A4));
        schreiber.setResolution(72);
        QPainter maler(&schreiber);
        maler.setFont(QFont(QStringLiteral("Liberation Sans"), 14));
        for (int seite = 1; seite <= seiten; ++seite) {
            if (seite > 1) {
                schreiber.newPage();
            }
            maler.drawText(40, 60, QStringLiteral("Das ist die Seite Nummer %1.").arg(seite));
            for (int zeile = 0; zeile < 24; ++zeile) {
                maler.drawText(
                    40, 90 + 22 * zeile,
                    QStringLiteral("Die Häuptlinge stellen ihre Fragen reihum, Zeile %1.").arg(zeile));
            }
            if (seite == 1 || seite == 3) {
                maler.drawText(40, 640, QStringLiteral("Ein Kranzfeld mit Glück"));
            }
            if (seite == 3) {
                maler.drawText(40, 680, QStringLiteral("noch ein KRANZFELD"));
            }
        }
    }
    return bytes;
}

// As a file looks whose password nobody knows.
inline QByteArray Verschluesselt() {
    QByteArray bytes = "%PDF-1.4\n"
                       "1 0 obj <</Type /Catalog /Pages 2 0 R>> endobj\n"
                       "2 0 obj <</Type /Pages /Kids [3 0 R] /Count 1>> endobj\n"
                       "3 0 obj <</Type /Page /Parent 2 0 R /MediaBox [0 0 300 300]>> endobj\n";
    bytes += "4 0 obj <</Filter /Standard /V 1 /R 2 /P -4 /O <" + QByteArray(64, '1') + "> /U <" +
             QByteArray(64, '2') + ">>> endobj\n";
    bytes += "trailer <</Root 1 0 R /Size 5 /Encrypt 4 0 R /ID [<01> <01>]>>\n%%EOF\n";
    return bytes;
}

inline void Zeigen(const Programm& programm) {
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdSpielregel"))->click();
}

inline Dokumentansicht* Ansicht() {
    return dynamic_cast<Dokumentansicht*>(Finden(BrowserOffen(), QStringLiteral("seitenansicht")));
}

inline QString Regelstand() {
    return Finden<QLabel>(BrowserOffen(), QStringLiteral("lblStand"))->text();
}

inline void Klick(const char* name) {
    QTest::mouseClick(Finden(BrowserOffen(), QLatin1String(name)), Qt::LeftButton);
}

// Number of the pixels of about that colour in the control's pages.
inline int Bildpunkte(const QColor& farbe) {
    const QImage bild =
        qobject_cast<QAbstractScrollArea*>(Ansicht()->Steuerelement())->viewport()->grab().toImage();
    int zahl = 0;
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor hier = bild.pixelColor(x, y);
            zahl += qAbs(hier.red() - farbe.red()) + qAbs(hier.green() - farbe.green()) +
                                qAbs(hier.blue() - farbe.blue()) <
                            12
                        ? 1
                        : 0;
        }
    }
    return zahl;
}
