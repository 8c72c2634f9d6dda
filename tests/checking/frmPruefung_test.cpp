// The window of the check on the real forms, by keys and clicks.
#include "checking/frmPruefung.h"

#include "checking/befundmodell.h"
#include "core/formularfenster.h"
#include "forms/formulare.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/checking/pruefformular.h"
#include "tests/forms/verlaufhilfe.h"
#include "tests/hilfe/bild.h"
#include "tests/quizform/formhilfe.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTableView>

namespace {

const QString name = QStringLiteral("frmPruefung");

void F9() {
    maus::Taste(QStringLiteral("F9"));
}

QTableView* Liste() {
    return Finden<QTableView>(Fenster(name), QStringLiteral("tblBefunde"));
}

QString Anzahl() {
    return Finden<QLabel>(Fenster(name), QStringLiteral("lblBefunde"))->text();
}

QPushButton* Ersetzen() {
    return Finden<QPushButton>(Fenster(name), QStringLiteral("cmdErsetzen"));
}

// "Fehler | Gebiet 1, Frage 2 | ..."
QStringList Zeilen() {
    QStringList zeilen;
    const QAbstractItemModel* modell = Liste()->model();
    for (int i = 0; i < modell->rowCount(); ++i) {
        QStringList spalten;
        for (int j = 0; j < modell->columnCount(); ++j) {
            spalten << modell->index(i, j).data().toString();
        }
        zeilen << spalten.join(QStringLiteral(" | "));
    }
    return zeilen;
}

QString Markierte() {
    const QModelIndexList zeilen = Liste()->selectionModel()->selectedRows();
    return zeilen.isEmpty() ? QString() : Zeilen().at(zeilen.front().row());
}

void ZeileKlicken(int zeile) {
    const QRect platz = Liste()->visualRect(Liste()->model()->index(zeile, 1));
    maus::Klicken(Liste()->viewport(), Qt::NoModifier, platz.center());
}

// A full form without anything amiss that counts as saved.
frmFKFragen* GutesQuiz(Programm& programm) {
    frmFKFragen* form = programm.NeuesQuizformular();
    FKForm = GutesFormular();
    FK_FormularZeigen();
    FormularWechselt();
    FormStatusSetzen(false);
    return form;
}

void Tippen(QWidget* feld, const QString& text) {
    Betreten(feld);
    maus::Tippen(text);
}

const QString inOrdnung = QStringLiteral("Ich habe nichts gefunden, das Formular ist in Ordnung.");
const QString abgeschnitten =
    QStringLiteral("Was hinter dem Zeichen \" steht, finde ich beim nächsten Öffnen nicht wieder.");

} // namespace

class FrmPruefungTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAFormTheCommandSaysSoAndOpensNothing();
    void theKeyOpensOneWindowAndBringsItToTheFrontAgain();
    void everyControlHasItsTipAndTabVisitsThemInTheirOrder();
    void aClickOnAFindingLeadsToItsBox();
    void onASmallScreenTheBoxIsScrolledToAndTheListGivesWay();
    void enterOnAFindingLeadsToItsBox();
    void theListFollowsTheFormWhileOneTypes();
    void theMarkedFindingStaysMarkedUntilItIsMended();
    void whatSticksOutOnThePaperChosenIsToldInMillimetres();
    void allQuotationMarksAreReplacedAsOneStep();
    void onlyTheMarkedPlaceIsReplaced();
    void aFormThatGoesLeavesTheWindowAndAnotherFillsItAgain();
    void aTestFormIsCheckedAndItsPointsGetTheFocus();
    void aQuestionOfAnotherFormIsToldWithItsName();
    void escClosesTheWindow();
    void aLookTakesLessThanOneNotices();
};

void FrmPruefungTest::withoutAFormTheCommandSaysSoAndOpensNothing() {
    const Programm programm;
    F9();
    QTRY_COMPARE(HilfeStand(), std::string(" Ich kann nichts prüfen: Es ist kein Formular offen. "));
    QVERIFY(FensterOderNichts(name) == nullptr);
}

