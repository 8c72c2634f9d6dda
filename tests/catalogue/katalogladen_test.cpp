// The catalogue's files on the disk and what is said when one fails.
#include "catalogue/katalogladen.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "mainwindow/frmMDI.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"

#include <QFile>
#include <QTest>

namespace {

QString Ordner(const QString& darunter) {
    return Anzeige(Stand.AppPfad) + darunter;
}

void ListenfehlerErwarten(Dialogfolge& dialoge, const QString& thema, Stelle stelle = Stelle::hier()) {
    dialoge.meldung(
        QStringLiteral("Ich habe Probleme mit den Unterthemen zu  [ %1 ] !\n( Wahrscheinlich fehlt die "
                       "entsprechende Datei\nim Ordner [ %2 ] )")
            .arg(thema, Ordner(QStringLiteral("\\WISSEN"))),
        QStringLiteral("Ich sehe nach !"), stelle);
}

void DateifehlerErwarten(Dialogfolge& dialoge, const QString& unterthema, const QString& ordner,
                         Stelle stelle = Stelle::hier()) {
    dialoge.meldung(
        QStringLiteral("Ich habe Probleme mit den Unterthemen zu\n[ %1 ] !\n( Wahrscheinlich fehlt die "
                       "entsprechende Datei\nim Ordner [ %2 ] )")
            .arg(unterthema, Ordner(ordner)),
        QStringLiteral("Ich sehe nach !"), stelle);
}

} // namespace

class KatalogladenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { OberflaecheEinrichten(); }
    void init() {
        Katalog.ThemenListe.fill("alt");
        Katalog.UnterthemenListe.fill("alt");
    }

    void everyThemeAndSubThemeOfTheShippedCatalogueLoads();
    void aShortThemeListKeepsTheOtherPlacesWithoutAWord();
    void aMissingThemeListSaysNothing();
    void aShortSubThemeListIsReported();
    void aMissingSubThemeListIsReportedForEveryTheme();
    void aMissingQuestionFileNamesTheFolderOfTheTable();
    void aSubThemeWithoutARowGivesTheShortText();
    void aRecordCutShortIsLostWithoutAWord();
    void aRecordWithALineTooLongIsLeftOutAndTheStatusHelpSaysWhere_data();
    void aRecordWithALineTooLongIsLeftOutAndTheStatusHelpSaysWhere();
    void essenIsAnotherFileUnderAnotherTheme();
    void anUnknownThemeLoadsNoQuestions();
};

