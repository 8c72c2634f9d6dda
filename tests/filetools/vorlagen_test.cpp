// The forms that the program is delivered with: each opens from the list, without a word, as the form it is
// meant to be.
#include "listenhilfe.h"

#include "quizform/feldregeln.h"
#include "rules/spezialfelder.h"

#include <algorithm>

namespace {

// How many cells of the open quiz form show a text, and the letters of their kinds in sorted order.
int Gefuellt() {
    return static_cast<int>(std::ranges::count_if(FKFragenOffen()->txtFrage, [](const Textfeld* feld) {
        return feld != nullptr && !feld->text().empty();
    }));
}

QString Buchstaben() {
    QString buchstaben;
    for (std::size_t n = 1; n <= anzahlFelder; ++n) {
        buchstaben += FKFragenOffen()->pnlSpezial.at(n)->caption();
    }
    std::ranges::sort(buchstaben);
    return buchstaben;
}

QStringList Titel() {
    QStringList titel;
    for (std::size_t a = 1; a <= anzahlGebiete; ++a) {
        titel << FKFragenOffen()->pnlWissen.at(a)->caption();
    }
    return titel;
}

} // namespace

class VorlagenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewUsersListHoldsForms();
    void theQuizFormsOpenComplete_data();
    void theQuizFormsOpenComplete();
    void theTestFormsOpenComplete_data();
    void theTestFormsOpenComplete();
};

void VorlagenTest::aNewUsersListHoldsForms() {
    Programm programm;
    QCOMPARE(Listenlauf::Namen(),
             (QStringList{QStringLiteral("Bibelabend.FKR"), QStringLiteral("Kurzabend.FKR"),
                          QStringLiteral("Naturabend.FKR")}));
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_COMPARE(Listenlauf::Namen(),
                 (QStringList{QStringLiteral("Erste-Hilfe.FKR"), QStringLiteral("Lagerleben.FKR")}));
}

void VorlagenTest::theQuizFormsOpenComplete_data() {
    QTest::addColumn<int>("gebiete");
    QTest::addColumn<int>("jeGebiet");
    QTest::addColumn<QString>("buchstaben");
    QTest::addColumn<QStringList>("titel");
    const QString zu = QStringLiteral("Wissen"); // the caption of a closed area
    QTest::newRow("Bibelabend.FKR") << 6 << 5 << QStringLiteral("AAEEGGJJJJRR")
                                    << QStringList{QStringLiteral("Altes Testament"),
                                                   QStringLiteral("Neues Testament"),
                                                   QStringLiteral("Bibelkunde AT"),
                                                   QStringLiteral("Bibelkunde NT"),
                                                   QStringLiteral("Kirchengeschichte"),
                                                   QStringLiteral("Andacht")};
    QTest::newRow("Naturabend.FKR") << 4 << 5 << QStringLiteral("AEGJJRR")
                                    << QStringList{QStringLiteral("Natur"),
                                                   QStringLiteral("Tiere"),
                                                   QStringLiteral("Pflanzen"),
                                                   QStringLiteral("Land"),
                                                   zu,
                                                   zu};
    QTest::newRow("Kurzabend.FKR")
        << 3 << 4 << QStringLiteral("GJR")
        << QStringList{QStringLiteral("Sport"), QStringLiteral("Tiere"), QStringLiteral("Land"), zu, zu, zu};
}

void VorlagenTest::theQuizFormsOpenComplete() {
    QFETCH(int, gebiete);
    QFETCH(int, jeGebiet);
    QFETCH(QString, buchstaben);
    QFETCH(QStringList, titel);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    Programm programm;
    Listenlauf::Anklicken(name);
    QTRY_COMPARE(Listenlauf::Info(), Vorschau(gebiete * jeGebiet, gebiete, jeGebiet));
    Listenlauf::Doppelklicken(name);
    QTRY_VERIFY(FKFragenOffen() != nullptr);
    QTRY_COMPARE(FKFragenOffen()->windowTitle(), name + u' ');
    QCOMPARE(Gefuellt(), gebiete * jeGebiet);
    QCOMPARE(Buchstaben(), buchstaben);
    QCOMPARE(Titel(), titel);
    const Feldsichten sichten = BrettSichten(Spiel);
    for (int n = 1; n <= anzahlFelder; ++n) {
        const auto i = static_cast<std::size_t>(n);
        QCOMPARE(FK_Antwort(n).empty(), FK_Frage(n).empty());
        QCOMPARE(sichten.at(i).frage, !FK_Frage(n).empty());
        QCOMPARE(!FKFragenOffen()->txtFrage.at(i)->isHidden(), sichten.at(i).frage);
    }
    QVERIFY(!Stand.FormGeaendert);
    BildVon(MDIFenster(), QStringLiteral("vorlage-") + name);
    qInfo().noquote() << name << "questions" << Gefuellt() << "special fields" << Buchstaben();
}

void VorlagenTest::theTestFormsOpenComplete_data() {
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QString>("fach");
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<int>("punkte");
    QTest::newRow("Erste-Hilfe.FKR") << QStringLiteral(" TEST Häuptlingsfreizeit")
                                     << QStringLiteral(" Erste Hilfe") << QStringLiteral(" I") << 30;
    QTest::newRow("Lagerleben.FKR") << QStringLiteral(" Späherprüfung") << QStringLiteral(" Lagerkunst")
                                    << QStringLiteral(" II") << 28;
}

void VorlagenTest::theTestFormsOpenComplete() {
    QFETCH(QString, titel);
    QFETCH(QString, fach);
    QFETCH(QString, gruppe);
    QFETCH(int, punkte);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    Programm programm;
    Listenlauf::Druecken("cmdNeuHB");
    QTRY_VERIFY(Listenlauf::Namen().contains(name));
    Listenlauf::Doppelklicken(name);
    QTRY_VERIFY(HBFragenOffen() != nullptr);
    const frmHBFragen* form = HBFragenOffen();
    QCOMPARE(form->windowTitle(), QStringLiteral(" Test : ") + name);
    QCOMPARE(form->titel.panel->caption(), titel);
    QCOMPARE(form->fach.panel->caption(), fach);
    QCOMPARE(form->lblGruppe->text(), gruppe);
    int summe = 0;
    for (int n = 1; n <= anzahlTestfragen; ++n) {
        QVERIFY(!HB_Frage(n).empty());
        QVERIFY(!HB_Antwort(n).empty());
        summe += HBForm.HBPunkte.at(static_cast<std::size_t>(n));
    }
    QCOMPARE(summe, punkte);
    QCOMPARE(int{HBForm.HBGesamtpunkte}, punkte);
    BildVon(MDIFenster(), QStringLiteral("vorlage-") + name);
    qInfo().noquote() << name << "points" << summe;
}

QTEST_MAIN(VorlagenTest)
#include "vorlagen_test.moc"