void FrmPruefungTest::theKeyOpensOneWindowAndBringsItToTheFrontAgain() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    QCOMPARE(Eintrag(6)->text(), QStringLiteral("Formular &prüfen"));
    F9();
    const QWidget* fenster = FensterAbwarten(name);
    QTRY_VERIFY(AktivesKind() == fenster);
    QCOMPARE(fenster->windowTitle(), QStringLiteral("Formular prüfen"));
    QCOMPARE(fenster->property("tag").toString(), QStringLiteral("Pruefung"));
    QTRY_COMPARE(Zeilen(), QStringList());
    QCOMPARE(Anzahl(), inOrdnung);
    QVERIFY(!Ersetzen()->isEnabled());
    maus::Klicken(form->txtFrage.at(1));
    QTRY_VERIFY(AktivesKind() == form);
    Eintrag(6)->trigger();
    QTRY_VERIFY(AktivesKind() == fenster);
    QTRY_VERIFY(Liste()->hasFocus());
    QCOMPARE(FensterOderNichts(name), fenster);
    QCOMPARE(programm.haupt()->findChildren<QWidget*>(name).size(), 1);
}

void FrmPruefungTest::everyControlHasItsTipAndTabVisitsThemInTheirOrder() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    form->txtFrage.at(1)->setText("\"");
    F9();
    const QWidget* fenster = FensterAbwarten(name);
    for (const char* teil : {"lblBefunde", "tblBefunde", "cmdErsetzen", "cmdAbbruch"}) {
        QVERIFY2(!Finden(fenster, QLatin1String(teil))->toolTip().isEmpty(), teil);
    }
    QStringList koepfe;
    for (int i = 0; i < Liste()->model()->columnCount(); ++i) {
        koepfe << Liste()->model()->headerData(i, Qt::Horizontal).toString();
    }
    QCOMPARE(koepfe, (QStringList{QStringLiteral("Art"), QStringLiteral("Feld"), QStringLiteral("Befund")}));
    QTRY_VERIFY(Liste()->hasFocus());
    QTRY_VERIFY(Ersetzen()->isEnabled());
    maus::Taste(QStringLiteral("Tab"));
    QTRY_VERIFY(Ersetzen()->hasFocus());
    maus::Taste(QStringLiteral("Tab"));
    QTRY_VERIFY(Finden(fenster, QStringLiteral("cmdAbbruch"))->hasFocus());
    maus::Taste(QStringLiteral("Tab"));
    QTRY_VERIFY(Liste()->hasFocus());
}

void FrmPruefungTest::aClickOnAFindingLeadsToItsBox() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    form->txtAntwort.at(7)->setText("");
    form->txtFrage.at(2)->setText("");
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(
        Zeilen(),
        (QStringList{QStringLiteral("Hinweis | Gebiet 1, Frage 2 | Hier fehlt noch die Frage."),
                     QStringLiteral("Hinweis | Gebiet 2, Antwort 2 | Hier fehlt noch die Antwort.")}));
    QCOMPARE(Anzahl(), QStringLiteral("Ich habe 2 Hinweise gefunden."));
    ZeileKlicken(1);
    QTRY_VERIFY(form->txtAntwort.at(7)->hasFocus());
    QVERIFY(AktivesKind() == form);
    QCOMPARE(HilfeStand(), std::string(" Gebiet 2, Antwort 2 : Hier fehlt noch die Antwort. "));
    QVERIFY(Fenster(name)->isVisible()); // above the form
    ZeileKlicken(0);
    QTRY_VERIFY(form->txtFrage.at(2)->hasFocus());
}

void FrmPruefungTest::onASmallScreenTheBoxIsScrolledToAndTheListGivesWay() {
    Programm programm;
    programm.haupt()->showNormal();
    programm.haupt()->resize(900, 520);
    const frmFKFragen* form = GutesQuiz(programm);
    for (const int n : {1, 15, 26, 30}) {
        form->txtAntwort.at(Nr(n))->setText("");
    }
    F9();
    const QWidget* rahmen = FensterAbwarten(name)->parentWidget();
    QTRY_COMPARE(Zeilen().size(), 4);
    const QWidget* flaeche = rahmen->parentWidget();
    int zeile = 0;
    for (const int n : {1, 15, 26, 30}) {
        Q_EMIT Liste()->clicked(Liste()->model()->index(zeile++, 0));
        const QWidget* feld = form->txtAntwort.at(Nr(n));
        QTRY_VERIFY(feld->hasFocus());
        const QRect platz(feld->mapTo(flaeche, QPoint(0, 0)), feld->size());
        QVERIFY2(flaeche->rect().contains(platz), qPrintable(QString::number(n)));
        QVERIFY2(!rahmen->geometry().intersects(platz), qPrintable(QString::number(n)));
        QVERIFY2(flaeche->rect().contains(rahmen->geometry().center()), qPrintable(QString::number(n)));
    }
}

