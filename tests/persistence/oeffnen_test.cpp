// Opening forms in the real main window through the real file dialog.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/testformular.h"
#include "tests/hilfe/finden.h"
#include "vorgaben.h"

#include <QAction>
#include <QTest>

namespace {

const QString fehlerTitel = QStringLiteral("Fehler beim Laden !");

QString Frage1() {
    return QString::fromStdString(FK_Frage(1));
}

QString Fenstertitel() {
    return FKFragenOffen()->windowTitle();
}

void StelleErwarten(Dialogfolge& dialoge, int fehler, int zeile, Stelle stelle = Stelle::hier()) {
    dialoge.kasten(fehlerTitel, QStringLiteral("Fehler Nummer %1 occurred at line %2").arg(fehler).arg(zeile),
                   QStringLiteral("OK"), stelle);
}

// FormularLaden for a file of the folder, as the form list calls it.
void Laden(const Formlauf& lauf, const std::string& name) {
    FormularLaden(lauf.Pfad(name));
}

} // namespace

class OeffnenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aQuizFileFillsTheFormAndIsUnchanged();
    void aQuizFileReplacesTheOpenQuizFormWithoutAClose();
    void aTestFileWhileAQuizFormIsOpenChangesNothing();
    void aTestFileOpensItsFormAndEntersNoList();
    void theFifthFilePushesTheOldestOutOfTheList();
    void aTextFileIsNoFormFile();
    void cancellingTheDialogSaysThatNoFileWasChosen();
    void unsavedChangesAreAskedAboutFirst();
    void aFileCutShortIsReportedAndShownAsFarAsRead();
    void anOverlongNumberIsReportedWithItsLine();
    void aFileFullOfOverlongNumbersEndsAfterTenBoxes();
    void aMissingFileOpensTheDialogAgainAndCancelLeavesIt();
    void aShapeThatFitsNoCounterGivesWayToTheFullBoard();
    void aTagOfNoKindOpensNothingAndBlocksNothing();
    void anEmptyFileCountsAsRead();

private:
    Formlauf lauf;
};

void OeffnenTest::aQuizFileFillsTheFormAndIsUnchanged() {
    lauf.Schreiben(QStringLiteral("herbst.fkr"), Formlauf::Quiz("Herbst"));
    lauf.Oeffnen(QStringLiteral("herbst.fkr"));
    QVERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(Frage1(), QStringLiteral("Herbst 1"));
    QCOMPARE(QString::fromStdString(FK_Antwort(30)), QStringLiteral("Antwört 30"));
    QCOMPARE(Fenstertitel(), QStringLiteral("HERBST.FKR "));
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QCOMPARE(Stand.FKDateiName, lauf.Pfad("herbst.fkr"));
    QCOMPARE(Spiel.Datei[0], lauf.Pfad("herbst.fkr"));
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagGruen"))->isVisible());
    QVERIFY(!Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picFK"))->isVisible());
}

void OeffnenTest::aQuizFileReplacesTheOpenQuizFormWithoutAClose() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Schreiben(QStringLiteral("B.FKR"), Formlauf::Quiz("Zwei"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    const frmFKFragen* fenster = FKFragenOffen();
    lauf.Oeffnen(QStringLiteral("B.FKR"));
    QCOMPARE(FKFragenOffen(), fenster);
    QCOMPARE(Frage1(), QStringLiteral("Zwei 1"));
    QCOMPARE(Fenstertitel(), QStringLiteral("B.FKR "));
    QCOMPARE(Stand.FKDateiName, lauf.Pfad("B.FKR"));
}

void OeffnenTest::aTestFileWhileAQuizFormIsOpenChangesNothing() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Schreiben(QStringLiteral("T.FKR"), Formlauf::Test("Knoten"));
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    GespeichertVergessen(); // as after a save that failed
    FormStatusSetzen(true);
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("Ich kann jetzt kein Testformular laden.\nDu mußt erst das Feldkranzformular "
                       "schließen."),
        QStringLiteral("Den Gefallen kann ich dir tun !"));
    Laden(lauf, "T.FKR");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Frage1(), QStringLiteral("Eins 1"));
    QCOMPARE(Fenstertitel(), QStringLiteral("A.FKR "));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QVERIFY(Stand.FormGeaendert);
    QCOMPARE(HBForm.HBFrageText[1], std::string());
    QCOMPARE(Stand.FKDateiName, lauf.Pfad("A.FKR"));
}

