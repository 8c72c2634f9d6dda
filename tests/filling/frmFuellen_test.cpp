// The window that fills a quiz form, on the real main window with the real catalogue.
#include "filling/frmFuellen.h"

#include "core/cp1252.h"
#include "core/hauptfenster.h"
#include "filling/fragenvorrat.h"
#include "forms/formulare.h"
#include "forms/verlauf.h"
#include "tests/filling/fuellfenster.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dateidialoghilfe.h"
#include "tests/quizform/formhilfe.h"

#include <QCheckBox>
#include <QComboBox>

#include <set>

namespace {

std::size_t Volle(const frmFKFragen* form) {
    std::size_t volle = 0;
    for (int n = 1; n <= anzahlFelder; ++n) {
        volle += std::size_t(!form->txtFrage.at(Nr(n))->text().empty() &&
                             !form->txtAntwort.at(Nr(n))->text().empty());
    }
    return volle;
}

void Tasten(const QStringList& tasten) {
    for (const QString& taste : tasten) {
        maus::Taste(taste);
    }
}

QComboBox* Themenliste(const QWidget* fenster, int gebiet) {
    return Finden<QComboBox>(fenster, QStringLiteral("cmbFuellThema"), gebiet);
}

QComboBox* Unterliste(const QWidget* fenster, int gebiet) {
    return Finden<QComboBox>(fenster, QStringLiteral("cmbFuellUnter"), gebiet);
}

int Vorrat(const QWidget* fenster, int gebiet) {
    return Finden<QLabel>(fenster, QStringLiteral("lblVorrat"), gebiet)->text().section(u' ', 0, 0).toInt();
}

// A title as the form's panel shows it, merged as a choice is.
void Betiteln(frmFKFragen* form, int gebiet, const char* titel) {
    form->pnlWissen.at(Nr(gebiet))->setCaption(QString::fromUtf8(titel));
    FK_Merken();
    FormStatusSetzen(true);
}

} // namespace

class FuellenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyBoardIsFilledByTwoClicksAndEmptiedByOneStepBack();
    void whatIsTypedBetweenProposalAndTakingItOverStays();
    void lettersDecideWhatACellGets();
    void byKeyboardAlone();
    void tabGoesFromTheChoicesThroughTheCellsToTheButtons();
    void aCellIsDrawnAgainByClickAndByKey();
    void titlesProposeTheirThemesAndChoicesCount();
    void areasAndRowsThatAreClosedStayEmpty();
    void optionsAreKept();
    void withoutAFormItSaysSo();
    void thereIsOneWindowAndItGoesWithTheForm();
    void everyCellTellsWhatItShows();
    void aBoardGoesIntoItsFileWithoutAnyChoice();
    void withoutAnyQuestionsItStillAnswers();
    void itFitsASmallScreen();
};

void FuellenTest::anEmptyBoardIsFilledByTwoClicksAndEmptiedByOneStepBack() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    QCOMPARE(Ergebnis(fenster),
             QStringLiteral("30 Felder sind leer. Mit [Vorschlag] suche ich Fragen dafür aus."));
    QVERIFY(!Finden(fenster, QStringLiteral("cmdUebernehmen"))->isEnabled());
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    QCOMPARE(Ergebnis(fenster), QStringLiteral("Ich habe Fragen für alle 30 leeren Felder."));
    QCOMPARE(Volle(form), std::size_t(0)); // so far it is only proposed
    BildVomBildschirm(QStringLiteral("frmFuellen-schirm"));
    Druecken(fenster, "cmdUebernehmen");
    QTRY_COMPARE(Volle(form), std::size_t(30));
    QTRY_VERIFY(FensterOderNichts(fuellfenster) == nullptr);
    QVERIFY(HilfeStand().starts_with(" Ich habe 30 Fragen in das Formular geschrieben."));
    std::set<std::string> fragen;
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto eintrag = Katalogeintrag(FK_Frage(n));
        QVERIFY2(eintrag, FK_Frage(n).c_str());
        QCOMPARE(std::string(eintrag->antwort), FK_Antwort(n));
        QCOMPARE(std::string(eintrag->punkte), std::to_string(ZeileVon(n)));
        QVERIFY(IstFragenthema(eintrag->thema));
        QVERIFY(fragen.insert(FK_Frage(n)).second);
    }
    QCOMPARE(form->pnlWissen.at(1)->caption(), QStringLiteral("Wissen"));
    QTRY_COMPARE(Rueckschritt(), std::string("Brett füllen"));
    maus::Taste(QStringLiteral("ctrl+z"));
    QTRY_COMPARE(Volle(form), std::size_t(0));
    QTRY_VERIFY(!Stand.FormGeaendert);
    QCOMPARE(Rueckschritt(), std::string());
}