void KatalogladenTest::everyThemeAndSubThemeOfTheShippedCatalogueLoads() {
    const Programmordner ordner;
    Dialogfolge dialoge; // a message fails the test
    ThemenLaden();
    int themen = 0;
    for (const std::string& name : Katalog.ThemenListe) {
        const Thema* thema = ThemaSuchen(name);
        themen += thema != nullptr ? 1 : 0;
        if (thema != nullptr) {
            UnterthemenLaden(name);
            for (const Unterthema& unterthema : thema->unterthemen) {
                QVERIFY2(std::find(Katalog.UnterthemenListe.begin(), Katalog.UnterthemenListe.end(),
                                   unterthema.name) != Katalog.UnterthemenListe.end(),
                         unterthema.name.data());
            }
        }
    }
    QCOMPARE(themen, 16);
    HBUnterthemenLaden();
    QCOMPARE(Katalog.UnterthemenListe[1], std::string("Andacht"));
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::aShortThemeListKeepsTheOtherPlacesWithoutAWord() {
    const Programmordner ordner;
    ordner.schreiben(QStringLiteral("WISSEN/WISSEN.TXT"), "Kopf\r\nLand\r\nSpr\xFC"
                                                          "che\r\n");
    Dialogfolge dialoge;
    ThemenLaden();
    QCOMPARE(Katalog.ThemenListe[1], std::string("Land"));
    QCOMPARE(Katalog.ThemenListe[2], std::string("Sprüche"));
    QCOMPARE(Katalog.ThemenListe[3], std::string("alt"));
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::aMissingThemeListSaysNothing() {
    const Programmordner ordner;
    QVERIFY(QFile::remove(ordner.nativ(QStringLiteral("WISSEN/WISSEN.TXT"))));
    Dialogfolge dialoge;
    ThemenLaden();
    QCOMPARE(Katalog.ThemenListe[1], std::string("alt"));
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::aShortSubThemeListIsReported() {
    const Programmordner ordner;
    ordner.schreiben(QStringLiteral("WISSEN/LAND/W_LAND.TXT"), "Kopf\r\n\"Berge\"\r\n");
    Dialogfolge dialoge;
    ListenfehlerErwarten(dialoge, QStringLiteral("Land"));
    UnterthemenLaden("Land");
    QVERIFY(dialoge.fertig());
    QCOMPARE(Katalog.UnterthemenListe[1], std::string("Berge"));
    QCOMPARE(Katalog.UnterthemenListe[2], std::string("alt"));
}

void KatalogladenTest::aMissingSubThemeListIsReportedForEveryTheme() {
    const Programmordner ordner;
    Dialogfolge dialoge;
    QVERIFY(QFile::remove(ordner.nativ(QStringLiteral("WISSEN/HB/W_HB.TXT"))));
    ListenfehlerErwarten(dialoge, QStringLiteral("Häuptlingsbuch"));
    UnterthemenLaden("Häuptlingsbuch");
    ListenfehlerErwarten(dialoge, QStringLiteral("HB"));
    HBUnterthemenLaden();
    ListenfehlerErwarten(dialoge, QStringLiteral("Wetter"));
    UnterthemenLaden("Wetter");
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::aMissingQuestionFileNamesTheFolderOfTheTable() {
    const Programmordner ordner;
    Dialogfolge dialoge;
    Fragenliste liste;
    const auto fehlt = [&](const char* thema, const char* unterthema, const QString& datei) {
        QFile::remove(ordner.nativ(QStringLiteral("WISSEN/") + datei));
        FragenLaden(thema, unterthema, liste);
    };
    DateifehlerErwarten(dialoge, QStringLiteral("Berge"), QStringLiteral("\\WISSEN\\Aktuell"));
    fehlt("Land", "Berge", QStringLiteral("LAND/LA_BERG.TXT"));
    DateifehlerErwarten(dialoge, QStringLiteral("Knoten"), QStringLiteral("\\WISSEN\\HB"));
    fehlt("Häuptlingsbuch", "Knoten", QStringLiteral("HB/HB_KN.TXT"));
    DateifehlerErwarten(dialoge, QStringLiteral("Standardaufgaben"), QStringLiteral("\\WISSEN\\Aufgaben"));
    fehlt("- Aufgaben -", "Standardaufgaben", QStringLiteral("AUFGABEN/AUF_STAN.TXT"));
    QVERIFY(dialoge.fertig());
    QCOMPARE(liste.anzahl(), std::size_t{0});
}

void KatalogladenTest::aSubThemeWithoutARowGivesTheShortText() {
    const Programmordner ordner;
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich habe Probleme mit den Unterthemen zu\n[ Wüsten ] !"),
                    QStringLiteral("Ich sehe nach !"));
    Fragenliste liste;
    FragenLaden("Land", "Wüsten", liste);
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::aRecordCutShortIsLostWithoutAWord() {
    const Programmordner ordner;
    ordner.schreiben(QStringLiteral("WISSEN/LAND/LA_BERG.TXT"), "K\r\n1\r\nF1\r\nA1\r\n2\r\n2\r\nF2\r\n");
    Dialogfolge dialoge;
    Fragenliste liste;
    FragenLaden("Land", "Berge", liste);
    QCOMPARE(liste.anzahl(), std::size_t{1});
    QVERIFY(liste.wert(0, Spalte::Frage) == "F1");
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::aRecordWithALineTooLongIsLeftOutAndTheStatusHelpSaysWhere_data() {
    QTest::addColumn<int>("lange");
    QTest::addColumn<QString>("hilfe");
    QTest::newRow("one") << 1
                         << QStringLiteral(
                                " Ich lasse in [ LA_BERG.TXT ] eine Frage weg: Zeile 7 ist zu lang. ");
    QTest::newRow("three") << 3
                           << QStringLiteral(
                                  " Ich lasse in [ LA_BERG.TXT ] 3 Fragen weg: Zu lang ist zuerst Zeile 7. ");
}

void KatalogladenTest::aRecordWithALineTooLongIsLeftOutAndTheStatusHelpSaysWhere() {
    QFETCH(const int, lange);
    QFETCH(const QString, hilfe);
    const Programm programm;
    const QByteArray lang = "2\r\n" + QByteArray(100000, 'x') + "\r\nA\r\n5\r\n";
    programm.ordner().schreiben(QStringLiteral("WISSEN/LAND/LA_BERG.TXT"), "K\r\n1\r\nF1\r\nA1\r\n2\r\n" +
                                                                               lang.repeated(lange) +
                                                                               "3\r\nF3\r\nA3\r\n2\r\n");
    Dialogfolge dialoge; // a message fails the test
    Fragenliste liste;
    FragenLaden("Land", "Berge", liste);
    QCOMPARE(liste.anzahl(), std::size_t{2});
    QVERIFY(liste.wert(1, Spalte::Frage) == "F3");
    QCOMPARE(Finden(programm.haupt(), QStringLiteral("pnlHilfe"))->property("caption").toString(), hilfe);
    QVERIFY(dialoge.fertig());
}

void KatalogladenTest::essenIsAnotherFileUnderAnotherTheme() {
    const Programmordner ordner;
    ordner.schreiben(QStringLiteral("WISSEN/A-Z/A_ESSEN.TXT"), "K\r\n1\r\nA-Z\r\nx\r\n2\r\n");
    ordner.schreiben(QStringLiteral("WISSEN/GESCHICH/G_ESSEN.TXT"), "K\r\n1\r\nFr\xFCher\r\nx\r\n2\r\n");
    Fragenliste liste;
    FragenLaden("A-Z", "Essen", liste);
    FragenLaden("Geschichte", "Essen", liste);
    QCOMPARE(liste.anzahl(), std::size_t{2});
    QVERIFY(liste.wert(0, Spalte::Frage) == "A-Z");
    QVERIFY(liste.wert(1, Spalte::Frage) == "Früher");
}

void KatalogladenTest::anUnknownThemeLoadsNoQuestions() {
    const Programmordner ordner;
    Dialogfolge dialoge;
    Fragenliste liste;
    FragenLaden("Wetter", "Regen", liste);
    QCOMPARE(liste.anzahl(), std::size_t{0});
    QVERIFY(dialoge.fertig());
}

QTEST_MAIN(KatalogladenTest)
#include "katalogladen_test.moc"
