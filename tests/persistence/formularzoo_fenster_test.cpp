// Broken form files in the running program: each is answered as it deserves, no file changes, and the program
// makes the next new form.
#include "core/hauptfenster.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "formlauf.h"
#include "forms/oeffnen.h"
#include "forms/verlauf.h"
#include "mainwindow/frmMDI.h"
#include "quizform/fkformular.h"
#include "quizform/quizformular.h"
#include "testform/hbformular.h"
#include "tests/hilfe/finden.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QMetaType>
#include <QTest>

#include <random>

namespace {

const QString fehlerTitel = QStringLiteral("Fehler beim Laden !");
const QString ok = QStringLiteral("OK");

// What the user is told about a file, behind the file dialog.
enum class Folge { Still, KeinFormular, ZuKurz, ZuGross, NameFalsch };

struct Erwartung {
    Folge folge = Folge::Still;
    int zeile = 0; // of a file cut short
    int davor = 0; // number of an error ahead of that
    int davorZeile = 0;
};

void StelleErwarten(Dialogfolge& dialoge, int nummer, int zeile) {
    dialoge.kasten(fehlerTitel, QStringLiteral("Fehler Nummer %1 occurred at line %2").arg(nummer).arg(zeile),
                   ok);
}

void FolgeErwarten(Dialogfolge& dialoge, const Erwartung& erwartung) {
    if (erwartung.davor != 0) {
        StelleErwarten(dialoge, erwartung.davor, erwartung.davorZeile);
    }
    switch (erwartung.folge) {
    case Folge::Still:
        break;
    case Folge::KeinFormular:
        dialoge.meldung(QStringLiteral("Evtl. keine Feldkranz-Datei !"), QStringLiteral("Grrr"));
        break;
    case Folge::ZuKurz:
        StelleErwarten(dialoge, 62, erwartung.zeile);
        dialoge.kasten(fehlerTitel, QStringLiteral("Dateilänge nicht korrekt oder so ..."), ok);
        break;
    case Folge::ZuGross:
        StelleErwarten(dialoge, 7, 0);
        break;
    case Folge::NameFalsch:
        StelleErwarten(dialoge, 52, 0);
        dialoge.kasten(fehlerTitel, QStringLiteral("Mit dem Dateinamen stimmt etwas nicht !"), ok);
        DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QString(), QStringLiteral("cmdAbbrechen"));
        dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
        break;
    }
}

QByteArray Zufallsbytes(int anzahl) {
    std::mt19937 zufall(2008); // NOLINT(cert-msc51-cpp): the same bytes at every run
    QByteArray bytes;
    for (int i = 0; i < anzahl; ++i) {
        bytes += static_cast<char>(zufall() & 0xFFU);
    }
    return bytes;
}

QByteArray Kopf(const QByteArray& rest) {
    return "\"Feldkranz\"\r\n\"FK\"\r\n" + rest;
}

QByteArray Testkopf(const QByteArray& rest) {
    return "\"Feldkranz\"\r\n\"Test\"\r\n" + rest;
}

QByteArray MitForm(const QByteArray& gesamt, const QByteArray& fragen, const QByteArray& gebiete) {
    return Kopf("\"[FKINI]\"\r\n\"FK\"\r\n" + gesamt + "\r\n" + fragen + "\r\n" + gebiete + "\r\n\"\"\r\n");
}

} // namespace

Q_DECLARE_METATYPE(Erwartung)

class FormularzooFensterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { lauf.Vorbereiten(); }
    void cleanupTestCase() { lauf.Beenden(); }

    void aBrokenFileIsAnsweredAndTheNextFormCanBeMade_data();
    void aBrokenFileIsAnsweredAndTheNextFormCanBeMade();
    void aBrokenTestFileIsAnsweredAndTheNextTestCanBeMade_data();
    void aBrokenTestFileIsAnsweredAndTheNextTestCanBeMade();
    void whatIsNoRegularFileIsABadName_data();
    void whatIsNoRegularFileIsABadName();
    void aDriveThatIsNotReadyIsTriedAgainAsLongAsTheUserWants();
    void aRefusedFileLeavesTheOpenFormAlone();
    void aTextThatTheReaderWouldRefuseIsCutWhenItIsPasted();

private:
    void KaputtesOeffnen(const QByteArray& bytes, const Erwartung& erwartung) const;
    void NeuesFormularGeht() const;

    Formlauf lauf;
};

