// Text from a file is text: whatever it holds, no label, message or tip makes italics of it.
#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "forms/oeffnen.h"
#include "mainwindow/frmMDI.h"
#include "persistence/formulardatei.h"
#include "rules/spielwerte.h"
#include "testform/frmHBFragen.h"
#include "testform/hbformular.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programm.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltip.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

namespace {

const QString zeichen = QStringLiteral("<i>schräg</i>");
const std::string schraeg = "<i>schräg</i>";
const QString datei = QStringLiteral("TEST/<i>schräg<hr>.FKR");

// Labels that would take their text for markup, anywhere in the program.
QStringList Verfuehrte() {
    QStringList namen;
    for (const QWidget* teil : QApplication::allWidgets()) {
        const auto* schild = qobject_cast<const QLabel*>(teil);
        if (schild != nullptr && schild->textFormat() != Qt::PlainText &&
            Qt::mightBeRichText(schild->text())) {
            namen << teil->objectName() + u' ' + schild->text();
        }
    }
    return namen;
}

QByteArray Testdatei() {
    Formularwerte werte;
    werte.art = Formart::Test;
    werte.test.HBKopf1 = werte.test.HBKopf2 = werte.test.HBKopf3 = werte.test.HBFach = " " + schraeg;
    werte.test.HBFrageText.fill(schraeg);
    werte.test.HBAntwortText.fill(schraeg);
    return QByteArray::fromStdString(FormularBytes(Formart::Test, werte));
}

} // namespace

class KlartextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theHeadOfATestFormStandsAsTheFileHasIt();
    void noLabelOfAnyWindowTakesAFilesTextForMarkup();
    void messagesShowNamesOfFilesLetterByLetter();
    void theTipOfAQuestionInItsOpenListShowsItLetterByLetter();
    void tipsAndStatusLineShowAPathLetterByLetter();
};

void KlartextTest::theHeadOfATestFormStandsAsTheFileHasIt() {
    const Programm programm;
    programm.ordner().schreiben(datei, Testdatei());
    FormularLaden(Stand.AppPfad + "\\TEST\\<i>schräg<hr>.FKR");
    const frmHBFragen* form = HBFragenOffen();
    QVERIFY(form != nullptr);
    QLabel* gruppe = form->lblGruppe;
    QCOMPARE(gruppe->text(), u' ' + zeichen);
    // As wide as all its letters, those of the markup too.
    QVERIFY(gruppe->sizeHint().width() >= QFontMetrics(gruppe->font()).horizontalAdvance(gruppe->text()));
}

void KlartextTest::noLabelOfAnyWindowTakesAFilesTextForMarkup() {
    const Programm programm;
    programm.ordner().schreiben(datei, Testdatei());
    FormularLaden(Stand.AppPfad + "\\TEST\\<i>schräg<hr>.FKR");
    AuswahlZeigen();
    auto* liste = FensterAbwarten(QStringLiteral("frmFKformulare"));
    QVERIFY(liste->isVisible());
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmDatei"),
                     std::nullopt,
                     std::nullopt,
                     {QStringLiteral("cmdAbbrechen")},
                     [](const QDialog&) { QCOMPARE(Verfuehrte(), QStringList()); }});
    dialoge.erwarte(
        {QStringLiteral("frmMeldung"), {}, {}, {QStringLiteral("cmdKenntnis")}}); // nothing chosen
    FormularOeffnen();
    QVERIFY(dialoge.fertig());
    QCOMPARE(Verfuehrte(), QStringList());
}

void KlartextTest::messagesShowNamesOfFilesLetterByLetter() {
    const Programm programm;
    const auto pruefen = [](const QDialog&) { QCOMPARE(Verfuehrte(), QStringList()); };
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("frmMeldung"), {}, {}, {QStringLiteral("cmdKenntnis")}, pruefen});
    dialoge.erwarte({QStringLiteral("frmNachricht"), {}, {}, {QStringLiteral("cmdAntwort(0)")}, pruefen});
    dialoge.erwarte({QStringLiteral("frmInput"), {}, {}, {QStringLiteral("cmdOK")}, pruefen});
    dialoge.erwarte(
        {QStringLiteral("QMessageBox"), {}, {}, {QStringLiteral("OK")}, [](const QDialog& dialog) {
             QCOMPARE(Finden<QLabel>(&dialog, QStringLiteral("qt_msgbox_label"))->textFormat(),
                      Qt::PlainText);
         }});
    Meldung({1, "Die Datei {} fehlt.", "<b>1</b>", "Gut"}, {schraeg});
    Nachricht({1, "Frage", "Soll ich {} nehmen ?", 4, 1}, {schraeg});
    Eingabe(1, "Titel", "Name für " + schraeg, schraeg);
    Systemkasten(Kastenart::Schlicht, "Feldkranz", schraeg);
    QVERIFY(dialoge.fertig());
}

void KlartextTest::theTipOfAQuestionInItsOpenListShowsItLetterByLetter() {
    const Programm programm;
    AuswahlZeigen();
    QWidget* fenster = FensterAbwarten(QStringLiteral("frmAuswahl"));
    QComboBox probe(fenster);
    probe.setObjectName(QStringLiteral("cmbProbe"));
    probe.addItem(QStringLiteral("kurz"));
    probe.setItemData(0, zeichen, Qt::ToolTipRole);
    probe.setGeometry(0, 0, 120, 24);
    probe.show();
    probe.showPopup();
    QTRY_VERIFY(probe.view()->isVisible());
    const QPoint stelle = probe.view()->visualRect(probe.model()->index(0, 0)).center();
    QHelpEvent frage(QEvent::ToolTip, stelle, probe.view()->viewport()->mapToGlobal(stelle));
    QCoreApplication::sendEvent(probe.view()->viewport(), &frage);
    QTRY_VERIFY(QToolTip::isVisible());
    QTextDocument gezeigt;
    if (Qt::mightBeRichText(QToolTip::text())) {
        gezeigt.setHtml(QToolTip::text());
    } else {
        gezeigt.setPlainText(QToolTip::text());
    }
    QCOMPARE(gezeigt.toPlainText(), zeichen);
    QToolTip::hideText();
    probe.hidePopup();
}

// A tip is painted as the text it is; the window's own text must not be one that another would take for
// markup.
void KlartextTest::tipsAndStatusLineShowAPathLetterByLetter() {
    const Programm programm;
    QWidget* panel = Finden(programm.haupt(), QStringLiteral("pnlHilfe"));
    HilfeDatei(" {} liegt in {}", "\\<b>\\<i>schräg<hr>.pdf");
    maus::Bewegen(panel, QPoint(30, 10));
    QTRY_VERIFY(Tippobjekt(*panel).sichtbar());
    QVERIFY(Tippobjekt(*panel).tippfenster()->text().endsWith(QStringLiteral("\\<b>\\<i>schräg<hr>.pdf")));
    QVERIFY(Tippobjekt(*panel).tippfenster()->findChildren<QLabel*>().isEmpty()); // painted line by line
}

QTEST_MAIN(KlartextTest)
#include "klartext_test.moc"
