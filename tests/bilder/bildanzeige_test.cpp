// What the windows show of the pictures: toolbars, dialogs, answers, and a background that is missing.
#include "core/bilder.h"
#include "core/oberflaeche.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "dialogs/sinnbilder.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/schaltflaechen.h"
#include "tests/bilder/bildvergleich.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <array>

class BildanzeigeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // First, since the input dialog is made only once.
    void aMissingBackgroundOfTheInputDialogIsReportedOnce();
    void everyButtonOfTheToolbarsHasAPictureInBothSizes();
    void captionsGiveWayToTheRoomAndComeBack_data();
    void captionsGiveWayToTheRoomAndComeBack();
    void everyNumberOfAMessageShowsItsPicture();
    void everyNumberOfAQuestionShowsItsPicture();
    void everyNumberOfTheInputDialogShowsItsPicture();
    void theAnswersCarryTheirWordInThePictureAndTheKeyInTheCaption();
};

void BildanzeigeTest::aMissingBackgroundOfTheInputDialogIsReportedOnce() {
    const Programmordner ordner;
    QVERIFY(QFile::remove(ordner.nativ(QStringLiteral("BITMAP/FK_INPUT.bmp"))));
    QVERIFY(ordner.vorhanden(QStringLiteral("BITMAP/FK_INPUT@2x.bmp"))); // doesn't do in its stead
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("Ich kann die Datei nicht finden !\nDie Bitmap [INPUT.bmp] muß sich im Verzeichnis\n"
                       "[...\\BITMAP] befinden !"),
        QStringLiteral("Habe ich das denn nicht installiert ?!"));
    for (int i = 0; i < 2; ++i) {
        dialoge.eingabe(QStringLiteral("Titel"), QStringLiteral("Text"), QStringLiteral("Zeile"),
                        QStringLiteral("cmdOK"));
    }
    Eingabe(1, "Titel", "Text", "Vorgabe");
    Eingabe(1, "Titel", "Text", "Vorgabe");
    QVERIFY(dialoge.fertig());
}

void BildanzeigeTest::everyButtonOfTheToolbarsHasAPictureInBothSizes() {
    const Programm programm;
    for (const Schaltflaeche& zeile : Schaltflaechen()) {
        const auto* taste = Finden<QToolButton>(programm.haupt(), Anzeige(zeile.name));
        QVERIFY2(!taste->icon().isNull(), zeile.name.data());
        QCOMPARE(taste->iconSize(), QSize(16, 16));
        for (const double aufloesung : {1.0, 2.0}) {
            const QPixmap gezeigt = taste->icon().pixmap(QSize(16, 16), aufloesung);
            QCOMPARE(gezeigt.size(), QSize(16, 16) * aufloesung);
            QCOMPARE(gezeigt.toImage().convertToFormat(QImage::Format_ARGB32),
                     Abbild(zeile.bild, aufloesung));
            QVERIFY2(!Leer(gezeigt.toImage()), zeile.name.data());
        }
    }
}

void BildanzeigeTest::captionsGiveWayToTheRoomAndComeBack_data() {
    QTest::addColumn<bool>("quiz");
    QTest::addColumn<QString>("auswahl");
    QTest::addColumn<QString>("speichern");
    QTest::newRow("quiz form") << true << QStringLiteral("cmdAuswahl(0)") << QStringLiteral("cmdDateiFK(3)");
    QTest::newRow("test form") << false << QStringLiteral("cmdAuswahl(1)") << QStringLiteral("cmdDateiHB(3)");
}

void BildanzeigeTest::captionsGiveWayToTheRoomAndComeBack() {
    QFETCH(const bool, quiz);
    QFETCH(const QString, auswahl);
    QFETCH(const QString, speichern);
    Programm programm;
    if (quiz) {
        programm.NeuesQuizformular();
    } else {
        programm.NeuesTestformular();
    }
    programm.haupt()->showNormal();
    const QWidget* kranz = Finden(programm.haupt(), QStringLiteral("pnlKranz"));
    for (const int breite : {1024, 1280, 1800, 1024}) {
        programm.haupt()->resize(breite, 700);
        QTRY_COMPARE(programm.haupt()->width(), breite);
        QList<QRect> flaechen;
        bool alleWorte = true;
        for (const auto* taste : kranz->findChildren<QToolButton*>()) {
            if (!taste->isVisible()) {
                continue;
            }
            const QRect flaeche(taste->mapTo(kranz, QPoint(0, 0)), taste->size());
            QVERIFY2(kranz->rect().contains(flaeche), qPrintable(taste->objectName()));
            for (const QRect& andere : flaechen) {
                QVERIFY2(!andere.intersects(flaeche), qPrintable(taste->objectName()));
            }
            flaechen.append(flaeche);
            const int wort = taste->fontMetrics().horizontalAdvance(taste->text());
            QVERIFY2(tastenbildKante + wort < taste->width(), qPrintable(taste->objectName()));
            QVERIFY2(!taste->accessibleName().isEmpty(), qPrintable(taste->objectName()));
            alleWorte = alleWorte && wort > 0;
        }
        QVERIFY(flaechen.size() > 20);
        QCOMPARE(alleWorte, breite == 1800);
        QCOMPARE(Finden<QToolButton>(kranz, auswahl)->text(), QStringLiteral("Auswahl"));
        QCOMPARE(Finden<QToolButton>(kranz, speichern)->text().isEmpty(), breite < 1800);
    }
}

