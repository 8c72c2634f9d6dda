// Saving a form whose file another program has changed meanwhile, in the real main window. The other program
// is the test, which writes behind the program's back.
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "forms/speichern.h"
#include "fremdhilfe.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/finden.h"

#include <QDir>
#include <QLabel>
#include <QTest>

namespace {

const QString abend = QStringLiteral("ABEND.FKR");
const Fremdfrage fremdfrage{QStringLiteral("Die Formulardatei"), abend};
const QByteArray fremd = "von jemand anderem";
const QString speichernUnter = QStringLiteral("Speichern unter ...");
const QString cmdSpeichern = QStringLiteral("cmdSpeichern");

Textfeld* Kasten() {
    return FKFragenOffen() != nullptr ? FKFragenOffen()->txtFrage.at(1) : HBFragenOffen()->txtFrage.at(1);
}

void UeberschreibenErwarten(Dialogfolge& dialoge, const QString& name, int antwort) {
    dialoge.frage(QStringLiteral(" Speichern unter ..."),
                  QStringLiteral("Die Auswertung\n[ %1 ]\nist bereits vorhanden !\nSoll ich diese Datei "
                                 "überschreiben ?")
                      .arg(name),
                  antwort);
}

} // namespace

class FremdformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanupTestCase() { lauf.Beenden(); }

    void anotherProgramsWorkIsReplacedOnJaOnly();
    void abbrechenLeavesTheFileAndIsNoSave();
    void closingTheQuestionByItsFrameDestroysNothing();
    void theQuestionHasRoomForItsText();
    void neinAsksForAnotherName();
    void neinAndACancelledDialogAreNoSave();
    void neinAndTheSameNameAreAskedAboutAsAnyName();
    void theSameContentWithAnotherTimeIsNotAskedAbout();
    void aFileThatHasGoneIsWrittenAnew();
    void aFolderInItsPlaceRefusesWithoutAQuestion();
    void aFileThatCanNotBeReadIsAskedAbout();
    void theOwnSavesAreKnown();
    void readingTheFileAgainKnowsItAgain();
    void aNameThatWasAskedAboutIsNotAskedAboutTwice();
    void whatIsWrittenWhileTheQuestionIsUpIsAskedAboutToo();
    void whatIsWrittenWhileTheBackupIsToldIsAskedAboutToo();
    void aSaveBeforeClosingIsAskedAndCountsAsCancelled();

private:
    // The form's file, written by somebody else.
    void Fremdschreiben(const QByteArray& bytes = fremd) const { lauf.Schreiben(abend, bytes); }
    [[nodiscard]] QString Nativ(const QString& name = abend) const {
        return lauf.programm().ordner().nativ(QStringLiteral("KRANZ/") + name);
    }
    void Tippen(const QString& text) const {
        Kasten()->setFocus();
        QTest::keyClicks(Kasten(), text);
        QVERIFY(Stand.FormGeaendert);
    }
    void Sichern() const {
        lauf.Druecken(FKFragenOffen() != nullptr ? QStringLiteral("cmdDateiFK(3)")
                                                 : QStringLiteral("cmdDateiHB(3)"));
    }
    void Unveraendert(const QByteArray& bytes = fremd) const {
        QCOMPARE(lauf.Lesen(abend), bytes);
        QVERIFY(Stand.FormGeaendert);
        QCOMPARE(Kasten()->toPlainText(), QStringLiteral("getippt"));
        QVERIFY(Finden(lauf.programm().haupt(), QStringLiteral("picEingabeFlagRot"))->isVisible());
    }

    Formlauf lauf;
};

void FremdformTest::initTestCase_data() {
    QTest::addColumn<bool>("quiz");
    QTest::newRow("quiz form") << true;
    QTest::newRow("test form") << false;
}

// A form from a file, with something typed into it.
void FremdformTest::init() {
    QFETCH_GLOBAL(const bool, quiz);
    lauf.Vorbereiten();
    Fremdschreiben(quiz ? Formlauf::Quiz("alt") : Formlauf::Test("alt"));
    FormularLaden(lauf.Pfad(abend.toStdString()));
    Tippen(QStringLiteral("getippt"));
}

void FremdformTest::anotherProgramsWorkIsReplacedOnJaOnly() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 6);
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(abend).contains("getippt"));
    QVERIFY(!Stand.FormGeaendert);
    Tippen(QStringLiteral("!")); // it is the program's own file again
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
}

void FremdformTest::abbrechenLeavesTheFileAndIsNoSave() {
    Fremdschreiben();
    Dialogfolge dialoge;
    for (int mal = 0; mal < 2; ++mal) { // and it is asked about again
        FremdErwarten(dialoge, fremdfrage, 2);
        BleibtErwarten(dialoge, abend);
        Sichern();
        QVERIFY(dialoge.fertig());
        Unveraendert();
    }
}

