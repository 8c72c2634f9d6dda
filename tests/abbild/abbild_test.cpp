// Every window of the program in its usual states, held against its description in erwartet/. The modal
// dialogs are dialogabbild_test.cpp.
#include "abbildschritte.h"
#include "abbildvergleich.h"
#include "core/oberflaeche.h"
#include "mainwindow/frmStart.h"
#include "tests/hilfe/finden.h"
#include "tests/periphery/zusatzordner.h"

#include <QAbstractItemView>
#include <QBuffer>
#include <QComboBox>
#include <QCursor>
#include <QGuiApplication>
#include <QListWidget>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QTest>

using abbild::FensterVergleichen;

namespace {

const QString nirgendwo = QStringLiteral("/nirgendwo");

// A form and, with its toolbar, flags and counts, the main window around it.
void FormVergleichen(const Abbildlauf& lauf, QWidget* form, const QString& art, const QString& zustand,
                     Stelle stelle = Stelle::hier()) {
    FensterVergleichen(form, form->objectName() + u'_' + zustand, stelle);
    FensterVergleichen(lauf.haupt(), QStringLiteral("frmMDI_%1_%2").arg(art, zustand), stelle);
}

// Three pages of A4, whatever stands on them.
QByteArray Dokument() {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter schreiber(&puffer);
    schreiber.setPageSize(QPageSize(QPageSize::A4));
    QPainter maler(&schreiber);
    for (int seite = 1; seite <= 3; ++seite) {
        if (seite > 1) {
            schreiber.newPage();
        }
        maler.drawText(1000, 1000, QStringLiteral("Seite %1").arg(seite));
    }
    maler.end();
    return bytes;
}

} // namespace

class AbbildTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theStartWindow();
    void theMainWindowAndTheListOfForms();
    void theListOfTestForms();
    void aNewQuizForm();
    void aQuizFormFromAFile();
    void aQuizFormOfThreeAreasWithTwoQuestions();
    void theListsOfTheQuizForm();
    void aNewTestForm();
    void aTestFormFromAFile();
    void theSelectionDialog();
    void theEditor();
    void theRuleWindow();
    void theRuleWindowWithoutItsPlugIn();
    void theHomepageWindowWithoutItsPlugIn();
};

void AbbildTest::theStartWindow() {
    OberflaecheEinrichten();
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    const Programmordner ordner;
    frmStart fenster;
    fenster.setAttribute(Qt::WA_DeleteOnClose, false);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    FensterVergleichen(&fenster, QStringLiteral("frmStart"));
}

void AbbildTest::theMainWindowAndTheListOfForms() {
    const Abbildlauf lauf;
    QWidget* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    FensterVergleichen(lauf.haupt(), QStringLiteral("frmMDI_start"));
    FensterVergleichen(liste, QStringLiteral("frmFKformulare_quiz"));
    auto* dateien = Finden<QListWidget>(liste, QStringLiteral("filDateiliste"));
    QTRY_COMPARE(dateien->count(), 3);
    dateien->setCurrentRow(1);
    FensterVergleichen(liste, QStringLiteral("frmFKformulare_quiz_markiert"));
    FensterVergleichen(lauf.haupt(), QStringLiteral("frmMDI_start_markiert"));
}

void AbbildTest::theListOfTestForms() {
    const Abbildlauf lauf;
    QWidget* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    Abbildlauf::Druecken(liste, QStringLiteral("cmdNeuHB"));
    FensterVergleichen(liste, QStringLiteral("frmFKformulare_test"));
    auto* dateien = Finden<QListWidget>(liste, QStringLiteral("filDateiliste"));
    QTRY_COMPARE(dateien->count(), 2);
    dateien->setCurrentRow(0);
    FensterVergleichen(liste, QStringLiteral("frmFKformulare_test_markiert"));
    Abbildlauf::Druecken(liste, QStringLiteral("optPattern(1)"));
    FensterVergleichen(liste, QStringLiteral("frmFKformulare_test_sicherungen"));
}