// A new form by its button, a text typed into it, nothing saved.
void FormularzooFensterTest::NeuesFormularGeht() const {
    const frmFKFragen* form = lauf.NeuesFormular(QStringLiteral("Danach"));
    QCOMPARE(form->txtFrage.at(1)->text(), std::string("Danach"));
    QCOMPARE(Stand.FormTyp, Formart::Quiz);
    QCOMPARE(Stand.FKDateiName, std::string());
}

void FormularzooFensterTest::aBrokenFileIsAnsweredAndTheNextFormCanBeMade_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Erwartung>("erwartung");
    const auto zeile = [](const char* name, const QByteArray& bytes, const Erwartung& erwartung) {
        QTest::newRow(name) << bytes << erwartung;
    };
    const QByteArray ganz = Formlauf::Quiz("Herbst");
    const Erwartung still{Folge::Still};
    const Erwartung keins{Folge::KeinFormular};
    const Erwartung zuGross{Folge::ZuGross};
    zeile("empty", "", still);
    zeile("one quote", "\"", keins);
    zeile("random bytes", Zufallsbytes(5000), keins);
    zeile("nothing but NUL bytes", QByteArray(5000, '\0'), keins);
    zeile("the type word in small letters", "\"feldkranz\"\r\n\"FK\"\r\n", keins);
    zeile("the type word alone", "\"Feldkranz\"\r\n", {Folge::ZuKurz, 2});
    zeile("cut behind the head", Kopf(""), still);
    zeile("cut inside a section", Kopf("[FKPUNKTE]\r\n1\r\n"), {Folge::ZuKurz, 5});
    zeile("a quote that never closes", Kopf("[FRAGEN]\r\n\"A\r\nB\r\n"), {Folge::ZuKurz, 6});
    zeile("an overlong number", Kopf("[FKINI]\r\nFK\r\n99999999999999999999\r\n"), {Folge::ZuKurz, 6, 6, 5});
    zeile("random bytes as values", Kopf("[FRAGEN]\r\n\"" + Zufallsbytes(900).replace('"', ' ') + '"'),
          {Folge::ZuKurz, 0});
    QByteArray nul = ganz;
    zeile("NUL bytes in every text", nul.replace("Herbst", QByteArray("H\0rbst", 6)), still);
    zeile("a board of no fields", MitForm("0", "0", "0"), still);
    zeile("a board of negative fields", MitForm("-1", "-5", "-6"), still);
    zeile("a board of nine by nine", MitForm("81", "9", "9"), still);
    zeile("counts and points at their ends",
          Kopf("[FKPUNKTE]\r\n32767\r\n-32768\r\n-1\r\n32767\r\n32767\r\n32767\r\n-32768\r\n1\r\n0\r\n0\r\n"
               "\"\"\r\n\"\"\r\n\"\"\r\n1e30\r\n-32768\r\n"),
          still);
    QByteArray buchstaben = ganz;
    zeile("letters of no kind", buchstaben.replace("\"Herbst 5\"\r\n", "\"Herbst 5\"\r\n\"\"\r\n\"XYZ\"\r\n"),
          still);
    zeile("a hundred megabytes of one text", Kopf("[FRAGEN]\r\n\"") + QByteArray(100'000'000, 'x'), zuGross);
    zeile("a hundred megabytes that are no form", QByteArray(100'000'000, 'x'), keins);
    zeile("a hundred megabytes of line ends", Kopf(QByteArray(100'000'000, '\n')), zuGross);
    zeile("four megabytes of one text",
          Kopf("[FRAGEN]\r\n\"W\"\r\n\"" + QByteArray(4'000'000, 'x') + "\"\r\n"), {Folge::ZuKurz, 6, 7, 5});
    zeile("the longest text", Kopf("[FRAGEN]\r\n\"W\"\r\n\"" + QByteArray(65536, 'x') + "\"\r\n"),
          {Folge::ZuKurz, 6});
}

// The file is opened and answered as expected; it stays as it is, and nothing counts as changed.
void FormularzooFensterTest::KaputtesOeffnen(const QByteArray& bytes, const Erwartung& erwartung) const {
    lauf.Schreiben(QStringLiteral("KAPUTT.FKR"), bytes);
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QStringLiteral("KAPUTT.FKR"),
                        QStringLiteral("cmdLaden"));
    FolgeErwarten(dialoge, erwartung);
    lauf.Druecken(QStringLiteral("cmdLaden"));
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("KAPUTT.FKR")) == bytes);
    QCoreApplication::processEvents(); // what a text box mends comes behind
    QVERIFY(!Stand.FormGeaendert);
}

