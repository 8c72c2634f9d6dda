// What a screen reader is told of the quiz form.
#include "forms/quizformulare.h"
#include "quizform/zellenansage.h"
#include "tests/quizform/formhilfe.h"

#include <QAccessible>

namespace {

QAccessibleInterface* Ansage(QWidget* element) {
    QAccessibleInterface* ansage = QAccessible::queryAccessibleInterface(element);
    return ansage != nullptr ? ansage : QAccessible::queryAccessibleInterface(MDIFenster());
}

QString Name(QWidget* element) {
    return Ansage(element)->text(QAccessible::Name);
}

} // namespace

class FkAnsageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPartOfACellIsCalledByAreaAndRow_data();
    void aPartOfACellIsCalledByAreaAndRow();
    void eachCellIsCalledByTheTitleOfItsAreaWhichItFollows();
    void letterAndPointsAreToldWithTheirCell();
    void aPanelThatOpensAListIsAButtonThatCanBePressed();
};

void FkAnsageTest::aPartOfACellIsCalledByAreaAndRow_data() {
    QTest::addColumn<QString>("titel");
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("ansage");
    QTest::newRow("with a title") << QStringLiteral("Natur") << 8 << QStringLiteral("Natur, Zeile 3, Frage");
    QTest::newRow("without") << QString() << 8 << QStringLiteral("Gebiet 2, Zeile 3, Frage");
    QTest::newRow("with the word for none")
        << QStringLiteral("Wissen") << 30 << QStringLiteral("Gebiet 6, Zeile 5, Frage");
}

void FkAnsageTest::aPartOfACellIsCalledByAreaAndRow() {
    QFETCH(QString, titel);
    QFETCH(int, n);
    QFETCH(QString, ansage);
    QCOMPARE(QString::fromStdString(Zellenansage(titel.toStdString(), n, "Frage")), ansage);
}

void FkAnsageTest::eachCellIsCalledByTheTitleOfItsAreaWhichItFollows() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QCOMPARE(Name(form->txtFrage.at(8)), QStringLiteral("Gebiet 2, Zeile 3, Frage"));
    FKForm.WissenTitel[2] = "Natur";
    FK_GelesenesZeigen("");
    QCOMPARE(Name(form->txtFrage.at(8)), QStringLiteral("Natur, Zeile 3, Frage"));
    QCOMPARE(Name(form->txtAntwort.at(10)), QStringLiteral("Natur, Zeile 5, Antwort"));
    QCOMPARE(Name(form->pnlWissen.at(2)), QStringLiteral("Titel von Gebiet 2: Natur"));
    QCOMPARE(Name(form->txtFrage.at(11)), QStringLiteral("Gebiet 3, Zeile 1, Frage"));
}

void FkAnsageTest::letterAndPointsAreToldWithTheirCell() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    FKForm.WissenTitel[2] = "Natur";
    FK_GelesenesZeigen("");
    QCOMPARE(Name(form->pnlSpezial.at(8)), QStringLiteral("Natur, Zeile 3, Spezialfeld"));
    SpezialWaehlen(form, 8, 2); // a Glücksfrage
    QCOMPARE(form->pnlSpezial.at(8)->caption(), QStringLiteral("G"));
    QCOMPARE(Name(form->pnlSpezial.at(8)), QStringLiteral("Natur, Zeile 3, Spezialfeld: G"));
    QCOMPARE(Name(form->pnlPunkte.at(8)), QStringLiteral("Natur, Zeile 3, Punkte: 10"));
    QCOMPARE(Ansage(form->pnlPunkte.at(8))->text(QAccessible::Value), QStringLiteral("10"));
    QCOMPARE(Ansage(form->pnlPunkte.at(8))->role(), QAccessible::StaticText);
}

void FkAnsageTest::aPanelThatOpensAListIsAButtonThatCanBePressed() {
    Programm programm;
    const frmFKFragen* form = programm.NeuesQuizformular();
    QAccessibleInterface* titel = Ansage(form->pnlWissen.at(1));
    QCOMPARE(titel->role(), QAccessible::Button);
    QVERIFY(titel->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    QVERIFY(!form->cmbWissen->isVisible());
    titel->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(form->cmbWissen->isVisible());
}

QTEST_MAIN(FkAnsageTest)
#include "fkansage_test.moc"