void FuellenTest::whatIsTypedBetweenProposalAndTakingItOverStays() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    FK_NachVorn();
    maus::Klicken(form->txtFrage.at(12));
    QTRY_VERIFY(form->txtFrage.at(12)->hasFocus());
    maus::Tippen(QStringLiteral("Zimtquark mit Qualle"));
    QTRY_COMPARE(Bildfeld(fenster, 12)->inhalt().frage, QStringLiteral("Zimtquark mit Qualle"));
    QCOMPARE(Vorgeschlagene(fenster), 29);
    FuellenOeffnen();
    Druecken(fenster, "cmdUebernehmen");
    QTRY_COMPARE(FK_Frage(13).empty(), false);
    QCOMPARE(FK_Frage(12), std::string("Zimtquark mit Qualle"));
    QCOMPARE(FK_Antwort(12), std::string());
    QCOMPARE(Volle(form), std::size_t(29));
    RueckgaengigMachen();
    QCOMPARE(Volle(form), std::size_t(0));
    QCOMPARE(FK_Frage(12), std::string("Zimtquark mit Qualle"));
}

void FuellenTest::lettersDecideWhatACellGets() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    SpezialWaehlen(form, 7, 1);  // Joker
    SpezialWaehlen(form, 14, 4); // Aktion
    SpezialWaehlen(form, 21, 5); // Ereignis
    QWidget* fenster = FuellenOeffnen();
    QVERIFY(Ergebnis(fenster).startsWith(QStringLiteral("28 Felder")));
    QCOMPARE(Bildfeld(fenster, 7)->inhalt().art, Vorschlagfeld::Art::Besetzt);
    QCOMPARE(Bildfeld(fenster, 7)->accessibleName(),
             QStringLiteral("Gebiet 2, Frage 2 (steht schon im Formular): ----- Joker ! -----"));
    QVERIFY(Bildfeld(fenster, 21)->inhalt().frage.contains(QStringLiteral("Ereignis")));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 28);
    Druecken(fenster, "cmdUebernehmen");
    QTRY_VERIFY(!FK_Frage(14).empty());
    QCOMPARE(std::string(Katalogeintrag(FK_Frage(14))->thema), std::string(aufgabenthema));
    QCOMPARE(std::string(Katalogeintrag(FK_Frage(14))->punkte), std::string("4"));
    QVERIFY(!Katalogeintrag(FK_Frage(7)) && !Katalogeintrag(FK_Frage(21)));
    QCOMPARE(form->pnlSpezial.at(7)->caption(), QStringLiteral("J"));
}

void FuellenTest::byKeyboardAlone() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    const QWidget* fenster = FuellenOeffnen();
    QTRY_VERIFY(Finden(fenster, QStringLiteral("cmdVorschlag"))->hasFocus());
    Tasten({QStringLiteral("Return")});
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    Tasten({QStringLiteral("Tab")});
    QTRY_VERIFY(Finden(fenster, QStringLiteral("cmdUebernehmen"))->hasFocus());
    Tasten({QStringLiteral("Return")});
    QTRY_COMPARE(Volle(form), std::size_t(30));
    RueckgaengigMachen();
    // And by the access keys.
    fenster = FuellenOeffnen();
    Tasten({QStringLiteral("alt+v")});
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    Tasten({QStringLiteral("alt+n")});
    QTRY_COMPARE(Volle(form), std::size_t(30));
}