void FremdformTest::closingTheQuestionByItsFrameDestroysNothing() {
    Kasten()->selectAll();
    Tippen(QStringLiteral("zuerst"));
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 6);
    GespeichertErwarten(dialoge, abend);
    Sichern();
    Kasten()->selectAll();
    Tippen(QStringLiteral("getippt"));
    Fremdschreiben();
    FremdGeschlossen(dialoge, fremdfrage); // the Ja before doesn't hold any more
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    Unveraendert();
}

void FremdformTest::theQuestionHasRoomForItsText() {
    Fremdschreiben();
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"),
                     fremdTitel + QLatin1Char(' '),
                     fremdfrage.geaendert(),
                     {QStringLiteral("cmdAntwort(2)")},
                     [](const QDialog& dialog) {
                         const auto* schild = Finden<QLabel>(&dialog, QStringLiteral("lblNachrichtentext"));
                         const QRect bedarf = schild->fontMetrics().boundingRect(
                             QRect(), Qt::AlignLeft | Qt::TextDontClip, schild->text());
                         QVERIFY(bedarf.height() <= schild->height() && bedarf.width() <= schild->width());
                     }});
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
}

void FremdformTest::neinAsksForAnotherName() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 7);
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("Zwei"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("Zwei.FKR"));
    Sichern();
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(abend), fremd);
    QVERIFY(lauf.Lesen(QStringLiteral("Zwei.FKR")).contains("getippt"));
    QVERIFY(!Stand.FormGeaendert);
    Tippen(QStringLiteral("!")); // the form is in its new file
    GespeichertErwarten(dialoge, QStringLiteral("Zwei.FKR"));
    Sichern();
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(abend), fremd);
}

void FremdformTest::neinAndACancelledDialogAreNoSave() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 7);
    DateidialogErwarten(dialoge, speichernUnter, QString(), QStringLiteral("cmdAbbrechen"));
    Sichern();
    Unveraendert();
    FremdErwarten(dialoge, fremdfrage, 2); // the form keeps its file
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
}

void FremdformTest::neinAndTheSameNameAreAskedAboutAsAnyName() {
    Fremdschreiben();
    Dialogfolge dialoge;
    FremdErwarten(dialoge, fremdfrage, 7);
    DateidialogErwarten(dialoge, speichernUnter, abend, cmdSpeichern);
    UeberschreibenErwarten(dialoge, abend, 6);
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(abend).contains("getippt"));
}

void FremdformTest::theSameContentWithAnotherTimeIsNotAskedAbout() {
    Beruehren(Nativ());
    const QByteArray gleich = lauf.Lesen(abend);
    QVERIFY(QFile::remove(Nativ()));
    Fremdschreiben(gleich); // another file, as other programs' saves leave it
    Beruehren(Nativ());
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(abend).contains("getippt"));
}

void FremdformTest::aFileThatHasGoneIsWrittenAnew() {
    QVERIFY(QFile::remove(Nativ()));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(abend).contains("getippt"));
}

void FremdformTest::aFolderInItsPlaceRefusesWithoutAQuestion() {
    QVERIFY(QFile::remove(Nativ()));
    lauf.Schreiben(abend + QStringLiteral("/drin.txt"), fremd);
    Dialogfolge dialoge;
    dialoge.meldung(
        QStringLiteral("DATEI : FormularSpeichern :\n75 : Fehler beim Zugriff auf Pfad oder Datei"),
        QStringLiteral("Grrr.. *~§§°"));
    Sichern();
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(abend + QStringLiteral("/drin.txt")), fremd);
    QVERIFY(Stand.FormGeaendert);
    QTRY_VERIFY(QDir(Nativ()).removeRecursively());
}

void FremdformTest::aFileThatCanNotBeReadIsAskedAbout() {
    UnlesbarMachen(Nativ());
    Dialogfolge dialoge;
    dialoge.frage(unlesbarTitel, fremdfrage.unlesbar(), 2);
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QVERIFY(Stand.FormGeaendert);
    dialoge.frage(unlesbarTitel, fremdfrage.unlesbar(), 7);
    DateidialogErwarten(dialoge, speichernUnter, QStringLiteral("Zwei.FKR"), cmdSpeichern);
    GespeichertErwarten(dialoge, QStringLiteral("Zwei.FKR"));
    Sichern();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("Zwei.FKR")).contains("getippt"));
    QVERIFY(QFile::remove(Nativ()));
}

