// The message with one button: look, dismissal, error report, and what happens without its picture.
#include "core/oberflaeche.h"
#include "dialogs/dialoggrund.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"
#include "tests/dialogs/dialogwarten.h"
#include "tests/hilfe/programmordner.h"

#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

void Bestaetigen(QDialog& dialog) {
    QTest::mouseClick(&Kind<QPushButton>(dialog, "cmdKenntnis"), Qt::LeftButton);
}

// Every caption that a caller passes, the longest of them among the first.
const QStringList tasten{QStringLiteral("Dann trage ich es in der Spielregel noch schnell nach."),
                         QStringLiteral("Hab ich das denn ins Programmverzeichnis kopiert ?"),
                         QStringLiteral("Das ist kein Problem, das mache ich doch sofort !"),
                         QStringLiteral("Habe ich das denn nicht installiert ?!"),
                         QStringLiteral("Dafür habe ich vollstes Verständnis."),
                         QStringLiteral("Grrr !*?~")};

} // namespace

class MeldungTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { OberflaecheEinrichten(); }
    void cleanup() {
        ModalHandlerSetzen({});
        BildschirmgroesseVorgeben({});
    }

    void aMessageShowsItsTextNumberPictureAndButton() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            QCOMPARE(Kind<QLabel>(dialog, "lblMeldung").text(),
                     QStringLiteral("Feldkranz.INI nicht\ngespeichert !"));
            QCOMPARE(Kind<QLabel>(dialog, "lblNr").text(), QStringLiteral("987"));
            QCOMPARE(Kind<QPushButton>(dialog, "cmdKenntnis").text(),
                     QStringLiteral("Das ist nicht so schlimm"));
            QVERIFY(Kind<QLabel>(dialog, "picMeldung(4)").isVisible());
            QCOMPARE(dialog.windowTitle(), QString());
            Bestaetigen(dialog);
        });
        Meldung({4, "Feldkranz.INI nicht\r\ngespeichert !", "987", "Das ist nicht so schlimm"});
        QVERIFY(warter.fertig());
    }

    void theWindowHasItsFixedMeasuresAndStandsInTheCentre() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            QCOMPARE(dialog.size(), QSize(337, 187));
            QCOMPARE(Kind<QWidget>(dialog, "pnlPic").geometry(), QRect(151, 18, 32, 32));
            QCOMPARE(Kind<QWidget>(dialog, "lblMeldung").geometry(), QRect(4, 62, 325, 69));
            QCOMPARE(Kind<QWidget>(dialog, "pnlNr").pos(), QPoint(307, 10));
            QCOMPARE(Kind<QWidget>(dialog, "cmdKenntnis").x(), 15);
            QCOMPARE(Kind<QWidget>(dialog, "cmdKenntnis").y(), 148);
            QCOMPARE(Kind<QWidget>(dialog, "cmdKenntnis").width(), 307);
            const QPoint mitte = dialog.screen()->geometry().center();
            QTRY_VERIFY((dialog.geometry().center() - mitte).manhattanLength() <= 4);
            Bestaetigen(dialog);
        });
        Meldung({5, "Ich habe Probleme !", "1", "Das ist ja ganz ungewohnt"});
        QVERIFY(warter.fertig());
    }

    void onlyTheChosenPictureStandsInThePanel() {
        for (int bild = 0; bild <= 11; ++bild) {
            Dialogwarter warter;
            warter.dann(QStringLiteral("frmMeldung"), [bild](QDialog& dialog) {
                for (int i = 0; i <= 11; ++i) {
                    const auto& label =
                        Kind<QLabel>(dialog, qPrintable(QStringLiteral("picMeldung(%1)").arg(i)));
                    QCOMPARE(label.isVisible(), i == bild);
                    QCOMPARE(label.x(), i == bild ? 0 : 60);
                    QVERIFY(!label.accessibleName().isEmpty());
                }
                Bestaetigen(dialog);
            });
            Meldung({bild, "Text", "1", "Aha"});
            QVERIFY(warter.fertig());
        }
    }

    void aSecondMessageHasANewWindowWithOnlyItsOwnPicture() {
        QPointer<QDialog> erstes;
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [&](QDialog& dialog) {
            erstes = &dialog;
            Bestaetigen(dialog);
        });
        warter.dann(QStringLiteral("frmMeldung"), [&](QDialog& dialog) {
            QVERIFY(erstes.isNull());
            QVERIFY(!Kind<QLabel>(dialog, "picMeldung(5)").isVisible());
            QVERIFY(Kind<QLabel>(dialog, "picMeldung(7)").isVisible());
            Bestaetigen(dialog);
        });
        Meldung({5, "Erste", "1", "Aha"});
        Meldung({7, "Zweite", "1", "Aha"});
        QVERIFY(warter.fertig());
    }

    void aPictureNumberThatDoesntExistShowsTheMessageWithoutPicture() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), Bestaetigen);
        Meldung({99, "Text", "1", "Aha"});
        QVERIFY(warter.fertig());
    }

    void aTextOfTooManyLinesIsCutAtTheLabelsBottom() {
        std::array<QImage, 2> unten;
        std::array<QImage, 2> oben;
        for (std::size_t i = 0; i < 2; ++i) {
            Dialogwarter warter;
            warter.dann(QStringLiteral("frmMeldung"), [&](QDialog& dialog) {
                const QRect label = Kind<QLabel>(dialog, "lblMeldung").geometry();
                oben[i] = dialog.grab(label).toImage();
                unten[i] = dialog.grab(QRect(0, label.bottom() + 1, 337, 10)).toImage();
                const auto& schild = Kind<QLabel>(dialog, "lblMeldung");
                QCOMPARE(schild.toolTip(),
                         i == 0 ? QStringLiteral("Das wollte ich dir nur sagen.") : schild.text());
                QCOMPARE(schild.accessibleDescription(), schild.toolTip());
                Bestaetigen(dialog);
            });
            const std::string zeilen = "eins\r\nzwei\r\ndrei\r\nvier";
            Meldung({5, i == 0 ? zeilen : zeilen + "\r\nfünf\r\nsechs\r\nsieben\r\nacht", "1", "Aha"});
            QVERIFY(warter.fertig());
        }
        QCOMPARE(unten[0], unten[1]);
        QVERIFY(oben[0] != oben[1]);
    }

    void everyCaptionFitsItsButton_data() {
        QTest::addColumn<QString>("taste");
        for (const QString& taste : tasten) {
            QTest::newRow(qPrintable(taste)) << taste;
        }
    }
    void everyCaptionFitsItsButton() {
        QFETCH(const QString, taste);
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [&](QDialog& dialog) {
            const auto& knopf = Kind<QPushButton>(dialog, "cmdKenntnis");
            QCOMPARE(knopf.text(), taste);
            QVERIFY(knopf.fontMetrics().horizontalAdvance(taste) <= 305);
            QVERIFY(knopf.font().pixelSize() >= 11);
            Bestaetigen(dialog);
        });
        Meldung({5, "Text", "1", taste.toStdString()});
        QVERIFY(warter.fertig());
    }

    void enterAndEscBothPressTheButton() {
        for (const Qt::Key taste : {Qt::Key_Return, Qt::Key_Escape}) {
            Dialogwarter warter;
            warter.dann(QStringLiteral("frmMeldung"), [taste](QDialog& dialog) {
                QSignalSpy klick(&Kind<QPushButton>(dialog, "cmdKenntnis"), &QPushButton::clicked);
                QTRY_VERIFY(QApplication::focusWidget() != nullptr); // the window manager takes its time
                QTest::keyClick(QApplication::focusWidget(), taste);
                QCOMPARE(klick.size(), 1);
                QVERIFY(!dialog.isVisible());
            });
            Meldung({5, "Text", "1", "Aha"});
            QVERIFY(warter.fertig());
        }
    }

    void theButtonHidesAllPictures() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            Bestaetigen(dialog);
            QVERIFY(Kind<QLabel>(dialog, "picMeldung(5)").isHidden());
        });
        Meldung({5, "Text", "1", "Aha"});
        QVERIFY(warter.fertig());
    }

    void aDoubleClickOnTheNumberBoxClosesTheWindow() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            QTest::mouseDClick(&Kind<QLabel>(dialog, "lblNr"), Qt::LeftButton);
            QVERIFY(!dialog.isVisible());
            QVERIFY(!Kind<QLabel>(dialog, "picMeldung(5)").isHidden());
        });
        Meldung({5, "Text", "1", "Aha"});
        QVERIFY(warter.fertig());
    }

    void aClickOnPictureThreePrintsOnTheWindow() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            const QRect ecke(0, 0, 100, 40);
            const QImage leer = dialog.grab(ecke).toImage();
            QTest::mouseClick(&Kind<QLabel>(dialog, "picMeldung(3)"), Qt::LeftButton);
            const QImage einmal = dialog.grab(ecke).toImage();
            QVERIFY(einmal != leer);
            QTest::mouseClick(&Kind<QLabel>(dialog, "picMeldung(3)"), Qt::LeftButton);
            QVERIFY(dialog.grab(ecke).toImage() != einmal);
            QVERIFY(dialog.isVisible());
            Bestaetigen(dialog);
        });
        Meldung({3, "Text", "1", "Aha"});
        QVERIFY(warter.fertig());
    }

    void aDoubleClickOnTheTextTurnsOneAttributeOver() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            auto& text = Kind<QLabel>(dialog, "lblMeldung");
            const bool vorher = text.hasScaledContents();
            QTest::mouseDClick(&text, Qt::LeftButton);
            QCOMPARE(text.hasScaledContents(), !vorher);
            QTest::mouseDClick(&text, Qt::LeftButton);
            QCOMPARE(text.hasScaledContents(), vorher);
            Bestaetigen(dialog);
        });
        Meldung({5, "Text", "1", "Aha"});
        QVERIFY(warter.fertig());
    }

    void aMessageEndsTheWaitCursor() {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        ModalHandlerSetzen([](QDialog& dialog) {
            if (QGuiApplication::overrideCursor() == nullptr) {
                dialog.accept();
            }
            return true;
        });
        Meldung({5, "Text", "1", "Aha"});
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void errorNineAtAPlaceShowsTwoLines() {
        Dialogwarter warter;
        warter.dann(QStringLiteral("frmMeldung"), [](QDialog& dialog) {
            QCOMPARE(Kind<QLabel>(dialog, "lblMeldung").text(),
                     QStringLiteral("FK : cmdAuswahl_Click :\nZu wenig Gefaacher (Arrays) !?"));
            QCOMPARE(Kind<QPushButton>(dialog, "cmdKenntnis").text(),
                     QStringLiteral("Das verstehe ich aber nicht"));
            QCOMPARE(Kind<QLabel>(dialog, "lblNr").text(), QStringLiteral("1"));
            QVERIFY(Kind<QLabel>(dialog, "picMeldung(1)").isVisible());
            Bestaetigen(dialog);
        });
        FehlerMelden("FK : cmdAuswahl_Click", Laufzeitfehler(Fehler::IndexBereich));
        QVERIFY(warter.fertig());
    }

    void aMissingBackgroundIsReportedOnceAndNotInsideItsOwnMessage() {
        const Programmordner ordner;
        QVERIFY(QFile::remove(ordner.nativ(QStringLiteral("BITMAP/FK_MELDUNG.bmp"))));
        QStringList texte;
        int offen = 0;
        ModalHandlerSetzen([&](QDialog& dialog) {
            ++offen;
            texte << Kind<QLabel>(dialog, "lblMeldung").text();
            if (offen != 1) {
                texte << QStringLiteral("ineinander");
            }
            dialog.accept();
            --offen;
            return true;
        });
        Meldung({5, "Erste", "1", "Aha"});
        Meldung({5, "Zweite", "1", "Aha"});
        const QStringList erwartet{
            QStringLiteral("Erste"),
            QStringLiteral(
                "Ich kann die Datei nicht finden !\nDie Bitmap [MELDUNG.bmp] muß sich im Verzeichnis\n"
                "[...\\BITMAP] befinden !"),
            QStringLiteral("Zweite")};
        QCOMPARE(texte, erwartet);
    }

    void aStockBoxSaysWhetherOkWasPressed() {
        for (const bool ok : {true, false}) {
            Dialogwarter warter;
            warter.dann(QStringLiteral("QMessageBox"), [ok](QDialog& dialog) {
                auto& kasten = static_cast<QMessageBox&>(dialog);
                QCOMPARE(kasten.text(), QStringLiteral("Keine Datei selektiert!"));
                QCOMPARE(kasten.windowTitle(), QStringLiteral("Hinweis"));
                QTest::mouseClick(kasten.button(ok ? QMessageBox::Ok : QMessageBox::Cancel), Qt::LeftButton);
            });
            QCOMPARE(Systemkasten(Kastenart::Frage, "Hinweis", "Keine Datei selektiert!", true), ok);
            QVERIFY(warter.fertig());
        }
    }

private:
    Programmordner programm_;
};

QTEST_MAIN(MeldungTest)
#include "meldung_test.moc"