void FuellenTest::tabGoesFromTheChoicesThroughTheCellsToTheButtons() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Betiteln(form, 1, "Tiere");
    const QWidget* fenster = FuellenOeffnen();
    QStringList soll{QStringLiteral("cmbFuellThema(1)"), QStringLiteral("cmbFuellUnter(1)")};
    for (int gebiet = 2; gebiet <= anzahlGebiete; ++gebiet) { // without a theme there is no sub-theme
        soll << QStringLiteral("cmbFuellThema(%1)").arg(gebiet);
    }
    soll << QStringLiteral("chkPunkteWieZeile") << QStringLiteral("chkUnbenutzt");
    for (int n = 1; n <= anzahlFelder; ++n) {
        soll << QStringLiteral("picVorschlag(%1)").arg(n);
    }
    soll << QStringLiteral("cmdVorschlag") << QStringLiteral("cmdAbbruch");
    Themenliste(fenster, 1)->setFocus();
    QStringList ist;
    for (int i = 0; i < soll.size(); ++i) {
        ist << QApplication::focusWidget()->objectName();
        maus::Taste(QStringLiteral("Tab"));
    }
    QCOMPARE(ist.join(QLatin1Char(' ')), soll.join(QLatin1Char(' ')));
}

void FuellenTest::aCellIsDrawnAgainByClickAndByKey() {
    Programm programm;
    programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    Vorschlagfeld* feld = Bildfeld(fenster, 8);
    QString vorher = feld->inhalt().frage;
    const QString nachbar = Bildfeld(fenster, 9)->inhalt().frage;
    maus::Klicken(feld);
    QTRY_VERIFY(feld->inhalt().frage != vorher);
    for (const char* taste : {"space", "Return"}) {
        vorher = feld->inhalt().frage;
        maus::Taste(QLatin1String(taste));
        QTRY_VERIFY(feld->inhalt().frage != vorher);
    }
    QCOMPARE(std::string(Katalogeintrag(Modelltext(feld->inhalt().frage))->punkte), std::string("3"));
    QCOMPARE(Bildfeld(fenster, 9)->inhalt().frage, nachbar);
    QCOMPARE(Vorgeschlagene(fenster), 30);
    const QString gezogen = feld->inhalt().frage;
    Tasten({QStringLiteral("Down")});
    QTRY_VERIFY(Bildfeld(fenster, 9)->hasFocus());
    Tasten({QStringLiteral("Right")});
    QTRY_VERIFY(Bildfeld(fenster, 14)->hasFocus());
    Tasten({QStringLiteral("Up"), QStringLiteral("Left")});
    QTRY_VERIFY(feld->hasFocus());
    Druecken(fenster, "cmdUebernehmen");
    QTRY_COMPARE(FK_Frage(8), Modelltext(gezogen));
}

