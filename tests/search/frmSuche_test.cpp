// The search as a leader uses it: typing, choosing, dragging, all with real keys and a real mouse.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "core/ziehen.h"
#include "mainwindow/ablage.h"
#include "mainwindow/frmMDI.h"
#include "persistence/extrasdatei.h"
#include "quizform/fkformular.h"
#include "quizform/frmFKFragen.h"
#include "rules/spielwerte.h"
#include "search/fragendienst.h"
#include "search/suchen.h"
#include "search/treffermodell.h"
#include "search/treffertabelle.h"
#include "testform/frmHBFragen.h"
#include "tests/hilfe/auswahlhilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/frist.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tests/hilfe/versagen.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {

std::size_t Nr(int n) {
    return static_cast<std::size_t>(n);
}

// The window, opened by its key, with the catalogue read.
class Suche {
public:
    explicit Suche(const Programm& programm) : haupt_(programm.haupt()) {
        maus::Taste(QStringLiteral("ctrl+f"));
        fenster_ = FensterAbwarten(QStringLiteral("frmSuche"));
        if (!QTest::qWaitFor([] { return Fragen().gelesen(); }, wartefrist)) {
            VersagenUndEnde(QStringLiteral("The catalogue wasn't read"), Stelle::hier());
        }
    }

    [[nodiscard]] QLineEdit* text() const { return Finden<QLineEdit>(fenster_, QStringLiteral("txtSuche")); }
    [[nodiscard]] Treffertabelle* tabelle() const {
        return Finden<Treffertabelle>(fenster_, QStringLiteral("tblTreffer"));
    }
    [[nodiscard]] QString anzahl() const {
        return Finden<QLabel>(fenster_, QStringLiteral("lblTreffer"))->text();
    }
    [[nodiscard]] QString zelle(int zeile, Trefferspalte spalte) const {
        return tabelle()->model()->index(zeile, static_cast<int>(spalte)).data().toString();
    }
    [[nodiscard]] QString frage(int zeile = 0) const { return zelle(zeile, Trefferspalte::Frage); }
    [[nodiscard]] QString antwort(int zeile = 0) const { return zelle(zeile, Trefferspalte::Antwort); }
    // The place of a row for the mouse.
    [[nodiscard]] QPoint platz(int zeile, Trefferspalte spalte = Trefferspalte::Frage) const {
        return tabelle()->visualRect(tabelle()->model()->index(zeile, static_cast<int>(spalte))).center();
    }
    template <class T>
    [[nodiscard]] T* teil(const char* name) const {
        return Finden<T>(fenster_, QLatin1String(name));
    }

    // What stands there is selected and goes.
    void tippen(const QString& worte) const {
        text()->setFocus();
        text()->selectAll();
        maus::Tippen(worte);
        if (!QTest::qWaitFor([&] { return text()->text() == worte; }, wartefrist)) {
            VersagenUndEnde(QStringLiteral("Typed %1, but there stands %2").arg(worte, text()->text()),
                            Stelle::hier());
        }
    }

private:
    frmMDI* haupt_;
    QWidget* fenster_ = nullptr;
};

const QByteArray zweiFragen = "WISSEN\r\n1\r\nWo wohnt der Quastenflosser?\r\nIm Meer\r\n3\r\n"
                              "2\r\nWer sah den Quastenflosser zuerst?\r\nEin Fischer\r\n4\r\n";
const QString luftdatei = QStringLiteral("WISSEN/NATUR/NA_LUFT.TXT");

std::string Status() {
    return HilfeStand();
}

} // namespace

class FrmSucheTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachKeyNarrowsTheHitsAndTheBestComesFirst();
    void themePointsAndUseLeaveQuestionsOut();
    void enterFillsTheCellVisitedLastAndThenTheNextEmptyOne();
    void aFullBoardSaysSo();
    void withoutAFormEnterSaysSo();
    void enterFillsTheRowsOfATestForm();
    void aHitIsDraggedIntoACell();
    void aHitIsDraggedOntoThePanelAndRefusedByTheTrash();
    void aHitIsHeldByKeyAndDroppedByKey();
    void aDoubleClickShowsTheQuestionInTheSelectionDialog();
    void ctrlCCopiesQuestionAndAnswer();
    void aFileThatChangesIsThereWithTheNextKey();
    void aFileThatCantBeReadIsNamedOnce();
    void usedQuestionsNameTheirForm();
    void theSelectionDialogTellsWhereAQuestionIsUsed();
    void theLastSearchIsThereAgain();
    void escClosesTheWindow();
};

