// The pictures themselves: sizes, doubles, and that none is told by its colour alone.
#include "core/bilder.h"
#include "core/ziehbilder.h"
#include "mainwindow/frmMDI.h"
#include "tests/bilder/bildvergleich.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QLabel>
#include <QTest>
#include <QtEndian>

#include <cstdlib>

namespace {

// How many points of two pictures of one size differ clearly when there are no colours, on the windows' grey.
int UnterschiedOhneFarbe(const QImage& eins, const QImage& zwei) {
    const auto helligkeit = [](QRgb punkt) {
        constexpr int grund = 230;
        return (qGray(punkt) * qAlpha(punkt) + grund * (255 - qAlpha(punkt))) / 255;
    };
    int anders = 0;
    for (int y = 0; y < eins.height(); ++y) {
        for (int x = 0; x < eins.width(); ++x) {
            anders += std::abs(helligkeit(eins.pixel(x, y)) - helligkeit(zwei.pixel(x, y))) > 40 ? 1 : 0;
        }
    }
    return anders;
}

// Names of the pictures in a folder, without those of double size.
QStringList NamenIn(const QString& ordner) {
    QStringList namen = QDir(QStringLiteral(":/bilder/") + ordner).entryList({QStringLiteral("*.png")});
    namen.removeIf([](const QString& name) { return name.contains(QLatin1String("@2x")); });
    for (QString& name : namen) {
        name = ordner + QLatin1Char('/') + name.chopped(4);
    }
    return namen;
}

} // namespace

class BilderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyPictureHasADoubleOfTwiceItsSize();
    void noTwoPicturesOfAFolderAreToldByColourAlone_data();
    void noTwoPicturesOfAFolderAreToldByColourAlone();
    void theBackgroundsHaveTheSizesOfTheirWindows_data();
    void theBackgroundsHaveTheSizesOfTheirWindows();
    void aFineBackgroundServesOnlyWhereItFits();
    void theProgramsIconHasAllSizes();
    void theIconFileForPackagesHasAllSizes();
    void thePointerHasFourPicturesAndTheBasketSevenSheets();
    void anUnknownNameIsANullPicture();
};

void BilderTest::everyPictureHasADoubleOfTwiceItsSize() {
    int anzahl = 0;
    for (const QString& ordner : QDir(QStringLiteral(":/bilder")).entryList(QDir::Dirs)) {
        for (const QString& name : NamenIn(ordner)) {
            if (ordner == QLatin1String("programm")) {
                continue; // each size has a drawing of its own
            }
            const QPixmap einfach = Bild(name.toStdString(), 1.0);
            const QPixmap doppelt = Bild(name.toStdString(), 2.0);
            QVERIFY2(!Leer(einfach.toImage()), qPrintable(name));
            QCOMPARE(doppelt.size(), 2 * einfach.size());
            QCOMPARE(doppelt.deviceIndependentSize(), QSizeF(einfach.size()));
            ++anzahl;
        }
    }
    QVERIFY(anzahl > 100);
}

void BilderTest::noTwoPicturesOfAFolderAreToldByColourAlone_data() {
    QTest::addColumn<QString>("ordner");
    QTest::addColumn<int>("mindestens"); // points that differ
    QTest::newRow("toolbars") << QStringLiteral("leiste") << 8;
    QTest::newRow("editor") << QStringLiteral("editor") << 8;
    QTest::newRow("file dialog") << QStringLiteral("datei") << 8;
    QTest::newRow("dialogs") << QStringLiteral("dialog") << 60;
    QTest::newRow("flags") << QStringLiteral("status") << 60;
    QTest::newRow("lamps") << QStringLiteral("lampe") << 12;
    QTest::newRow("pointer") << QStringLiteral("ziehen") << 60;
    QTest::newRow("falling sheet") << QStringLiteral("muell") << 60;
}

void BilderTest::noTwoPicturesOfAFolderAreToldByColourAlone() {
    QFETCH(const QString, ordner);
    QFETCH(const int, mindestens);
    const QStringList namen = NamenIn(ordner);
    QVERIFY(namen.size() > 1);
    for (const QString& eins : namen) {
        for (const QString& zwei : namen) {
            const QImage links = Abbild(eins.toStdString(), 1.0);
            const QImage rechts = Abbild(zwei.toStdString(), 1.0);
            if (eins < zwei && links.size() == rechts.size()) {
                QVERIFY2(UnterschiedOhneFarbe(links, rechts) >= mindestens, qPrintable(eins + u' ' + zwei));
            }
        }
    }
}