void FrmPruefungTest::enterOnAFindingLeadsToItsBox() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    form->txtAntwort.at(30)->setText("");
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen().size(), 1);
    QTRY_VERIFY(Liste()->hasFocus());
    QCOMPARE(Markierte(), QString());
    maus::Taste(QStringLiteral("Down"));
    QTRY_COMPARE(Markierte(), QStringLiteral("Hinweis | Gebiet 6, Antwort 5 | Hier fehlt noch die Antwort."));
    QVERIFY(AktivesKind() == Fenster(name)); // the arrow keys only look
    maus::Taste(QStringLiteral("Return"));
    QTRY_VERIFY(form->txtAntwort.at(30)->hasFocus());
}

void FrmPruefungTest::theListFollowsTheFormWhileOneTypes() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Anzahl(), inOrdnung);
    Tippen(form->txtFrage.at(1), QStringLiteral("Wer"));
    QTRY_COMPARE(form->txtFrage.at(1)->text(), std::string("Wer"));
    maus::Taste(QStringLiteral("BackSpace"));
    maus::Taste(QStringLiteral("BackSpace"));
    maus::Taste(QStringLiteral("BackSpace"));
    QTRY_COMPARE(Zeilen(),
                 QStringList{QStringLiteral("Hinweis | Gebiet 1, Frage 1 | Hier fehlt noch die Frage.")});
    QVERIFY(form->txtFrage.at(1)->hasFocus()); // and nothing has been left yet
    maus::Tippen(QStringLiteral("Welcher Berg in Kuba"));
    QTRY_COMPARE(Zeilen(),
                 QStringList{QStringLiteral("Hinweis | Gebiet 1, Frage 2 | Fast dieselbe Frage steht "
                                            "schon in [ Gebiet 1, Frage 1 ].")});
    SpezialWaehlen(FKFragenOffen(), 2, 1); // a Joker has no question
    QTRY_COMPARE(Anzahl(), inOrdnung);
}

void FrmPruefungTest::theMarkedFindingStaysMarkedUntilItIsMended() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    for (const int n : {3, 5, 9}) {
        form->txtAntwort.at(Nr(n))->setText("");
    }
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen().size(), 3);
    ZeileKlicken(1);
    const QString fuenf = QStringLiteral("Hinweis | Gebiet 1, Antwort 5 | Hier fehlt noch die Antwort.");
    QTRY_COMPARE(Markierte(), fuenf);
    form->txtAntwort.at(1)->setText("");
    form->txtAntwort.at(3)->setText("da");
    QTRY_COMPARE(Zeilen().at(0),
                 QStringLiteral("Hinweis | Gebiet 1, Antwort 1 | Hier fehlt noch die Antwort."));
    QCOMPARE(Markierte(), fuenf);
    form->txtAntwort.at(2)->setText(""); // one more row above it
    QTRY_COMPARE(Zeilen().size(), 4);
    QCOMPARE(Markierte(), fuenf);
    form->txtAntwort.at(5)->setText("da");
    QTRY_COMPARE(Zeilen().size(), 3);
    QCOMPARE(Markierte(), QString());
    QVERIFY(!Liste()->currentIndex().isValid());
}

