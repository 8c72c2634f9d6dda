// The question: button sets, answers, keys, the frame's close box.
#include "core/oberflaeche.h"
#include "dialogs/frmNachricht.h"
#include "dialogs/meldung.h"
#include "dialogs/modal.h"
#include "tests/dialogs/dialogwarten.h"
#include "tests/hilfe/programmordner.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

QPushButton& Taste(QDialog& dialog, int i) {
    return Kind<QPushButton>(dialog, qPrintable(QStringLiteral("cmdAntwort(%1)").arg(i)));
}

void Klick(QDialog& dialog, int i) {
    QTest::mouseClick(&Taste(dialog, i), Qt::LeftButton);
}

QLabel& Bild(QDialog& dialog, int i) {
    return Kind<QLabel>(dialog, qPrintable(QStringLiteral("picSymbol(%1)").arg(i)));
}

enum Knopf { Ja, Nein, Abbrechen, Hilfe, OK };
const QString fenster = QStringLiteral("frmNachricht");

} // namespace

class NachrichtTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { OberflaecheEinrichten(); }
    void cleanup() { ModalHandlerSetzen({}); }

    // First, since the window is made only once.
    void aMissingBackgroundIsToldAtTheFirstUseOnly() {
        const QString bild = programm_.nativ(QStringLiteral("BITMAP/FK_NACHRICHT.bmp"));
        QVERIFY(QFile::rename(bild, bild + QStringLiteral(".weg")));
        QStringList fensterfolge;
        ModalHandlerSetzen([&](QDialog& dialog) {
            fensterfolge << dialog.objectName();
            if (dialog.objectName() == QLatin1String("frmMeldung")) {
                fensterfolge << Kind<QLabel>(dialog, "lblMeldung").text();
            }
            dialog.accept();
            return true;
        });
        Nachricht({7, "Titel", "Frage ?", 0, 1111});
        Nachricht({7, "Titel", "Frage ?", 0, 1111});
        const QStringList erwartet{
            QStringLiteral("frmMeldung"),
            QStringLiteral(
                "Ich kann die Datei nicht finden !\nDie Bitmap [NACHRICHT.bmp] muß sich im Verzeichnis\n"
                "[...\\BITMAP] befinden !"),
            QStringLiteral("frmNachricht"), QStringLiteral("frmNachricht")};
        QCOMPARE(fensterfolge, erwartet);
        QVERIFY(QFile::rename(bild + QStringLiteral(".weg"), bild));
    }

    void aQuestionShowsItsTextTitleAndPicture() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            QCOMPARE(Kind<QLabel>(dialog, "lblNachrichtentext").text(),
                     QStringLiteral("Soll ich\nspeichern ?"));
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Auswertung speichern ! "));
            for (int i = 1; i <= 12; ++i) {
                QCOMPARE(Bild(dialog, i).isVisible(), i == 7);
                QCOMPARE(Bild(dialog, i).pos(), QPoint(13, 16));
            }
            Klick(dialog, Nein);
        });
        QCOMPARE(Nachricht({7, "Auswertung speichern !", "Soll ich\r\nspeichern ?", 2, 1111}), Antwort::Nein);
        QVERIFY(warter.fertig());
    }

    void theWindowHasItsMeasuresAndStandsBelowTheCentre() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            QCOMPARE(dialog.size(), QSize(439, 130));
            QCOMPARE(Kind<QLabel>(dialog, "lblNachrichtentext").geometry(), QRect(50, 17, 353, 77));
            QVERIFY(dialog.geometry().center().y() > dialog.screen()->geometry().center().y());
            Klick(dialog, OK);
        });
        Nachricht({7, "Titel", "Frage ?", 0, 1111});
        QVERIFY(warter.fertig());
    }

    void eachSetHasItsButtonsAtTheirPlaces_data() {
        QTest::addColumn<int>("art");
        QTest::addColumn<QList<int>>("links"); // -1 out of use
        QTest::newRow("only OK, in the middle") << 0 << QList<int>{-1, -1, -1, -1, 171};
        QTest::newRow("Ja Nein Hilfe") << 1 << QList<int>{59, 171, -1, 283, -1};
        QTest::newRow("all but OK") << 2 << QList<int>{8, 116, 224, 332, -1};
        QTest::newRow("OK Abbrechen Hilfe") << 3 << QList<int>{-1, -1, 171, 283, 59};
        QTest::newRow("Ja Abbrechen Hilfe") << 4 << QList<int>{59, -1, 171, 283, -1};
    }
    void eachSetHasItsButtonsAtTheirPlaces() {
        QFETCH(const int, art);
        QFETCH(const QList<int>, links);
        Dialogwarter warter;
        warter.dann(fenster, [&](QDialog& dialog) {
            for (int i = 0; i < 5; ++i) {
                const QPushButton& taste = Taste(dialog, i);
                QVERIFY(!taste.isHidden());
                QCOMPARE(taste.isEnabled(), links[i] >= 0);
                if (links[i] < 0) {
                    QVERIFY(taste.y() >= dialog.height());
                } else {
                    QCOMPARE(taste.x(), links[i]);
                    QVERIFY(dialog.rect().contains(taste.geometry()));
                }
            }
            dialog.close();
        });
        Nachricht({7, "Titel", "Frage ?", art, 1111});
        QVERIFY(warter.fertig());
    }

    void aSetThatDoesntExistLeavesTheButtonsWhereTheyAre() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) { dialog.close(); });
        warter.dann(fenster, [](QDialog& dialog) {
            QCOMPARE(Taste(dialog, Ja).x(), 8);
            QCOMPARE(Taste(dialog, Hilfe).x(), 332);
            QVERIFY(dialog.rect().contains(Taste(dialog, Abbrechen).geometry()));
            Klick(dialog, Abbrechen);
        });
        Nachricht({7, "Titel", "Frage ?", 2, 1111});
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", 9, 1111}), Antwort::Abbrechen);
        QVERIFY(warter.fertig());
    }

    void eachButtonGivesItsAnswer_data() {
        QTest::addColumn<int>("art");
        QTest::addColumn<int>("taste");
        QTest::addColumn<Antwort>("antwort");
        QTest::newRow("Ja") << 2 << int{Ja} << Antwort::Ja;
        QTest::newRow("Nein") << 2 << int{Nein} << Antwort::Nein;
        QTest::newRow("Abbrechen") << 2 << int{Abbrechen} << Antwort::Abbrechen;
        QTest::newRow("OK") << 0 << int{OK} << Antwort::OK;
    }
    void eachButtonGivesItsAnswer() {
        QFETCH(const int, art);
        QFETCH(const int, taste);
        QFETCH(const Antwort, antwort);
        Dialogwarter warter;
        warter.dann(fenster, [&](QDialog& dialog) {
            Klick(dialog, taste);
            QVERIFY(!dialog.isVisible());
            QVERIFY(Bild(dialog, 7).isHidden());
        });
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", art, 1111}), antwort);
        QVERIFY(warter.fertig());
    }

    void helpLeavesTheQuestionOpenWithoutItsPictureAndKeepsTheAnswer() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            Klick(dialog, Hilfe);
            QVERIFY(dialog.isVisible());
            QVERIFY(!Bild(dialog, 7).isVisible());
            QCOMPARE(static_cast<frmNachricht&>(dialog).antwort(), Antwort::Nein);
            dialog.repaint();
            QVERIFY(!Bild(dialog, 7).isVisible());
            Klick(dialog, Ja);
        });
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", 2, 1111}, {}, Antwort::Nein), Antwort::Ja);
        QVERIFY(warter.fertig());
    }

    void theFrameGivesTheAnswerThatTheCallerSays() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) { dialog.close(); });
        warter.dann(fenster, [](QDialog& dialog) {
            QVERIFY(!Bild(dialog, 7).isVisible());
            QVERIFY(Bild(dialog, 6).isVisible());
            dialog.close();
        });
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", 2, 1111}, {}, Antwort::Nein), Antwort::Nein);
        QCOMPARE(Nachricht({6, "Titel", "Frage ?", 2, 1111}), Antwort::Abbrechen);
        QVERIFY(warter.fertig());
    }

    void escIsAbbrechenWhereThatIsInUseAndTheFrameOtherwise() {
        Dialogwarter warter;
        const auto esc = [](QDialog& dialog) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        };
        warter.dann(fenster, esc);
        warter.dann(fenster, esc);
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", 1, 1111}, {}, Antwort::Nein), Antwort::Nein);
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", 3, 1111}), Antwort::Abbrechen);
        QVERIFY(warter.fertig());
    }

    void aQuestionForJaOrNeinComesAgainUntilItHasOne() {
        for (const int taste : {int{Ja}, int{Nein}}) {
            Dialogwarter warter;
            warter.dann(fenster, [](QDialog& dialog) { dialog.close(); });
            warter.dann(fenster, [](QDialog& dialog) { Klick(dialog, Abbrechen); });
            warter.dann(fenster, [taste](QDialog& dialog) { Klick(dialog, taste); });
            QCOMPARE(NachrichtJaNein({7, "Titel", "Frage ?", 2, 1111}), taste == Ja);
            QVERIFY(warter.fertig());
        }
    }

    void anythingButAbbrechenAndTheFrameConfirms() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) { Klick(dialog, OK); });
        warter.dann(fenster, [](QDialog& dialog) { Klick(dialog, Abbrechen); });
        warter.dann(fenster, [](QDialog& dialog) { dialog.close(); });
        QVERIFY(Bestaetigt({7, "Titel", "Frage ?", 3, 1111}));
        QVERIFY(!Bestaetigt({7, "Titel", "Frage ?", 3, 1111}));
        QVERIFY(!Bestaetigt({7, "Titel", "Frage ?", 3, 1111}));
        QVERIFY(warter.fertig());
    }

    void theAccessKeysAnswer_data() {
        QTest::addColumn<int>("art");
        QTest::addColumn<int>("taste");
        QTest::addColumn<Antwort>("antwort");
        QTest::newRow("J") << 2 << int{Qt::Key_J} << Antwort::Ja;
        QTest::newRow("N") << 2 << int{Qt::Key_N} << Antwort::Nein;
        QTest::newRow("A") << 2 << int{Qt::Key_A} << Antwort::Abbrechen;
        QTest::newRow("O") << 3 << int{Qt::Key_O} << Antwort::OK;
    }
    void theAccessKeysAnswer() {
        QFETCH(const int, art);
        QFETCH(const int, taste);
        QFETCH(const Antwort, antwort);
        Dialogwarter warter;
        warter.dann(fenster, [&](QDialog& dialog) {
            QTRY_VERIFY(dialog.isActiveWindow());
            QTest::keyClick(&dialog, static_cast<Qt::Key>(taste), Qt::AltModifier);
        });
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", art, 1111}), antwort);
        QVERIFY(warter.fertig());
    }

    void enterPressesTheFocusedButton() {
        Dialogwarter warter;
        warter.dann(fenster, [&](QDialog& dialog) {
            QTRY_VERIFY(Taste(dialog, Ja).hasFocus());
            QTest::keyClick(&Taste(dialog, Ja), Qt::Key_Tab);
            QTRY_VERIFY(Taste(dialog, Nein).hasFocus());
            QTest::keyClick(&Taste(dialog, Nein), Qt::Key_Return);
        });
        QCOMPARE(Nachricht({7, "Titel", "Frage ?", 2, 1111}), Antwort::Nein);
        QVERIFY(warter.fertig());
    }

    void aDoubleClickOnTheTextTurnsOneAttributeOver() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            auto& text = Kind<QLabel>(dialog, "lblNachrichtentext");
            const bool vorher = text.hasScaledContents();
            QTest::mouseDClick(&text, Qt::LeftButton);
            QCOMPARE(text.hasScaledContents(), !vorher);
            QVERIFY(dialog.isVisible());
            Klick(dialog, OK);
        });
        Nachricht({7, "Titel", "Frage ?", 0, 1111});
        QVERIFY(warter.fertig());
    }

    void aQuestionOfFourLinesStandsClearOfTheButtons() {
        Dialogwarter warter;
        warter.dann(fenster, [](QDialog& dialog) {
            const auto& text = Kind<QLabel>(dialog, "lblNachrichtentext");
            QVERIFY(text.y() + 4 * text.fontMetrics().lineSpacing() <= Taste(dialog, Ja).y());
            Klick(dialog, Abbrechen);
        });
        Nachricht({7, " Speichern unter ...",
                   "Die Auswertung\r\n[ ABEND.FKR ]\r\nist bereits vorhanden !\r\nSoll ich diese Datei "
                   "überschreiben ?",
                   2, 1111});
        QVERIFY(warter.fertig());
    }

    void aNameThatMatchesNoKeyIsSilentAndNoFault() {
        for (const char* name : {"dubb", "clack", "freiz_2", "trompete", "falscherWeg", "Hilfe", ""}) {
            QElapsedTimer uhr;
            uhr.start();
            SoundSpielen(name);
            QVERIFY(uhr.elapsed() < 200);
        }
    }

private:
    Programmordner programm_;
};

QTEST_MAIN(NachrichtTest)
#include "nachricht_test.moc"
