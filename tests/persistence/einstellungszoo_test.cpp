// Broken settings files at the start of the program, and broken catalogue files in its selection dialog: the
// program comes up, says what it has to say, changes no file and makes a new form.
#include "core/pfad.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>

namespace {

const QString ini = QStringLiteral("CONFIG/Feldkranz.INI");

QByteArray Werksdatei() {
    const Programmordner ordner;
    return ordner.lesen(ini);
}

// The main window once more, over a settings file of the test's.
void Neustart(const Programm& programm, const QByteArray& bytes) {
    programm.ordner().schreiben(ini, bytes);
    delete programm.haupt();
    ZustandZuruecksetzen();
    Stand.AppPfad = EigenerPfad(programm.ordner().nativ());
    HauptfensterZeigen();
    QVERIFY(QTest::qWaitForWindowActive(MDIFenster()));
}

} // namespace

class EinstellungszooTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBrokenSettingsFileIsPassedOverWithoutAWord_data();
    void aBrokenSettingsFileIsPassedOverWithoutAWord();
    void withNoFileTheFirstFormStartsWithCountsOfZeroAndColour7();
    void aBrokenQuestionFileLeavesTheDialogUsable_data();
    void aBrokenQuestionFileLeavesTheDialogUsable();
};

void EinstellungszooTest::aBrokenSettingsFileIsPassedOverWithoutAWord_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("punkteA");
    const QByteArray ganz = Werksdatei();
    QByteArray nul = ganz;
    QTest::newRow("empty") << QByteArray("") << 0;
    QTest::newRow("one quote") << QByteArray("\"") << 0;
    QTest::newRow("cut short") << ganz.left(40) << 5;
    QTest::newRow("a quote that never closes") << QByteArray("[STANDARD]\r\n5\r\n\"") << 5;
    QTest::newRow("an overlong number")
        << QByteArray("[STANDARD]\r\n5\r\n99999999999999999999\r\n7\r\n") << 5;
    QTest::newRow("NUL bytes") << nul.replace("\"A4 quer\"", QByteArray("\"A4\0quer\"", 9)) << 5;
    QTest::newRow("values at their ends")
        << QByteArray("[STANDARD]\r\n-32768\r\n") + QByteArray("32767\r\n").repeated(49) << -32768;
    QTest::newRow("a hundred megabytes") << QByteArray(100'000'000, 'x') << 0;
}

void EinstellungszooTest::aBrokenSettingsFileIsPassedOverWithoutAWord() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, punkteA);
    Programm programm(false);
    {
        const Dialogfolge dialoge; // a message fails the test
        Neustart(programm, bytes);
        QCOMPARE(Spiel.Punkte[Spezialart::Aktion], punkteA);
    }
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(1)->setFocus();
    QTest::keyClicks(form->txtFrage.at(1), QStringLiteral("Geht"));
    QCOMPARE(form->txtFrage.at(1)->text(), std::string("Geht"));
    QVERIFY(programm.ordner().lesen(ini) == bytes);
}

void EinstellungszooTest::withNoFileTheFirstFormStartsWithCountsOfZeroAndColour7() {
    Programm programm(false);
    QCOMPARE(Spiel.FarbeHintergrund, 0);
    programm.NeuesQuizformular();
    for (const std::int16_t felder : Spiel.Felder.werte) {
        QCOMPARE(felder, 0);
    }
    QCOMPARE(Spiel.FarbeHintergrund, 7);
    QVERIFY(!programm.ordner().vorhanden(ini));
}

void EinstellungszooTest::aBrokenQuestionFileLeavesTheDialogUsable_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("fragen");
    QTest::addColumn<bool>("zuLang");
    QTest::newRow("empty") << QByteArray("") << 0 << false;
    QTest::newRow("a header alone") << QByteArray("K\r\n") << 0 << false;
    QTest::newRow("cut short") << QByteArray("K\r\n1\r\nF\r\nA\r\n5\r\n2\r\nG\r\n") << 1 << false;
    QTest::newRow("NUL bytes") << "K\r\n1\r\n" + QByteArray(3000, '\0') + "\r\nA\r\n5\r\n" << 1 << false;
    QTest::newRow("unbalanced quotes") << QByteArray("K\r\n\"1\r\n\"F\r\nA\"\r\n\"\r\n") << 1 << false;
    QTest::newRow("a hundred megabytes of one line")
        << "K\r\n1\r\n" + QByteArray(100'000'000, 'x') << 0 << true;
    QTest::newRow("ten megabytes of line ends") << QByteArray(10'000'001, '\n') << 2'500'000 << false;
}

void EinstellungszooTest::aBrokenQuestionFileLeavesTheDialogUsable() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, fragen);
    QFETCH(const bool, zuLang);
    const QString datei = QStringLiteral("WISSEN/LAND/LA_BERG.TXT");
    Programm programm(false);
    programm.ordner().schreiben(datei, bytes);
    programm.NeuesQuizformular();
    Dialogfolge dialoge;
    QTest::mouseClick(Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdAuswahl(0)")),
                      Qt::LeftButton);
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    const auto waehlen = [auswahl](const char* liste, const QString& text) {
        auto* box = Finden<QComboBox>(auswahl, QLatin1String(liste));
        box->setCurrentIndex(box->findText(text));
    };
    waehlen("cmbThemen", QStringLiteral("Land"));
    waehlen("cmbUnter", QStringLiteral("Berge"));
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("pnlHilfe"))->property("caption").toString() ==
                 QStringLiteral(" Ich lasse in [ LA_BERG.TXT ] eine Frage weg: Zeile 3 ist zu lang. "),
             zuLang);
    QVERIFY(dialoge.fertig());
    QCOMPARE(Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"))->count(), fragen);
    QVERIFY(programm.ordner().lesen(datei) == bytes);
    // The next sub-theme is as good as ever.
    waehlen("cmbUnter", QStringLiteral("Meere"));
    auto* liste = Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"));
    QVERIFY(liste->count() > 0);
    liste->setCurrentIndex(0);
    QCOMPARE(Finden<QPlainTextEdit>(auswahl, QStringLiteral("txtFrage"))->toPlainText(),
             liste->currentText());
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(EinstellungszooTest)
#include "einstellungszoo_test.moc"