void FrmSucheTest::eachKeyNarrowsTheHitsAndTheBestComesFirst() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    const Suche suche(programm);
    const std::size_t alle = Fragen().bestand()->anzahl();
    QVERIFY(alle > 4000);
    QCOMPARE(suche.anzahl(), QStringLiteral("%1 von %1 Fragen").arg(alle));
    suche.tippen(QStringLiteral("QUASTENFLOSSER"));
    QCOMPARE(suche.anzahl(), QStringLiteral("2 von %1 Fragen").arg(alle));
    suche.tippen(QStringLiteral("quasten wohnt"));
    QCOMPARE(suche.anzahl(), QStringLiteral("1 von %1 Fragen").arg(alle));
    QCOMPARE(suche.frage(), QStringLiteral("Wo wohnt der Quastenflosser?"));
    QCOMPARE(suche.antwort(), QStringLiteral("Im Meer"));
    QCOMPARE(suche.zelle(0, Trefferspalte::Thema), QStringLiteral("Natur"));
    QCOMPARE(suche.zelle(0, Trefferspalte::Unterthema), QStringLiteral("Luft"));
    QCOMPARE(suche.zelle(0, Trefferspalte::Punkte), QStringLiteral("3"));
    QCOMPARE(suche.tabelle()->currentIndex().row(), 0);
    QCOMPARE(suche.teil<QLabel>("lblFrage")->text(), QStringLiteral("Wo wohnt der Quastenflosser?\nIm Meer"));
    suche.tippen(QStringLiteral("quastenflosser -meer"));
    QCOMPARE(suche.frage(), QStringLiteral("Wer sah den Quastenflosser zuerst?"));
    suche.tippen(QStringLiteral("gibtesnicht"));
    QCOMPARE(suche.anzahl(), QStringLiteral("0 von %1 Fragen").arg(alle));
    QCOMPARE(suche.teil<QLabel>("lblFrage")->text(), QString());
}

void FrmSucheTest::themePointsAndUseLeaveQuestionsOut() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    frmFKFragen* form = programm.NeuesQuizformular();
    const Suche suche(programm);
    suche.tippen(QStringLiteral("quastenflosser"));
    auto* punkte = suche.teil<QComboBox>("cmbSuchPunkte");
    QCOMPARE(punkte->itemText(0), QStringLiteral("alle Punkte"));
    QCOMPARE(suche.teil<QComboBox>("cmbSuchThema")->itemText(0), QStringLiteral("alle Themen"));
    ListeWaehlen(punkte, QStringLiteral("4"));
    QCOMPARE(suche.frage(), QStringLiteral("Wer sah den Quastenflosser zuerst?"));
    QVERIFY(suche.anzahl().startsWith(QLatin1String("1 von ")));
    ListeWaehlen(punkte, QStringLiteral("alle Punkte"));
    ListeWaehlen(suche.teil<QComboBox>("cmbSuchThema"), QStringLiteral("Sport"));
    QVERIFY(suche.anzahl().startsWith(QLatin1String("0 von ")));
    ListeWaehlen(suche.teil<QComboBox>("cmbSuchThema"), QStringLiteral("Natur"));
    QVERIFY(suche.anzahl().startsWith(QLatin1String("2 von ")));
    form->txtFrage.at(3)->setText("wo wohnt der QUASTENFLOSSER ?");
    maus::Klicken(suche.teil<QCheckBox>("chkUnbenutzt"));
    QTRY_VERIFY(suche.anzahl().startsWith(QLatin1String("1 von ")));
    QCOMPARE(suche.frage(), QStringLiteral("Wer sah den Quastenflosser zuerst?"));
}

void FrmSucheTest::enterFillsTheCellVisitedLastAndThenTheNextEmptyOne() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(30)->setFocus();
    const Suche suche(programm);
    suche.tippen(QStringLiteral("quastenflosser"));
    maus::Taste(QStringLiteral("Return"));
    QTRY_COMPARE(FK_Frage(30), std::string("Wo wohnt der Quastenflosser?"));
    QCOMPARE(FK_Antwort(30), std::string("Im Meer"));
    QCOMPARE(Status(), std::string(" Die Frage steht in [ Gebiet 6, Frage 5 ]. "));
    QVERIFY(Stand.FormGeaendert);
    maus::Taste(QStringLiteral("Down"));
    maus::Taste(QStringLiteral("Return"));
    QTRY_COMPARE(FK_Frage(1), std::string("Wer sah den Quastenflosser zuerst?")); // round the end
    QTRY_VERIFY(suche.zelle(0, Trefferspalte::Benutzt).startsWith(QLatin1String("diesem Formular (")));
}