void AbbildTest::aNewQuizForm() {
    Abbildlauf lauf;
    QWidget* form = lauf.NeuesQuizformular();
    FormVergleichen(lauf, form, QStringLiteral("quiz"), QStringLiteral("leer"));
    FensterVergleichen(Fenster(QStringLiteral("frmFKformulare")),
                       QStringLiteral("frmFKformulare_quiz_in_arbeit"));
}

void AbbildTest::aQuizFormFromAFile() {
    Abbildlauf lauf;
    QWidget* form = lauf.QuizformularOeffnen(QStringLiteral("Bibelabend.FKR"));
    FormVergleichen(lauf, form, QStringLiteral("quiz"), QStringLiteral("geoeffnet"));
    QTest::keyClick(Finden(form, QStringLiteral("txtFrage(1)")), Qt::Key_F8, Qt::ControlModifier);
    QTest::keyClick(Finden(lauf.haupt(), QStringLiteral("pnlCopyF")), Qt::Key_F8);
    FensterVergleichen(lauf.haupt(), QStringLiteral("frmMDI_quiz_ablage"));
}

void AbbildTest::aQuizFormOfThreeAreasWithTwoQuestions() {
    Abbildlauf lauf;
    QWidget* form = lauf.NeuesQuizformular();
    Tippen(Finden(form, QStringLiteral("txtFrage(2)")), QStringLiteral("Erste Frage"));
    Tippen(Finden(form, QStringLiteral("txtAntwort(2)")), QStringLiteral("Erste Antwort"));
    Tippen(Finden(form, QStringLiteral("txtDatum")), QStringLiteral("3. Mai"));
    BrettVerkleinern(lauf);
    FormVergleichen(lauf, form, QStringLiteral("quiz"), QStringLiteral("klein"));
}

void AbbildTest::theListsOfTheQuizForm() {
    Abbildlauf lauf;
    QWidget* form = lauf.NeuesQuizformular();
    for (const auto& [panel, feld, zustand] : {std::tuple{"pnlSpezial(7)", "cmbSpezial", "liste_spezial"},
                                               std::tuple{"pnlWissen(2)", "cmbWissen", "liste_wissen"}}) {
        QTest::mouseClick(Finden(form, QLatin1String(panel)), Qt::LeftButton);
        auto* liste = Finden<QComboBox>(form, QLatin1String(feld));
        QTRY_VERIFY(liste->view()->isVisible());
        FensterVergleichen(liste, QStringLiteral("frmFKFragen_") + QLatin1String(zustand));
        QTest::keyClick(liste->view(), Qt::Key_Escape);
        QTRY_VERIFY(!liste->view()->isVisible());
    }
}

void AbbildTest::aNewTestForm() {
    Abbildlauf lauf;
    QWidget* form = lauf.NeuesTestformular();
    FormVergleichen(lauf, form, QStringLiteral("test"), QStringLiteral("leer"));
    FensterVergleichen(Fenster(QStringLiteral("frmFKformulare")),
                       QStringLiteral("frmFKformulare_test_in_arbeit"));
    Abbildlauf::Druecken(form, QStringLiteral("cmdFach"));
    auto* liste = Finden<QComboBox>(form, QStringLiteral("cmbFach"));
    QTRY_VERIFY(liste->view()->isVisible());
    FensterVergleichen(liste, QStringLiteral("frmHBFragen_liste_faecher"));
    QTest::keyClick(liste->view(), Qt::Key_Escape);
    QTRY_VERIFY(!liste->view()->isVisible());
}