void FremdformTest::theOwnSavesAreKnown() {
    Dialogfolge dialoge;
    for (const QString& text : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
        Tippen(text);
        GespeichertErwarten(dialoge, abend);
        Sichern();
        QVERIFY(dialoge.fertig());
    }
    const QByteArray eigen = lauf.Lesen(abend);
    Fremdschreiben();
    Fremdschreiben(eigen); // somebody put it back as it was
    Tippen(QStringLiteral("d"));
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
}

void FremdformTest::readingTheFileAgainKnowsItAgain() {
    QFETCH_GLOBAL(const bool, quiz);
    Fremdschreiben(quiz ? Formlauf::Quiz("neu") : Formlauf::Test("neu"));
    FormularLaden(lauf.Pfad(abend.toStdString()));
    Tippen(QStringLiteral("getippt"));
    Dialogfolge dialoge;
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    // A file that is only looked at, or refused, isn't the form's.
    lauf.Schreiben(QStringLiteral("Brief.FKR"), "Liebe Oma");
    dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
    FormularLaden(lauf.Pfad("Brief.FKR"));
    Tippen(QStringLiteral("!"));
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
}

void FremdformTest::aNameThatWasAskedAboutIsNotAskedAboutTwice() {
    Fremdschreiben();
    lauf.Schreiben(QStringLiteral("ANDERE.FKR"), fremd);
    Dialogfolge dialoge;
    for (const QString& name : {abend, QStringLiteral("ANDERE.FKR")}) {
        DateidialogErwarten(dialoge, speichernUnter, name, cmdSpeichern);
        UeberschreibenErwarten(dialoge, name, 6);
        GespeichertErwarten(dialoge, name);
        lauf.Druecken(FKFragenOffen() != nullptr ? QStringLiteral("cmdDateiFK(4)")
                                                 : QStringLiteral("cmdDateiHB(4)"));
        QVERIFY(dialoge.fertig());
        QVERIFY(lauf.Lesen(name).contains("getippt"));
    }
}

void FremdformTest::whatIsWrittenWhileTheQuestionIsUpIsAskedAboutToo() {
    Fremdschreiben();
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmNachricht"),
                     fremdTitel + QLatin1Char(' '),
                     fremdfrage.geaendert(),
                     {QStringLiteral("cmdAntwort(0)")},
                     [this](QDialog&) { Fremdschreiben("und noch mehr"); }});
    FremdErwarten(dialoge, fremdfrage, 2);
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    Unveraendert("und noch mehr");
}

void FremdformTest::whatIsWrittenWhileTheBackupIsToldIsAskedAboutToo() {
    const QByteArray alt = lauf.Lesen(abend);
    Spiel.OptionDatei = true;
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmMeldung"),
                     std::nullopt,
                     QStringLiteral("BackUp angelegt :   [ ABEND.BAK ]"),
                     {QStringLiteral("cmdKenntnis")},
                     [this](QDialog&) { Fremdschreiben(); }});
    FremdErwarten(dialoge, fremdfrage, 2);
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    Unveraendert();
    QCOMPARE(lauf.Lesen(QStringLiteral("ABEND.BAK")), alt);
    FremdErwarten(dialoge, fremdfrage, 2); // and then no backup takes the place of the good one
    BleibtErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("ABEND.BAK")), alt);
    FremdErwarten(dialoge, fremdfrage, 6); // the other's version is kept where it is replaced
    dialoge.meldung(QStringLiteral("BackUp angelegt :   [ ABEND.BAK ]"), QStringLiteral("Schön"));
    GespeichertErwarten(dialoge, abend);
    Sichern();
    QVERIFY(dialoge.fertig());
    QCOMPARE(lauf.Lesen(QStringLiteral("ABEND.BAK")), fremd);
}

void FremdformTest::aSaveBeforeClosingIsAskedAndCountsAsCancelled() {
    QFETCH_GLOBAL(const bool, quiz);
    Fremdschreiben();
    Dialogfolge dialoge;
    dialoge.frage(QStringLiteral("Neues Test-Formular"),
                  QStringLiteral("Soll ich das vorhandene Formular vorher speichern ?"), 6);
    FremdErwarten(dialoge, fremdfrage, 2);
    BleibtErwarten(dialoge, abend);
    QVERIFY(!SchliessenPruefen(quiz ? Formart::Quiz : Formart::Test));
    QVERIFY(dialoge.fertig());
    Unveraendert();
    dialoge.frage(QStringLiteral("Auswertung speichern !"),
                  QStringLiteral("Soll das aktuelle Feldkranz-Formular\ngespeichert werden ?"), 6);
    FremdErwarten(dialoge, fremdfrage, 2);
    BleibtErwarten(dialoge, abend);
    ProgrammEnde();
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.programm().haupt()->isVisible());
    Unveraendert();
}

QTEST_MAIN(FremdformTest)
#include "fremdform_test.moc"