void OeffnenTest::aTestFileOpensItsFormAndEntersNoList() {
    lauf.Schreiben(QStringLiteral("T.FKR"), Formlauf::Test("Knoten"));
    Laden(lauf, "T.FKR");
    QCOMPARE(HBForm.HBFrageText[1], std::string("Knoten"));
    QCOMPARE(HBForm.HBGesamtpunkte, 55);
    QCOMPARE(Stand.FormTyp, Formart::Test);
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Spiel.Datei[0], std::string());
}

void OeffnenTest::theFifthFilePushesTheOldestOutOfTheList() {
    for (const char* name : {"A.FKR", "B.FKR", "C.FKR", "D.FKR", "E.FKR"}) {
        lauf.Schreiben(QString::fromLatin1(name), Formlauf::Quiz(name));
    }
    for (const char* name : {"A.FKR", "B.FKR", "C.FKR", "D.FKR", "E.FKR", "C.FKR"}) {
        Laden(lauf, name);
    }
    QCOMPARE(Frage1(), QStringLiteral("C.FKR 1"));
    const std::array liste{Spiel.Datei[0], Spiel.Datei[1], Spiel.Datei[2], Spiel.Datei[3]};
    const std::array erwartet{"E.FKR", "D.FKR", "C.FKR", "B.FKR"};
    for (std::size_t i = 0; i < liste.size(); ++i) {
        QCOMPARE(liste.at(i), lauf.Pfad(erwartet.at(i)));
        const auto* eintrag =
            Finden<QAction>(lauf.programm().haupt(), QStringLiteral("mDateiGeoeffnet"), static_cast<int>(i));
        QVERIFY(eintrag->isVisible());
        QCOMPARE(eintrag->text().remove(u'&').toStdString(), liste.at(i));
    }
}

void OeffnenTest::aTextFileIsNoFormFile() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    lauf.Schreiben(QStringLiteral("BRIEF.TXT"), "Liebe Oma,\r\n");
    lauf.Oeffnen(QStringLiteral("A.FKR"));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    Laden(lauf, "BRIEF.TXT");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Frage1(), QStringLiteral("Eins 1"));
    QCOMPARE(Stand.FKDateiName, lauf.Pfad("A.FKR"));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
}

void OeffnenTest::cancellingTheDialogSaysThatNoFileWasChosen() {
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QString(), QStringLiteral("cmdAbbrechen"));
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    lauf.Druecken(QStringLiteral("cmdLaden"));
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
}

void OeffnenTest::unsavedChangesAreAskedAboutFirst() {
    lauf.NeuesFormular(QStringLiteral("Neu"));
    QVERIFY(Stand.FormGeaendert);
    const QString frage = QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?");
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Auswertung speichern !"), frage, 2);
    lauf.Druecken(QStringLiteral("cmdDateiFK(2)"));
    QVERIFY(dialoge.fertig());

    dialoge.frage(QStringLiteral("Auswertung speichern !"), frage, 7);
    dialoge.meldung(QStringLiteral("Formular wird nicht gespeichert !"),
                    QStringLiteral("Das will ich auch meinen"));
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QString(), QStringLiteral("cmdAbbrechen"));
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(2)"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(Frage1(), QStringLiteral("Neu"));
    QVERIFY(Stand.FormGeaendert);
}

void OeffnenTest::aFileCutShortIsReportedAndShownAsFarAsRead() {
    QByteArray bytes = Formlauf::Quiz("Herbst");
    bytes.truncate(bytes.indexOf("\"Herbst 2\""));
    lauf.Schreiben(QStringLiteral("KURZ.FKR"), bytes);
    Dialogfolge dialoge;
    StelleErwarten(dialoge, 62, static_cast<int>(bytes.count('\n')) + 1);
    dialoge.kasten(fehlerTitel, QStringLiteral("Dateilänge nicht korrekt oder so ..."), QStringLiteral("OK"));
    Laden(lauf, "KURZ.FKR");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Frage1(), QStringLiteral("Herbst 1"));
    QCOMPARE(QString::fromStdString(FK_Frage(2)), QString());
    QCOMPARE(Fenstertitel(), QStringLiteral("KURZ.FKR "));
}