void FuellenTest::titlesProposeTheirThemesAndChoicesCount() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Betiteln(form, 2, "Tiere");
    Betiteln(form, 3, "Knoten");
    QWidget* fenster = FuellenOeffnen();
    QCOMPARE(Themenliste(fenster, 1)->currentText(), QStringLiteral("alle Themen"));
    QCOMPARE(Unterliste(fenster, 1)->currentText(), QStringLiteral("alle"));
    QVERIFY(!Unterliste(fenster, 1)->isEnabled());
    QCOMPARE(Themenliste(fenster, 2)->currentText(), QStringLiteral("Tiere"));
    QCOMPARE(Unterliste(fenster, 3)->currentText(), QStringLiteral("Knoten"));
    QVERIFY(Vorrat(fenster, 1) > Vorrat(fenster, 2));
    QVERIFY(Vorrat(fenster, 2) > Vorrat(fenster, 3));
    const int tiere = Vorrat(fenster, 2);
    Unterliste(fenster, 2)->setFocus();
    maus::Taste(QStringLiteral("V")); // Vögel
    QTRY_COMPARE(Unterliste(fenster, 2)->currentText(), QStringLiteral("Vögel"));
    QVERIFY(Vorrat(fenster, 2) < tiere);
    Druecken(fenster, "cmdVorschlag");
    QTRY_VERIFY(Vorgeschlagene(fenster) > 20);
    for (int zeile = 1; zeile <= 5; ++zeile) {
        const auto& inhalt = Bildfeld(fenster, Feldnummer(2, zeile))->inhalt();
        if (inhalt.art == Vorschlagfeld::Art::Vorgeschlagen) {
            const auto eintrag = Katalogeintrag(Modelltext(inhalt.frage));
            QCOMPARE(std::string(eintrag->unterthema), std::string("Vögel"));
        }
    }
    // Another wish: what doesn't fit it any more is dropped, the rest stays.
    const QString bleibt = Bildfeld(fenster, 1)->inhalt().frage;
    Themenliste(fenster, 2)->setFocus();
    maus::Taste(QStringLiteral("Home"));
    maus::Taste(QStringLiteral("P")); // Pflanzen
    QTRY_COMPARE(Themenliste(fenster, 2)->currentText(), QStringLiteral("Pflanzen"));
    QCOMPARE(Bildfeld(fenster, Feldnummer(2, 3))->inhalt().art, Vorschlagfeld::Art::Leer);
    QVERIFY(Ergebnis(fenster).contains(QStringLiteral("Gebiet 2 (Frage 1, 2, 3, 4, 5)")));
    QCOMPARE(Bildfeld(fenster, 1)->inhalt().frage, bleibt);
    // In a sub-theme with few questions some cells find nothing. By way of the plants, since a question drawn
    // from all themes may fit the new one by chance and would stay.
    for (int gebiet = 1; gebiet <= anzahlGebiete; ++gebiet) {
        Themenliste(fenster, gebiet)->setCurrentText(QStringLiteral("Pflanzen"));
        Themenliste(fenster, gebiet)->setCurrentText(QStringLiteral("Tiere"));
        Unterliste(fenster, gebiet)->setCurrentText(QStringLiteral("Kerfe"));
    }
    QCOMPARE(Ergebnis(fenster).left(9), QStringLiteral("30 Felder"));
    Druecken(fenster, "cmdVorschlag");
    QTRY_VERIFY(Ergebnis(fenster).contains(QStringLiteral("Ohne Frage bleiben: ")));
    QVERIFY(Vorgeschlagene(fenster) < 30);
    int ohne = 0;
    for (const Vorschlagfeld* feld : fenster->findChildren<Vorschlagfeld*>()) {
        ohne += int(feld->inhalt().art == Vorschlagfeld::Art::OhneFrage);
    }
    QCOMPARE(ohne, 30 - Vorgeschlagene(fenster));
    BildVon(fenster, QStringLiteral("frmFuellen-luecken")); // the longest text
}

void FuellenTest::areasAndRowsThatAreClosedStayEmpty() {
    Programm programm;
    Spiel.OptionMaxFelder = true;
    Spiel.OptionMaxWissen = true;
    Spiel.AnzahlWissen = 4;
    Spiel.FragenProWissen = 3;
    frmFKFragen* form = programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    QVERIFY(!Themenliste(fenster, 5)->isEnabled());
    QVERIFY(Themenliste(fenster, 4)->isEnabled());
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 12);
    Druecken(fenster, "cmdUebernehmen");
    QTRY_COMPARE(Volle(form), std::size_t(12));
    for (const int n : SichtbareZellen(form)) {
        QVERIFY(!FK_Frage(n).empty());
    }
}

void FuellenTest::optionsAreKept() {
    Programm programm;
    programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    const int mitPunkten = Vorrat(fenster, 1);
    for (const char* schalter : {"chkPunkteWieZeile", "chkUnbenutzt"}) {
        QVERIFY(Finden<QCheckBox>(fenster, QLatin1String(schalter))->isChecked());
    }
    Tasten({QStringLiteral("alt+p")});
    QTRY_VERIFY(!Finden<QCheckBox>(fenster, QStringLiteral("chkPunkteWieZeile"))->isChecked());
    QVERIFY(Vorrat(fenster, 1) >= mitPunkten);
    Tasten({QStringLiteral("Escape")});
    QTRY_VERIFY(FensterOderNichts(fuellfenster) == nullptr);
    fenster = FuellenOeffnen();
    QVERIFY(!Finden<QCheckBox>(fenster, QStringLiteral("chkPunkteWieZeile"))->isChecked());
    QVERIFY(Finden<QCheckBox>(fenster, QStringLiteral("chkUnbenutzt"))->isChecked());
}

void FuellenTest::withoutAFormItSaysSo() {
    Programm programm;
    maus::Taste(QStringLiteral("ctrl+b"));
    QTRY_COMPARE(HilfeStand(), std::string(" Ich kann nur ein Formular füllen, das offen ist. "));
    QVERIFY(FensterOderNichts(fuellfenster) == nullptr);
}