void AbbildTest::aTestFormFromAFile() {
    Abbildlauf lauf;
    QWidget* form = lauf.TestformularOeffnen(QStringLiteral("Erste-Hilfe.FKR"));
    FormVergleichen(lauf, form, QStringLiteral("test"), QStringLiteral("geoeffnet"));
    Tippen(Finden(form, QStringLiteral("txtFrage(1)")), QStringLiteral("Eine andere Frage"));
    Finden(form, QStringLiteral("txtFrage(2)"))->setFocus();
    FormVergleichen(lauf, form, QStringLiteral("test"), QStringLiteral("geaendert"));
}

void AbbildTest::theSelectionDialog() {
    Abbildlauf lauf;
    lauf.NeuesQuizformular();
    lauf.Druecken(QStringLiteral("cmdAuswahl(0)"));
    QWidget* auswahl = FensterAbwarten(QStringLiteral("frmAuswahl"));
    FensterVergleichen(auswahl, QStringLiteral("frmAuswahl_frisch"));
    Waehlen(auswahl, "cmbThemen", 8);
    Waehlen(auswahl, "cmbUnter", 0);
    FensterVergleichen(auswahl, QStringLiteral("frmAuswahl_unterthema"));
    Waehlen(auswahl, "cmbFrage", 1);
    FensterVergleichen(auswahl, QStringLiteral("frmAuswahl_frage"));
}

void AbbildTest::theEditor() {
    const Abbildlauf lauf;
    lauf.Druecken(QStringLiteral("cmdEdit"));
    QWidget* editor = FensterAbwarten(QStringLiteral("frmEditor"));
    FensterVergleichen(editor, QStringLiteral("frmEditor_leer"));
    FensterVergleichen(lauf.haupt(), QStringLiteral("frmMDI_editor"));
    lauf.programm().ordner().schreiben(QStringLiteral("WISSEN/KN.TXT"),
                                       "Knoten\r\n1\r\nWas h\xE4lt fest?\r\nPalstek\r\n10\r\n");
    Dialogfolge dialoge;
    DateidialogErwarten(dialoge, {}, QStringLiteral("KN.TXT"), QStringLiteral("cmdLaden"));
    Abbildlauf::Druecken(editor, QStringLiteral("cmdDatei(1)"));
    QVERIFY(dialoge.fertig());
    FensterVergleichen(editor, QStringLiteral("frmEditor_datei"));
    Tippen(Finden(editor, QStringLiteral("txtNotiz")), QStringLiteral("Neu "));
    FensterVergleichen(editor, QStringLiteral("frmEditor_geaendert"));
}

void AbbildTest::theRuleWindow() {
#ifdef FELDKRANZ_MIT_PDF
    const Zusatzordner zusatz;
    const Abbildlauf lauf;
    lauf.programm().ordner().schreiben(QStringLiteral("REGEL/Feldkranz.pdf"), Dokument());
    lauf.Druecken(QStringLiteral("cmdSpielregel"));
    FensterVergleichen(FensterAbwarten(QStringLiteral("frmBrowser")), QStringLiteral("frmBrowser"));
#else
    QSKIP("Built without the plug-in");
#endif
}

void AbbildTest::theRuleWindowWithoutItsPlugIn() {
    const Zusatzordner zusatz(nirgendwo);
    const Abbildlauf lauf;
    lauf.programm().ordner().schreiben(QStringLiteral("REGEL/Feldkranz.pdf"), Dokument());
    lauf.Druecken(QStringLiteral("cmdSpielregel"));
    FensterVergleichen(FensterAbwarten(QStringLiteral("frmBrowser")), QStringLiteral("frmBrowser_ohne"));
}

void AbbildTest::theHomepageWindowWithoutItsPlugIn() {
    const Zusatzordner zusatz(nirgendwo);
    const Abbildlauf lauf;
    lauf.Druecken(QStringLiteral("cmdHomepage"));
    FensterVergleichen(FensterAbwarten(QStringLiteral("frmHomepage")), QStringLiteral("frmHomepage"));
}

QTEST_MAIN(AbbildTest)
#include "abbild_test.moc"