void FrmPruefungTest::whatSticksOutOnThePaperChosenIsToldInMillimetres() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    Spiel.Papierformat = "A4 quer";
    form->txtFrage.at(1)->setText("Eins\r\nzwei\r\ndrei\r\nvier\r\nfünf\r\nsechs\r\nsieben\r\nacht");
    form->txtAntwort.at(2)->setText("Donaudampfschifffahrtsgesellschaftskapitän");
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen().size(), 2);
    const QString ort = QStringLiteral("Fehler | Gebiet 1, %1 | Auf dem Papier ragt der Text %2 ");
    QVERIFY2(Zeilen().at(0).startsWith(ort.arg(QStringLiteral("Frage 1"), QStringLiteral("unten"))),
             qPrintable(Zeilen().at(0)));
    QVERIFY2(Zeilen().at(1).startsWith(ort.arg(QStringLiteral("Antwort 2"), QStringLiteral("rechts"))),
             qPrintable(Zeilen().at(1)));
    QVERIFY(
        Zeilen().at(0).contains(QRegularExpression(QStringLiteral(" \\d+,\\d mm über das Feld hinaus\\.$"))));
    QCOMPARE(Anzahl(), QStringLiteral("Ich habe 2 Fehler gefunden."));
    QTRY_VERIFY(Liste()->rowHeight(0) < 2 * Liste()->fontMetrics().height() + 4); // its text has one line
    BildVomBildschirm(QStringLiteral("frmPruefung"));
    Spiel.Papierformat = "";
    FormStatusSetzen(true);
    QTRY_COMPARE(Anzahl(), inOrdnung);
}

void FrmPruefungTest::allQuotationMarksAreReplacedAsOneStep() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    Tippen(form->txtNr, QStringLiteral("\"4\""));
    form->txtFrage.at(1)->setText("Wer sagte \"Ja\"?");
    form->txtAntwort.at(12)->setText("\"Ich\"");
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen(), (QStringList{QStringLiteral("Fehler | Nr. | ") + abgeschnitten,
                                        QStringLiteral("Fehler | Gebiet 1, Frage 1 | ") + abgeschnitten,
                                        QStringLiteral("Fehler | Gebiet 3, Antwort 2 | ") + abgeschnitten}));
    QCOMPARE(Ersetzen()->text(), QStringLiteral("Alle \" &ersetzen"));
    maus::Klicken(Ersetzen());
    QTRY_COMPARE(form->txtFrage.at(1)->text(), std::string("Wer sagte „Ja“?"));
    QCOMPARE(form->txtAntwort.at(12)->text(), std::string("„Ich“"));
    QCOMPARE(form->txtNr->wert(), std::string("„4“"));
    QTRY_COMPARE(Anzahl(), inOrdnung);
    QVERIFY(!Ersetzen()->isEnabled());
    QTRY_COMPARE(HilfeStand(), std::string(" 3 Texte haben jetzt „ und “. "));
    QCOMPARE(FKForm.FrageText[1], std::string("Wer sagte „Ja“?"));
    QTRY_VERIFY(AktivesKind() == form); // where a step back is at hand
    QTRY_COMPARE(Extras(), QStringLiteral("Rückgängig: Anführungszeichen ersetzen | (Wiederholen)"));
    Zurueck();
    QTRY_COMPARE(form->txtFrage.at(1)->text(), std::string("Wer sagte \"Ja\"?"));
    QCOMPARE(form->txtAntwort.at(12)->text(), std::string("\"Ich\""));
    QCOMPARE(form->txtNr->wert(), std::string("\"4\""));
    QTRY_COMPARE(Zeilen().size(), 3);
}

void FrmPruefungTest::onlyTheMarkedPlaceIsReplaced() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    form->txtFrage.at(1)->setText("Wer sagte \"Ja\"?");
    form->txtFrage.at(2)->setText("Wer sagte \"Nein\"?");
    form->txtFrage.at(9)->setText("Welcher Berg in Kuba?");
    form->txtFrage.at(14)->setText("Wie heißt der Berg im Iran?");
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen().size(), 3);
    ZeileKlicken(1);
    QTRY_VERIFY(form->txtFrage.at(2)->hasFocus());
    QTRY_COMPARE(Ersetzen()->text(), QStringLiteral("Hier \" &ersetzen"));
    BildVomBildschirm(QStringLiteral("frmPruefung_markiert"));
    maus::Klicken(Ersetzen());
    QTRY_COMPARE(form->txtFrage.at(2)->text(), std::string("Wer sagte „Nein“?"));
    QCOMPARE(form->txtFrage.at(1)->text(), std::string("Wer sagte \"Ja\"?"));
    QTRY_COMPARE(Zeilen().size(), 2);
    QCOMPARE(Ersetzen()->text(), QStringLiteral("Alle \" &ersetzen"));
    QTRY_COMPARE(HilfeStand(), std::string(" Ein Text hat jetzt „ und “. "));
}