void BilderTest::theBackgroundsHaveTheSizesOfTheirWindows_data() {
    QTest::addColumn<QSize>("groesse");
    QTest::newRow("FK_START") << QSize(374, 203);
    QTest::newRow("FK_MELDUNG") << QSize(337, 187);
    QTest::newRow("FK_NACHRICHT") << QSize(439, 130);
    QTest::newRow("FK_INPUT") << QSize(235, 199);
}

void BilderTest::theBackgroundsHaveTheSizesOfTheirWindows() {
    QFETCH(const QSize, groesse);
    const Programmordner ordner;
    for (const int mass : {1, 2}) {
        const QString datei =
            QStringLiteral("BITMAP/%1%2.bmp")
                .arg(QLatin1String(QTest::currentDataTag()), QLatin1String(mass == 2 ? "@2x" : ""));
        QImageReader leser(ordner.nativ(datei), "bmp");
        const QImage bild = leser.read();
        QVERIFY2(!bild.isNull(), qPrintable(datei + leser.errorString()));
        QCOMPARE(bild.size(), mass * groesse);
        QVERIFY(!bild.hasAlphaChannel());
    }
}

void BilderTest::aFineBackgroundServesOnlyWhereItFits() {
    const Programmordner ordner;
    const std::string pfad = ordner.nativ(QStringLiteral("BITMAP/FK_START.bmp")).toStdString();
    const QPixmap einfach(QString::fromStdString(pfad));
    QCOMPARE(Feinbild(einfach, pfad, 1.0).size(), QSize(374, 203));
    QCOMPARE(Feinbild(einfach, pfad, 1.5).size(), QSize(748, 406));
    QCOMPARE(Feinbild(einfach, pfad, 2.0).size(), QSize(748, 406));
    const QPixmap eigenes(100, 80); // a user's own picture doesn't get ours laid over it
    QCOMPARE(Feinbild(eigenes, pfad, 2.0).size(), QSize(100, 80));
    QVERIFY(QFile::remove(ordner.nativ(QStringLiteral("BITMAP/FK_START@2x.bmp"))));
    QCOMPARE(Feinbild(einfach, pfad, 2.0).size(), QSize(374, 203));
}

void BilderTest::theProgramsIconHasAllSizes() {
    const Programm programm;
    const QIcon zeichen = programm.haupt()->windowIcon();
    for (const int kante : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QPixmap bild = zeichen.pixmap(QSize(kante, kante), 1.0);
        QCOMPARE(bild.size(), QSize(kante, kante));
        QCOMPARE(bild.toImage().convertToFormat(QImage::Format_ARGB32),
                 Abbild("programm/" + std::to_string(kante), 1.0));
    }
    QVERIFY(!Leer(Finden<QLabel>(programm.haupt(), QStringLiteral("picSystray"))->pixmap().toImage()));
}

void BilderTest::theIconFileForPackagesHasAllSizes() {
    QFile datei(QStringLiteral(FELDKRANZ_WURZEL "/packaging/feldkranz.ico"));
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QByteArray inhalt = datei.readAll();
    QCOMPARE(inhalt.first(4), QByteArray("\0\0\1\0", 4));
    const int anzahl = inhalt.at(4);
    QCOMPARE(anzahl, 8);
    QList<int> kanten;
    for (int i = 0; i < anzahl; ++i) {
        const char* eintrag = inhalt.constData() + 6 + 16 * i;
        const auto zahl = [](const char* ort) { return qFromLittleEndian<quint32>(ort); };
        const QByteArray png = inhalt.mid(zahl(eintrag + 12), zahl(eintrag + 8));
        kanten.append(QImage::fromData(png, "PNG").width());
        QCOMPARE(static_cast<quint8>(*eintrag), static_cast<quint8>(kanten.last() % 256));
    }
    QCOMPARE(kanten, (QList<int>{16, 22, 24, 32, 48, 64, 128, 256}));
}

void BilderTest::thePointerHasFourPicturesAndTheBasketSevenSheets() {
    for (const auto bild : {ZiehBild::Aufnehmen, ZiehBild::Ablegen, ZiehBild::Nein, ZiehBild::Atom}) {
        QCOMPARE(Ziehpixmap(bild, 1.0).size(), QSize(ziehBildKante, ziehBildKante));
        QCOMPARE(Ziehpixmap(bild, 2.0).deviceIndependentSize(), QSizeF(ziehBildKante, ziehBildKante));
    }
    QVERIFY(Ziehpixmap(ZiehBild::Keins, 1.0).isNull());
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(Bild("muell/blatt" + std::to_string(i), 1.0).size(), QSize(44, 44));
    }
}

void BilderTest::anUnknownNameIsANullPicture() {
    QVERIFY(Bild("leiste/gibtesnicht", 1.0).isNull());
    QVERIFY(Bildzeichen("leiste/gibtesnicht").isNull());
}

QTEST_MAIN(BilderTest)
#include "bilder_test.moc"