void OeffnenTest::anOverlongNumberIsReportedWithItsLine() {
    QByteArray bytes = Formlauf::Quiz("Herbst");
    bytes.replace("\"FK\"\r\n24\r\n", "\"FK\"\r\n99999\r\n24\r\n");
    lauf.Schreiben(QStringLiteral("LANG.FKR"), bytes);
    Dialogfolge dialoge;
    StelleErwarten(dialoge, 6, 5);
    Laden(lauf, "LANG.FKR");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Spiel.FelderGesamt, 24);
    QCOMPARE(Frage1(), QStringLiteral("Herbst 1"));
}

void OeffnenTest::aFileFullOfOverlongNumbersEndsAfterTenBoxes() {
    QByteArray bytes = "\"Feldkranz\"\r\n\"FK\"\r\n[FKINI]\r\nFK\r\n";
    for (int i = 0; i < 1000; ++i) {
        bytes += "99999\r\n";
    }
    lauf.Schreiben(QStringLiteral("KAPUTT.FKR"), bytes);
    Dialogfolge dialoge;
    for (int zeile = 5; zeile < 15; ++zeile) {
        StelleErwarten(dialoge, 6, zeile);
    }
    StelleErwarten(dialoge, 62, 1005);
    dialoge.kasten(fehlerTitel, QStringLiteral("Dateilänge nicht korrekt oder so ..."), QStringLiteral("OK"));
    Laden(lauf, "KAPUTT.FKR");
    QVERIFY(dialoge.fertig());
}

void OeffnenTest::aMissingFileOpensTheDialogAgainAndCancelLeavesIt() {
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    Dialogfolge dialoge;
    const auto fehlt = [&dialoge](int nummer) {
        StelleErwarten(dialoge, nummer, 0);
        dialoge.kasten(fehlerTitel, QStringLiteral("Mit dem Dateinamen stimmt etwas nicht !"),
                       QStringLiteral("OK"));
    };
    fehlt(53);
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QString(), QStringLiteral("cmdAbbrechen"));
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    Laden(lauf, "FEHLT.FKR");
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);

    // A folder in place of a file, and another file the second time.
    fehlt(52);
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QStringLiteral("A.FKR"),
                        QStringLiteral("cmdLaden"));
    FormularLaden(Stand.AppPfad + "\\KRANZ");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Frage1(), QStringLiteral("Eins 1"));
    QCOMPARE(Fenstertitel(), QStringLiteral("A.FKR "));
    QCOMPARE(Stand.FKDateiName, lauf.Pfad("A.FKR"));
    QCOMPARE(Spiel.Datei[1], std::string());
}

void OeffnenTest::aShapeThatFitsNoCounterGivesWayToTheFullBoard() {
    QByteArray bytes = Formlauf::Quiz("Herbst");
    bytes.replace("\"FK\"\r\n24\r\n4\r\n6\r\n", "\"FK\"\r\n24\r\n400\r\n600\r\n");
    lauf.Schreiben(QStringLiteral("GROSS.FKR"), bytes);
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("DATEI : Oeffnen_Fragen :\nÜberlauf"),
                    QStringLiteral("Das gefällt mir gar nicht"));
    Laden(lauf, "GROSS.FKR");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Spiel.AnzahlWissen, 6);
    QCOMPARE(Spiel.FragenProWissen, 5);
    QCOMPARE(Frage1(), QStringLiteral("Herbst 1"));
    QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picFK"))->isVisible());
}

void OeffnenTest::aTagOfNoKindOpensNothingAndBlocksNothing() {
    lauf.Schreiben(QStringLiteral("X.FKR"), "\"Feldkranz\"\r\n\"Xyz\"\r\n");
    lauf.Schreiben(QStringLiteral("A.FKR"), Formlauf::Quiz("Eins"));
    Laden(lauf, "X.FKR");
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(Stand.FormTyp, Formart::Keine);
    Laden(lauf, "A.FKR");
    QCOMPARE(Frage1(), QStringLiteral("Eins 1"));
    // With a form open it is refused without a word.
    Laden(lauf, "X.FKR");
    QCOMPARE(Fenstertitel(), QStringLiteral("A.FKR "));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
}

void OeffnenTest::anEmptyFileCountsAsRead() {
    lauf.Schreiben(QStringLiteral("LEER.FKR"), "");
    Laden(lauf, "LEER.FKR");
    QVERIFY(FKFragenOffen() == nullptr);
    QCOMPARE(Spiel.FarbeHintergrund, 7);
    QCOMPARE(Stand.FormTyp, Formart::Keine);
}

QTEST_MAIN(OeffnenTest)
#include "oeffnen_test.moc"