void FrmPruefungTest::aFormThatGoesLeavesTheWindowAndAnotherFillsItAgain() {
    Programm programm;
    GutesQuiz(programm);
    F9();
    const QWidget* fenster = FensterAbwarten(name);
    QTRY_COMPARE(Anzahl(), inOrdnung);
    FormulareEntladen();
    QTRY_COMPARE(Anzahl(), QStringLiteral("Es ist kein Formular offen."));
    QVERIFY(fenster->isVisible());
    F9();
    QTRY_COMPARE(HilfeStand(), std::string(" Ich kann nichts prüfen: Es ist kein Formular offen. "));
    programm.NeuesQuizformular();
    QTRY_COMPARE(Anzahl(), QStringLiteral("Ich habe 30 Hinweise gefunden."));
}

void FrmPruefungTest::aTestFormIsCheckedAndItsPointsGetTheFocus() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen(),
                 QStringList{QStringLiteral("Hinweis | Frage 1 | Hier steht noch keine einzige Frage.")});
    form->txtFrage.at(4)->setText("Wer baute die Arche?");
    form->txtAntwort.at(4)->setText("Noah");
    form->txtAntwort.at(6)->setText("Eva");
    QTRY_COMPARE(
        Zeilen(),
        (QStringList{
            QStringLiteral("Fehler | Antwort 6 | Diese Antwort drucke ich nicht, denn ihre Frage fehlt."),
            QStringLiteral("Hinweis | Punkte 4 | Für diese Frage gibt es noch keine Punkte.")}));
    ZeileKlicken(1);
    QTRY_VERIFY(AktivesKind() == form);
    QTRY_VERIFY(form->spnPunkte.at(4)->hasFocus());
    maus::Taste(QStringLiteral("Up"));
    QTRY_COMPARE(Zeilen().size(), 1);
}

void FrmPruefungTest::aQuestionOfAnotherFormIsToldWithItsName() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    form->txtFrage.at(8)->setText(
        "Warum trägt der Torwart ein anderes Trikot als seine Mannschaft? "); // from KURZABEND.FKR
    F9();
    FensterAbwarten(name);
    QTRY_COMPARE(Zeilen().size(), 1);
    const QString anfang = QStringLiteral("Hinweis | Gebiet 2, Frage 3 | Schon benutzt in Kurzabend.FKR");
    QVERIFY2(Zeilen().at(0).startsWith(anfang, Qt::CaseInsensitive), qPrintable(Zeilen().at(0)));
    form->txtFrage.at(8)->setText("Welcher Fluss aus Iran?");
    QTRY_COMPARE(Anzahl(), inOrdnung);
}

void FrmPruefungTest::escClosesTheWindow() {
    Programm programm;
    GutesQuiz(programm);
    F9();
    FensterAbwarten(name);
    QTRY_VERIFY(Liste()->hasFocus());
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(FensterOderNichts(name) == nullptr);
    F9();
    maus::Klicken(Finden(FensterAbwarten(name), QStringLiteral("cmdAbbruch")));
    QTRY_VERIFY(FensterOderNichts(name) == nullptr);
}

// Fifty milliseconds are what is asked for; the limit is for busy machines and builds with checks.
void FrmPruefungTest::aLookTakesLessThanOneNotices() {
    Programm programm;
    frmFKFragen* form = GutesQuiz(programm);
    Spiel.Papierformat = "A5 quer";
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n) +
                                          " nach einem Ding aus Donaueschingen, "
                                          "das \"rollt\", singt und auf dem Dach des Hauses steht?");
    }
    F9();
    auto* fenster = qobject_cast<frmPruefung*>(FensterAbwarten(name));
    QTRY_VERIFY(Zeilen().size() >= 30);
    QElapsedTimer uhr;
    uhr.start();
    constexpr int oft = 20;
    for (int i = 0; i < oft; ++i) {
        fenster->Nachsehen();
    }
    qInfo() << "one look:" << double(uhr.nsecsElapsed()) / oft / 1e6 << "ms";
    QVERIFY(uhr.elapsed() / oft < 500);
}

QTEST_MAIN(FrmPruefungTest)
#include "frmPruefung_test.moc"