void FrmSucheTest::aFullBoardSaysSo() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    for (int n = 1; n <= anzahlFelder; ++n) {
        form->txtFrage.at(Nr(n))->setText("Frage " + std::to_string(n));
    }
    const Suche suche(programm);
    suche.tippen(QStringLiteral("hund"));
    maus::Taste(QStringLiteral("Return"));
    QTRY_COMPARE(Status(), std::string(" Ich finde kein leeres Feld mehr: Das Formular ist voll. "));
    QCOMPARE(FK_Frage(1), std::string("Frage 1"));
}

void FrmSucheTest::withoutAFormEnterSaysSo() {
    Programm programm;
    const Suche suche(programm);
    suche.tippen(QStringLiteral("hund"));
    maus::Taste(QStringLiteral("Return"));
    QTRY_COMPARE(Status(), std::string(" Ich habe kein offenes Formular, in das die Frage passt. "));
}

void FrmSucheTest::enterFillsTheRowsOfATestForm() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtAntwort.at(4)->setFocus();
    const Suche suche(programm);
    suche.tippen(QStringLiteral("quastenflosser"));
    maus::Taste(QStringLiteral("Return"));
    QTRY_COMPARE(form->txtFrage.at(4)->text(), std::string("Wo wohnt der Quastenflosser?"));
    QCOMPARE(Status(), std::string(" Die Frage steht in [ Frage 4 ]. "));
}

void FrmSucheTest::aHitIsDraggedIntoACell() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    const Suche suche(programm);
    suche.tippen(QStringLiteral("der"));
    const QPoint mitte = suche.tabelle()->viewport()->rect().center();
    const int zeile = suche.tabelle()->rowAt(mitte.y());
    QVERIFY(zeile > 0);
    const std::string frage = Modelltext(suche.frage(zeile));
    maus::Ziehen(suche.tabelle()->viewport(), form->txtFrage.at(6), Qt::NoModifier,
                 [] { return AktuellesZiehBild() == ZiehBild::Ablegen; });
    QCOMPARE(FK_Frage(6), frage);
    QCOMPARE(FK_Antwort(6), Modelltext(suche.antwort(zeile)));
}

void FrmSucheTest::aHitIsDraggedOntoThePanelAndRefusedByTheTrash() {
    Programm programm;
    const Suche suche(programm);
    suche.tippen(QStringLiteral("hund"));
    const std::string frage = Modelltext(suche.frage());
    maus::Klicken(suche.tabelle()->viewport(), Qt::NoModifier, suche.platz(0));
    maus::Taste(QStringLiteral("shift+F8"));
    QTRY_VERIFY(OhneMausGehalten());
    QVERIFY(OhneMausAblegen(Finden(programm.haupt(), QStringLiteral("pnlCopyF"))));
    QCOMPARE(AblageFrage(), frage);
    AuswahlZeigen();
    maus::Klicken(suche.tabelle()->viewport(), Qt::NoModifier, suche.platz(0));
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Aus der Fragenauswahl kann ich so keine Fragen löschen."),
                    QStringLiteral("Das sehe ich ein."));
    QVERIFY(OhneMausAufnehmen([&] {
        Ziehen(suche.tabelle(), {Zugart::Auswahl, Formart::Keine, 0, frage, "x"});
    }));
    QVERIFY(OhneMausAblegen(Finden(Fenster(QStringLiteral("frmAuswahl")), QStringLiteral("fraMuell"))));
    QTRY_VERIFY(dialoge.fertig());
}

void FrmSucheTest::aHitIsHeldByKeyAndDroppedByKey() {
    Programm programm;
    frmFKFragen* form = programm.NeuesQuizformular();
    const Suche suche(programm);
    suche.tippen(QStringLiteral("hund"));
    maus::Taste(QStringLiteral("Tab"));
    suche.tabelle()->setFocus();
    const std::string frage = Modelltext(suche.frage());
    maus::Taste(QStringLiteral("ctrl+F8"));
    QTRY_VERIFY(OhneMausGehalten());
    form->txtFrage.at(9)->setFocus();
    maus::Taste(QStringLiteral("F8"));
    QTRY_COMPARE(FK_Frage(9), frage);
}

void FrmSucheTest::aDoubleClickShowsTheQuestionInTheSelectionDialog() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    const Suche suche(programm);
    suche.tippen(QStringLiteral("quastenflosser zuerst"));
    maus::Doppelklicken(suche.tabelle()->viewport(), suche.platz(0));
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    QTRY_COMPARE(AuswahlFrage(), std::string("Wer sah den Quastenflosser zuerst?"));
    QCOMPARE(AuswahlAntwort(), std::string("Ein Fischer"));
    QCOMPARE(Finden<QComboBox>(auswahl, QStringLiteral("cmbThemen"))->currentText(), QStringLiteral("Natur"));
    QCOMPARE(Finden<QComboBox>(auswahl, QStringLiteral("cmbUnter"))->currentText(), QStringLiteral("Luft"));
    QCOMPARE(Finden<QComboBox>(auswahl, QStringLiteral("cmbFrage"))->currentIndex(), 1);
}

