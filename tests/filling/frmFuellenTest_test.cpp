// The window that fills a test form, on the real main window with the real catalogue.
#include "core/hauptfenster.h"
#include "forms/verlauf.h"
#include "tests/filling/fuellfenster.h"
#include "tests/hilfe/bild.h"
#include "tests/testform/testhilfe.h"

#include <QLineEdit>
#include <QListWidget>

namespace {

int Volle(const frmHBFragen* form) {
    int volle = 0;
    for (int i = 1; i <= anzahlTestfragen; ++i) {
        volle += int(!form->txtAntwort.at(Nr(i))->text().empty());
    }
    return volle;
}

QListWidget* Liste(const QWidget* fenster) {
    return Finden<QListWidget>(fenster, QStringLiteral("lstUnterthemen"));
}

QStringList Angekreuzt(const QWidget* fenster) {
    QStringList namen;
    for (int i = 0; i < Liste(fenster)->count(); ++i) {
        const QListWidgetItem* eintrag = Liste(fenster)->item(i);
        if (eintrag->checkState() == Qt::Checked) {
            namen << eintrag->text();
        }
    }
    return namen;
}

void ZielTippen(QWidget* fenster, const QString& punkte) {
    maus::Klicken(Finden(fenster, QStringLiteral("txtZielpunkte")));
    maus::Taste(QStringLiteral("ctrl+a"));
    maus::Tippen(punkte);
    QTRY_COMPARE(Finden<QLineEdit>(fenster, QStringLiteral("txtZielpunkte"))->text(), punkte);
}

} // namespace

class TestFuellenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tenRowsMeetTheTotalExactly();
    void aTotalOutOfReachIsSaid();
    void whatStandsThereStaysAndCounts();
    void theSubjectAndTheListChooseTheSubThemes();
    void aRowDrawnAgainKeepsItsPoints();
    void theTotalIsKept();
};

void TestFuellenTest::tenRowsMeetTheTotalExactly() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    QWidget* fenster = FuellenOeffnen();
    ZielTippen(fenster, QStringLiteral("33"));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 10);
    QCOMPARE(Ergebnis(fenster),
             QStringLiteral("Ich habe Fragen für alle 10 leeren Felder. Das Formular hat dann 33 Punkte."));
    BildVomBildschirm(QStringLiteral("frmFuellen-test"));
    Druecken(fenster, "cmdUebernehmen");
    QTRY_COMPARE(Volle(form), 10);
    int summe = 0;
    for (int i = 1; i <= anzahlTestfragen; ++i) {
        const auto eintrag = Katalogeintrag(HB_Frage(i));
        QVERIFY2(eintrag, HB_Frage(i).c_str());
        QCOMPARE(std::string(eintrag->thema), std::string("Häuptlingsbuch"));
        QCOMPARE(Modelltext(form->pnlPunkte.at(Nr(i))->caption()), std::string(eintrag->punkte));
        summe += form->pnlPunkte.at(Nr(i))->caption().toInt();
    }
    QCOMPARE(summe, 33);
    QVERIFY(form->pnlGesamtpunkte->caption().endsWith(QStringLiteral(" 33")));
    QCOMPARE(Rueckschritt(), std::string("Test füllen"));
    maus::Taste(QStringLiteral("ctrl+z"));
    QTRY_COMPARE(Volle(form), 0);
    QTRY_VERIFY(!Stand.FormGeaendert);
}

void TestFuellenTest::aTotalOutOfReachIsSaid() {
    Programm programm;
    programm.NeuesTestformular();
    QWidget* fenster = FuellenOeffnen();
    ZielTippen(fenster, QStringLiteral("60"));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Ergebnis(fenster),
                 QStringLiteral("Ich habe Fragen für alle 10 leeren Felder. 60 Punkte kann "
                                "ich damit nicht erreichen, am nächsten kommen 50."));
    QCOMPARE(Vorgeschlagene(fenster), 10);
}