void FuellenTest::thereIsOneWindowAndItGoesWithTheForm() {
    Programm programm;
    programm.NeuesQuizformular();
    const QWidget* erstes = FuellenOeffnen();
    FK_NachVorn();
    QCOMPARE(FuellenOeffnen(), erstes);
    QCOMPARE(AktivesKind(), erstes);
    QCOMPARE(programm.haupt()->findChildren<frmFuellen*>().size(), 1);
    FormStatusSetzen(false);
    FormulareEntladen();
    QTRY_VERIFY(FensterOderNichts(fuellfenster) == nullptr);
    programm.NeuesTestformular();
    QVERIFY(FuellenOeffnen()->findChild<QWidget*>(QStringLiteral("lstUnterthemen")) != nullptr);
}

void FuellenTest::everyCellTellsWhatItShows() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    Tippen(form->txtFrage.at(1), QStringLiteral("Warum?"));
    Tippen(form->txtAntwort.at(1), QStringLiteral("Darum."));
    QWidget* fenster = FuellenOeffnen();
    QCOMPARE(Bildfeld(fenster, 1)->accessibleName(),
             QStringLiteral("Gebiet 1, Frage 1 (steht schon im Formular): Warum? - Darum."));
    QCOMPARE(Bildfeld(fenster, 8)->accessibleName(), QStringLiteral("Gebiet 2, Frage 3: leer"));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 29);
    const Vorschlagfeld::Inhalt& inhalt = Bildfeld(fenster, 8)->inhalt();
    QCOMPARE(Bildfeld(fenster, 8)->accessibleName(),
             (QStringLiteral("Gebiet 2, Frage 3: ") + inhalt.frage + QStringLiteral(" - ") + inhalt.antwort)
                 .simplified());
}

// New form, fill, propose, take over, save: five clicks, and a name is typed.
void FuellenTest::aBoardGoesIntoItsFileWithoutAnyChoice() {
    Programm programm;
    programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    Druecken(fenster, "cmdUebernehmen");
    QTRY_VERIFY(FensterOderNichts(fuellfenster) == nullptr);
    QCOMPARE(AktivesKind(), static_cast<QWidget*>(FKFragenOffen()));
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, {}, QStringLiteral("ABEND"), QStringLiteral("cmdSpeichern"));
    dialoge.meldung(QStringLiteral("Datei gespeichert unter  [ ABEND.FKR ]"), QStringLiteral("Schön"));
    maus::Klicken(Finden(programm.haupt(), QStringLiteral("cmdDateiFK(3)")));
    QTRY_VERIFY(dialoge.fertig());
    const std::string datei = programm.ordner().lesen(QStringLiteral("KRANZ/ABEND.FKR")).toStdString();
    for (int n = 1; n <= anzahlFelder; ++n) {
        QVERIFY2(datei.find(NachCp1252(FK_Frage(n))) != std::string::npos, FK_Frage(n).c_str());
    }
}

void FuellenTest::withoutAnyQuestionsItStillAnswers() {
    Programm programm;
    for (const char* ordner : {"WISSEN", "KRANZ", "TEST"}) {
        QTRY_VERIFY(QDir(programm.ordner().nativ(QLatin1String(ordner))).removeRecursively());
    }
    programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    auto* ergebnis = Finden<QLabel>(fenster, QStringLiteral("lblErgebnis"));
    QTRY_COMPARE(ergebnis->text(),
                 QStringLiteral("30 Felder sind leer. Mit [Vorschlag] suche ich Fragen dafür aus."));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(ergebnis->text(), QStringLiteral("Ich habe keine passende Frage für die 30 leeren Felder."));
}

void FuellenTest::itFitsASmallScreen() {
    Programm programm;
    programm.haupt()->showNormal();
    programm.haupt()->setGeometry(0, 0, 1024, 600);
    QTRY_COMPARE(programm.haupt()->width(), 1024);
    programm.NeuesQuizformular();
    QWidget* fenster = FuellenOeffnen();
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 30);
    const QWidget* rahmen = fenster->parentWidget();
    BildVon(programm.haupt(), QStringLiteral("frmFuellen-klein"));
    QVERIFY2(
        rahmen->parentWidget()->rect().contains(rahmen->geometry()),
        qPrintable(QStringLiteral("%1 x %2").arg(rahmen->height()).arg(rahmen->parentWidget()->height())));
}

QTEST_MAIN(FuellenTest)
#include "frmFuellen_test.moc"