void FrmSucheTest::ctrlCCopiesQuestionAndAnswer() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    const Suche suche(programm);
    suche.tippen(QStringLiteral("quastenflosser wohnt"));
    suche.tabelle()->setFocus();
    maus::Taste(QStringLiteral("ctrl+c"));
    QTRY_COMPARE(QApplication::clipboard()->text(), QStringLiteral("Wo wohnt der Quastenflosser?\nIm Meer"));
}

void FrmSucheTest::aFileThatChangesIsThereWithTheNextKey() {
    Programm programm;
    const Suche suche(programm);
    suche.tippen(QStringLiteral("quastenflosser woh"));
    QVERIFY(suche.anzahl().startsWith(QLatin1String("0 von ")));
    programm.ordner().schreiben(luftdatei, zweiFragen);
    maus::Tippen(QStringLiteral("n"));
    QTRY_COMPARE(suche.frage(), QStringLiteral("Wo wohnt der Quastenflosser?"));
}

void FrmSucheTest::aFileThatCantBeReadIsNamedOnce() {
    Programm programm;
    QVERIFY(QFile::remove(programm.ordner().nativ(luftdatei)));
    const Suche suche(programm);
    QTRY_COMPARE(Status(),
                 std::string(" Ich kann [ NA_LUFT.TXT ] nicht lesen und suche ohne diese Fragen. "));
    QVERIFY(Fragen().bestand()->anzahl() > 4000);
    HilfeText("");
    bool geprueft = false;
    connect(&Fragen(), &Fragendienst::geprueft, this, [&geprueft] { geprueft = true; });
    suche.tippen(QStringLiteral("h"));
    QTRY_VERIFY(geprueft);
    QCOMPARE(Status(), std::string(" "));
    disconnect(&Fragen(), nullptr, this, nullptr);
}

void FrmSucheTest::usedQuestionsNameTheirForm() {
    Programm programm;
    const Suche suche(programm);
    // The forms that come with the program are made of the catalogue's questions.
    auto* unbenutzt = suche.teil<QCheckBox>("chkUnbenutzt");
    const int alle = static_cast<int>(Fragen().bestand()->anzahl());
    maus::Klicken(unbenutzt);
    QTRY_VERIFY(unbenutzt->isChecked());
    const int frei = suche.anzahl().section(QLatin1Char(' '), 0, 0).toInt();
    QVERIFY2(frei < alle && frei > alle - 200, qPrintable(suche.anzahl()));
}

void FrmSucheTest::theSelectionDialogTellsWhereAQuestionIsUsed() {
    Programm programm;
    programm.ordner().schreiben(luftdatei, zweiFragen);
    frmFKFragen* form = programm.NeuesQuizformular();
    form->txtFrage.at(2)->setText("Wo wohnt der Quastenflosser?");
    form->txtDatum->setWert("20.11.2026");
    maus::Klicken(Finden(programm.haupt(), QStringLiteral("cmdAuswahl(0)")));
    const QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    FrageWaehlen(auswahl, QStringLiteral("Natur"), QStringLiteral("Luft"), 0);
    QTRY_COMPARE(Status(), std::string(" schon benutzt in diesem Formular (20.11.2026) "));
}

void FrmSucheTest::theLastSearchIsThereAgain() {
    Programm programm;
    {
        const Suche suche(programm);
        suche.tippen(QStringLiteral("hund katze"));
        ListeWaehlen(suche.teil<QComboBox>("cmbSuchThema"), QStringLiteral("Tiere"));
        maus::Klicken(suche.teil<QWidget>("cmdAbbruch"));
    }
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmSuche")) == nullptr);
    QVERIFY(
        programm.ordner().lesen(QStringLiteral("CONFIG/EXTRAS.INI")).contains("Suche.Text=hund katze\r\n"));
    const Suche suche(programm);
    QCOMPARE(suche.text()->text(), QStringLiteral("hund katze"));
    QCOMPARE(suche.text()->selectedText(), QStringLiteral("hund katze"));
    QCOMPARE(suche.teil<QComboBox>("cmbSuchThema")->currentText(), QStringLiteral("Tiere"));
}

void FrmSucheTest::escClosesTheWindow() {
    Programm programm;
    const Suche suche(programm);
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmSuche")) == nullptr);
}

QTEST_MAIN(FrmSucheTest)
#include "frmSuche_test.moc"