void BildanzeigeTest::everyNumberOfAMessageShowsItsPicture() {
    const Programmordner ordner;
    QSet<qint64> verschiedene;
    for (int i = 0; i <= 11; ++i) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmMeldung"),
                         std::nullopt,
                         std::nullopt,
                         {QStringLiteral("cmdKenntnis")},
                         [&](QDialog& dialog) {
                             for (int k = 0; k <= 11; ++k) {
                                 const auto* bild = Finden<QLabel>(&dialog, QStringLiteral("picMeldung"), k);
                                 QCOMPARE(bild->isVisible(), k == i);
                                 QCOMPARE(bild->pixmap().deviceIndependentSize(), QSizeF(32, 32));
                                 verschiedene.insert(bild->pixmap().cacheKey());
                             }
                         }});
        Meldung(MeldungsText{i, "Text", "1", "Schön"});
        QVERIFY(dialoge.fertig());
    }
    QCOMPARE(verschiedene.size(), 12);
}

void BildanzeigeTest::everyNumberOfAQuestionShowsItsPicture() {
    const Programmordner ordner;
    for (int i = 1; i <= 12; ++i) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"),
                         std::nullopt,
                         std::nullopt,
                         {QStringLiteral("cmdAntwort(4)")},
                         [&](QDialog& dialog) {
                             const auto* bild = Finden<QLabel>(&dialog, QStringLiteral("picSymbol"), i);
                             QVERIFY(bild->isVisible());
                             QCOMPARE(bild->pixmap().toImage().convertToFormat(QImage::Format_ARGB32),
                                      Abbild(sinnbilder::nachricht.at(static_cast<std::size_t>(i)).bild,
                                             bild->devicePixelRatioF()));
                             QVERIFY(!bild->accessibleName().isEmpty());
                         }});
        Nachricht(NachrichtText{i, "Titel", "Text", 0, 1111});
        QVERIFY(dialoge.fertig());
    }
}

void BildanzeigeTest::everyNumberOfTheInputDialogShowsItsPicture() {
    const Programmordner ordner;
    for (int i = 1; i <= 8; ++i) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmInput"),
                         std::nullopt,
                         std::nullopt,
                         {QStringLiteral("cmdAbbruch")},
                         [&](QDialog& dialog) {
                             const auto* bild = Finden<QLabel>(&dialog, QStringLiteral("picSymbol"), i);
                             QVERIFY(bild->isVisible());
                             QVERIFY(!Leer(bild->pixmap().toImage()));
                             QCOMPARE(bild->pixmap().deviceIndependentSize(), QSizeF(32, 32));
                         }});
        Eingabe(i, "Titel", "Text", "Vorgabe");
        QVERIFY(dialoge.fertig());
    }
}

void BildanzeigeTest::theAnswersCarryTheirWordInThePictureAndTheKeyInTheCaption() {
    const Programmordner ordner;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdAntwort(2)")},
                     [](QDialog& dialog) {
                         const std::array<QString, 5> worte{QStringLiteral("Ja"), QStringLiteral("Nein"),
                                                            QStringLiteral("Abbrechen"),
                                                            QStringLiteral("Hilfe"), QStringLiteral("OK")};
                         for (int i = 0; i < 5; ++i) {
                             const auto* taste =
                                 Finden<QPushButton>(&dialog, QStringLiteral("cmdAntwort"), i);
                             const QString& wort = worte.at(static_cast<std::size_t>(i));
                             QCOMPARE(taste->accessibleName(), wort);
                             QCOMPARE(taste->text().trimmed(), QStringLiteral("&") + wort.front());
                             QVERIFY(taste->text().endsWith(QLatin1Char(' ')));
                             QCOMPARE(taste->icon()
                                          .pixmap(taste->iconSize(), 1.0)
                                          .toImage()
                                          .convertToFormat(QImage::Format_ARGB32),
                                      Abbild("wort/" + wort.toLower().toStdString(), 1.0));
                             QVERIFY(taste->iconSize().width() < taste->width() &&
                                     taste->iconSize().height() < taste->height());
                         }
                     }});
    Nachricht(NachrichtText{7, "Titel", "Text", 2, 1111});
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(BildanzeigeTest)
#include "bildanzeige_test.moc"