void FormularzooFensterTest::aBrokenFileIsAnsweredAndTheNextFormCanBeMade() {
    QFETCH(const QByteArray, bytes);
    QFETCH(Erwartung, erwartung);
    if (erwartung.folge == Folge::ZuKurz && erwartung.zeile == 0) {
        // Line ends among random bytes: a CR, an LF or both together.
        const int paare = static_cast<int>(bytes.count("\r\n"));
        erwartung.zeile = 1 + static_cast<int>(bytes.count('\r') + bytes.count('\n')) - paare;
    }
    KaputtesOeffnen(bytes, erwartung);
    NeuesFormularGeht();
}

void FormularzooFensterTest::aBrokenTestFileIsAnsweredAndTheNextTestCanBeMade_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Erwartung>("erwartung");
    const auto zeile = [](const char* name, const QByteArray& bytes, const Erwartung& erwartung) {
        QTest::newRow(name) << bytes << erwartung;
    };
    const QByteArray ganz = Formlauf::Test("Herbst");
    const Erwartung still{Folge::Still};
    zeile("cut behind the tag", Testkopf(""), still);
    zeile("cut inside the head", Testkopf("\"[HB-ALLGEMEINES]\"\r\n\" T\"\r\n"), {Folge::ZuKurz, 5});
    zeile("cut inside the questions", Testkopf("\"[HB-FRAGEN]\"\r\n\" T\"\r\n\"Was ?\"\r\n"),
          {Folge::ZuKurz, 6});
    zeile("a quote that never closes", Testkopf("[HB-FRAGEN]\r\n\"A\r\nB\r\n"), {Folge::ZuKurz, 6});
    QByteArray nul = ganz;
    zeile("NUL bytes in a text", nul.replace("Herbst", QByteArray("H\0rbst", 6)), still);
    zeile("four megabytes of one text",
          Testkopf("[HB-FRAGEN]\r\n\"W\"\r\n\"" + QByteArray(4'000'000, 'x') + "\"\r\n"),
          {Folge::ZuKurz, 6, 7, 5});
    zeile("a hundred megabytes of line ends", Testkopf(QByteArray(100'000'000, '\n')), {Folge::ZuGross});
}

void FormularzooFensterTest::aBrokenTestFileIsAnsweredAndTheNextTestCanBeMade() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const Erwartung, erwartung);
    KaputtesOeffnen(bytes, erwartung);
    HB_Entladen();
    ModusHaupt();
    QVERIFY(lauf.programm().NeuesTestformular() != nullptr);
    QCOMPARE(HB_Frage(1), std::string());
    QCOMPARE(Stand.FormTyp, Formart::Test);
}

void FormularzooFensterTest::whatIsNoRegularFileIsABadName_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder") << QStringLiteral("ORDNER.FKR");
    QTest::newRow("a ring of links") << QStringLiteral("RING.FKR");
    QTest::newRow("a device") << QStringLiteral("NULL.FKR");
    QTest::newRow("a name too long") << QString(300, u'x');
}

void FormularzooFensterTest::whatIsNoRegularFileIsABadName() {
    QFETCH(const QString, name);
    const QDir ordner(lauf.programm().ordner().nativ(QStringLiteral("KRANZ")));
    ordner.mkdir(QStringLiteral("ORDNER.FKR"));
    QFile::link(ordner.filePath(QStringLiteral("RING.FKR")), ordner.filePath(QStringLiteral("RING.FKR")));
    QFile::link(QStringLiteral("/dev/zero"), ordner.filePath(QStringLiteral("NULL.FKR")));
    Dialogfolge dialoge;
    FolgeErwarten(dialoge, {Folge::NameFalsch});
    FormularLaden(Stand.AppPfad + "\\KRANZ\\" + name.toStdString());
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);
    NeuesFormularGeht();
    QVERIFY(ordner.rmdir(QStringLiteral("ORDNER.FKR")));
    QVERIFY(QFile::remove(ordner.filePath(QStringLiteral("RING.FKR"))));
    QVERIFY(QFile::remove(ordner.filePath(QStringLiteral("NULL.FKR"))));
}