void TestFuellenTest::whatStandsThereStaysAndCounts() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    Fuellen(form, 4, "Meine eigene Frage", "und meine Antwort");
    Fuellen(form, 5, "Frage", ""); // the placeholder
    QWidget* fenster = FuellenOeffnen();
    QCOMPARE(Bildfeld(fenster, 4)->inhalt().art, Vorschlagfeld::Art::Besetzt);
    QVERIFY(Ergebnis(fenster).startsWith(QStringLiteral("9 Felder")));
    ZielTippen(fenster, QStringLiteral("20"));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 9);
    Druecken(fenster, "cmdUebernehmen");
    QTRY_COMPARE(Volle(form), 10);
    QCOMPARE(HB_Frage(4), std::string("Meine eigene Frage"));
    QVERIFY(HB_Frage(5) != "Frage");
    QVERIFY(form->pnlGesamtpunkte->caption().endsWith(QStringLiteral(" 20")));
}

void TestFuellenTest::theSubjectAndTheListChooseTheSubThemes() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->fach.panel->setCaption(QStringLiteral("Knoten"));
    HB_Merken();
    QWidget* fenster = FuellenOeffnen();
    QCOMPARE(Angekreuzt(fenster), QStringList{QStringLiteral("Häuptlingsbuch - Knoten")});
    QVERIFY(Liste(fenster)->visualItemRect(Liste(fenster)->currentItem()).intersects(Liste(fenster)->rect()));
    maus::Taste(QStringLiteral("alt+u"));
    QTRY_VERIFY(Liste(fenster)->hasFocus());
    maus::Taste(QStringLiteral("space")); // takes the mark off
    QTRY_COMPARE(Angekreuzt(fenster), QStringList{});
    maus::Taste(QStringLiteral("Up"));
    maus::Taste(QStringLiteral("space"));
    QTRY_COMPARE(Angekreuzt(fenster), QStringList{QStringLiteral("Häuptlingsbuch - Kirchengeschichte")});
    maus::Taste(QStringLiteral("alt+v"));
    QTRY_VERIFY(Vorgeschlagene(fenster) > 0);
    // Tab goes on to the total, the switch and the rows.
    Liste(fenster)->setFocus();
    for (const char* naechstes : {"txtZielpunkte", "chkUnbenutzt", "picVorschlag(1)"}) {
        maus::Taste(QStringLiteral("Tab"));
        QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(naechstes));
    }
    for (const Vorschlagfeld* feld : fenster->findChildren<Vorschlagfeld*>()) {
        if (feld->inhalt().art == Vorschlagfeld::Art::Vorgeschlagen) {
            const auto eintrag = Katalogeintrag(Modelltext(feld->inhalt().frage));
            QCOMPARE(std::string(eintrag->unterthema), std::string("Kirchengeschichte"));
        }
    }
}

void TestFuellenTest::aRowDrawnAgainKeepsItsPoints() {
    Programm programm;
    programm.NeuesTestformular();
    QWidget* fenster = FuellenOeffnen();
    ZielTippen(fenster, QStringLiteral("31"));
    Druecken(fenster, "cmdVorschlag");
    QTRY_COMPARE(Vorgeschlagene(fenster), 10);
    const Vorschlagfeld::Inhalt vorher = Bildfeld(fenster, 6)->inhalt();
    maus::Klicken(Bildfeld(fenster, 6));
    QTRY_VERIFY(Bildfeld(fenster, 6)->inhalt().frage != vorher.frage);
    QCOMPARE(Bildfeld(fenster, 6)->inhalt().ecke, vorher.ecke);
    QVERIFY(Ergebnis(fenster).endsWith(QStringLiteral("31 Punkte.")));
}

void TestFuellenTest::theTotalIsKept() {
    Programm programm;
    programm.NeuesTestformular();
    QWidget* fenster = FuellenOeffnen();
    QCOMPARE(Finden<QLineEdit>(fenster, QStringLiteral("txtZielpunkte"))->text(), QString());
    ZielTippen(fenster, QStringLiteral("27"));
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(FensterOderNichts(fuellfenster) == nullptr);
    fenster = FuellenOeffnen();
    QCOMPARE(Finden<QLineEdit>(fenster, QStringLiteral("txtZielpunkte"))->text(), QStringLiteral("27"));
}

QTEST_MAIN(TestFuellenTest)
#include "frmFuellenTest_test.moc"