// The system's own view of this process fails at its beginning with an input error, as a torn device does.
void FormularzooFensterTest::aDriveThatIsNotReadyIsTriedAgainAsLongAsTheUserWants() {
    const QString geraet = QStringLiteral("/proc/self/mem");
    if (QFile kaputt(geraet); !kaputt.open(QIODevice::ReadOnly) || !kaputt.read(1).isEmpty()) {
        QSKIP("no file here that fails when it is read");
    }
    const QString laufwerk = QStringLiteral("Laufwerk nicht bereit.\nVersuche es noch einmal !");
    const QString weg = lauf.programm().ordner().nativ(QStringLiteral("KRANZ/PLATTE.FKR"));
    QVERIFY(QFile::link(geraet, weg));
    const QByteArray wieder = Formlauf::Quiz("Wieder");
    Dialogfolge dialoge;
    const auto versuch = [&](const QString& taste, const std::function<void(QDialog&)>& vorher) {
        StelleErwarten(dialoge, 57, 0);
        dialoge.erwarte({QStringLiteral("QMessageBox"), fehlerTitel, laufwerk, {taste}, vorher});
    };
    const std::string pfad = Stand.AppPfad + "\\KRANZ\\PLATTE.FKR";
    versuch(ok, {});
    versuch(ok, {});
    versuch(QStringLiteral("Abbrechen"), {});
    FormularLaden(pfad);
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() == nullptr);

    // The user has seen to the device meanwhile.
    versuch(ok, {});
    versuch(ok, [&](const QDialog&) {
        QFile::remove(weg);
        lauf.Schreiben(QStringLiteral("PLATTE.FKR"), wieder);
    });
    FormularLaden(pfad);
    QVERIFY(dialoge.fertig());
    QVERIFY(FKFragenOffen() != nullptr);
    QCOMPARE(FKFragenOffen()->txtFrage.at(1)->text(), std::string("Wieder 1"));
}

void FormularzooFensterTest::aRefusedFileLeavesTheOpenFormAlone() {
    lauf.Schreiben(QStringLiteral("GUT.FKR"), Formlauf::Quiz("Gut"));
    const QByteArray gross = Kopf(QByteArray(9'000'000, '\n'));
    lauf.Schreiben(QStringLiteral("GROSS.FKR"), gross);
    lauf.Oeffnen(QStringLiteral("GUT.FKR"));
    GespeichertVergessen(); // as after a save that failed
    FormStatusSetzen(true);
    Dialogfolge dialoge;
    FolgeErwarten(dialoge, {Folge::ZuGross});
    FormularLaden(lauf.Pfad("GROSS.FKR"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(FKFragenOffen()->txtFrage.at(1)->text(), std::string("Gut 1"));
    QVERIFY(Stand.FormGeaendert);
    GespeichertErwarten(dialoge, QStringLiteral("GUT.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(lauf.Lesen(QStringLiteral("GROSS.FKR")) == gross);
}

void FormularzooFensterTest::aTextThatTheReaderWouldRefuseIsCutWhenItIsPasted() {
    frmFKFragen* form = lauf.NeuesFormular(QString());
    QGuiApplication::clipboard()->setText(QStringLiteral("Wort\n").repeated(12'000));
    form->txtFrage.at(1)->paste();
    const std::string erwartet = [] {
        std::string text;
        while (text.size() < 65536) {
            text += "Wort\r\n";
        }
        return text;
    }();
    QTRY_VERIFY(form->txtFrage.at(1)->text().size() <= 65536U);
    const std::string text = form->txtFrage.at(1)->text();
    QVERIFY(text.size() > 50'000 && erwartet.starts_with(text));
    QCOMPARE(Finden(lauf.programm().haupt(), QStringLiteral("pnlHilfe"))->property("caption").toString(),
             QStringLiteral(" Der Text ist mir zu lang, sein Ende musste draußen bleiben. "));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, QStringLiteral("Speichern unter ..."), QStringLiteral("LANG.FKR"),
                        QStringLiteral("cmdSpeichern"));
    GespeichertErwarten(dialoge, QStringLiteral("LANG.FKR"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(3)"));
    DateidialogErwarten(dialoge, QStringLiteral("Öffnen"), QStringLiteral("LANG.FKR"),
                        QStringLiteral("cmdLaden"));
    lauf.Druecken(QStringLiteral("cmdDateiFK(2)"));
    QVERIFY(dialoge.fertig());
    QVERIFY(FKForm.FrageText[1] == text);
}

QTEST_MAIN(FormularzooFensterTest)
#include "formularzoo_fenster_test.moc"
