// Texts stand out at least 4.5 to 1 and symbols 3 to 1, measured in the palette and in pictures of the
// windows. What is out of use is left out, as are the colours of the special fields.
#include "tests/core/kontrasthilfe.h"

#include "catalogue/auswahl.h"
#include "core/hauptfenster.h"
#include "dialogs/eingabe.h"
#include "dialogs/meldung.h"
#include "filetools/dateitexte.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/frmMDI.h"
#include "mainwindow/texte.h"
#include "testform/frmHBFragen.h"
#include "tests/core/platzhilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/quizform/formhilfe.h"

#include <QMdiSubWindow>
#include <QToolTip>

namespace {

constexpr double text = 4.5;
constexpr double symbol = 3.0;

bool HatText(const QWidget* teil) {
    const auto* taste = qobject_cast<const QAbstractButton*>(teil);
    return (taste != nullptr && !taste->text().isEmpty()) || qobject_cast<const QLabel*>(teil) != nullptr ||
           qobject_cast<const QComboBox*>(teil) != nullptr;
}

// A symbol fills most of its button, so the ground is what lies around it.
double Gemessen(const QWidget* teil, const QImage& bild, QRect ort) {
    const QImage stelle = bild.copy(ort);
    const auto* taste = qobject_cast<const QAbstractButton*>(teil);
    if (taste != nullptr && taste->text().size() == 1) { // a plus is too thin for its own colour
        return Kontrast(teil->palette().color(QPalette::ButtonText).rgb(), Grundfarbe(stelle));
    }
    return Bildkontrast(stelle, HatText(teil) ? Grundfarbe(stelle) : stelle.pixel(0, 0));
}

// In a picture of the window, so that what shines through counts as well.
void Messen(QWidget* fenster) {
    const QImage bild = fenster->grab().toImage();
    const double dichte = bild.devicePixelRatio();
    int gemessen = 0;
    for (const QWidget* teil : Steuerelemente(fenster)) {
        const auto* kasten = qobject_cast<const QComboBox*>(teil);
        if (!teil->isEnabled() || (kasten != nullptr && kasten->currentText().isEmpty())) {
            continue;
        }
        const auto* taste = qobject_cast<const QAbstractButton*>(teil);
        if (!HatText(teil) && (taste == nullptr || taste->icon().isNull())) {
            continue;
        }
        // Without the frame, which is no text.
        const int rand = qobject_cast<const QLabel*>(teil) != nullptr ? -2 : 3;
        const QRect ort = Gefuellt(teil, fenster).adjusted(rand, rand, -rand, -rand);
        const QRect stelle(ort.topLeft() * dichte, ort.size() * dichte);
        const double kontrast = Gemessen(teil, bild, stelle);
        ++gemessen;
        QVERIFY2(kontrast >= (HatText(teil) ? text : symbol),
                 Bezeichnet(teil) + " " + QByteArray::number(kontrast, 'f', 2));
    }
    QVERIFY(gemessen > 0);
}

ErwarteterDialog Messend(const char* name, const QString& taste) {
    return {
        QLatin1String(name), std::nullopt, std::nullopt, {taste}, [](QDialog& dialog) { Messen(&dialog); }};
}

} // namespace

class KontrastTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theRatioIsThatOfItsDefinition();
    void thePaletteInAllItsPairs();
    void theMainWindowAndTheQuizForm();
    void theTestForm();
    void theFlagsAndTheMiniature();
    void theDialogs();
    void theSettingsOnEachPage();
    void theSelectionDialogAndTheListOfForms();
    void theWindowsOfTheExtrasMenu_data();
    void theWindowsOfTheExtrasMenu();
    void theEditor();
};

void KontrastTest::theRatioIsThatOfItsDefinition() {
    QCOMPARE(Kontrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21.0);
    QCOMPARE(Kontrast(qRgb(255, 255, 255), qRgb(255, 255, 255)), 1.0);
    QVERIFY(std::abs(Kontrast(qRgb(0x77, 0x77, 0x77), qRgb(255, 255, 255)) - 4.48) < 0.005);
}

void KontrastTest::thePaletteInAllItsPairs() {
    const Programm programm;
    for (const QPalette& palette : {QApplication::palette(), QToolTip::palette()}) {
        for (const auto gruppe : {QPalette::Active, QPalette::Inactive}) {
            for (const auto& [schrift, grund] : {std::pair{QPalette::WindowText, QPalette::Window},
                                                 {QPalette::Text, QPalette::Base},
                                                 {QPalette::Text, QPalette::AlternateBase},
                                                 {QPalette::ButtonText, QPalette::Button},
                                                 {QPalette::HighlightedText, QPalette::Highlight},
                                                 {QPalette::ToolTipText, QPalette::ToolTipBase},
                                                 {QPalette::Link, QPalette::Base},
                                                 {QPalette::PlaceholderText, QPalette::Base}}) {
                const double kontrast =
                    Kontrast(palette.color(gruppe, schrift).rgb(), palette.color(gruppe, grund).rgb());
                QVERIFY2(kontrast >= text, qPrintable(QStringLiteral("%1 on %2: %3")
                                                          .arg(static_cast<int>(schrift))
                                                          .arg(static_cast<int>(grund))
                                                          .arg(kontrast)));
            }
        }
    }
}

void KontrastTest::theMainWindowAndTheQuizForm() {
    Programm programm;
    programm.NeuesQuizformular();
    Messen(MDIFenster());
    Messen(FKFragenOffen());
}

void KontrastTest::theTestForm() {
    Programm programm;
    auto* form = programm.NeuesTestformular();
    Messen(MDIFenster());
    Messen(form);
}

void KontrastTest::theFlagsAndTheMiniature() {
    Programm programm;
    programm.NeuesQuizformular();
    for (const bool rot : {false, true}) {
        FormStatusSetzen(rot);
        const QString name =
            rot ? QStringLiteral("picEingabeFlagRot") : QStringLiteral("picEingabeFlagGruen");
        QWidget* flagge = Finden(MDIFenster(), name);
        QTRY_VERIFY(flagge->isVisible());
        const QRect ort(flagge->mapTo(MDIFenster(), QPoint(0, 0)), flagge->size());
        const QImage bild = MDIFenster()->grab(ort).toImage();
        const double kontrast = Bildkontrast(bild, bild.pixel(0, 0));
        QVERIFY2(kontrast >= symbol, qPrintable(name + QString::number(kontrast)));
    }
    FormStatusSetzen(false);
}

void KontrastTest::theDialogs() {
    const Programm programm;
    Dialogfolge dialoge;
    dialoge.erwarte(Messend("frmMeldung", QStringLiteral("cmdKenntnis")));
    Meldung(kerntexte::hilfeTaste);
    dialoge.erwarte(Messend("frmNachricht", QStringLiteral("cmdAntwort(2)")));
    Nachricht(kerntexte::schliessenGeaendert);
    dialoge.erwarte(Messend("frmInput", QStringLiteral("cmdAbbruch")));
    Eingabe(dateitexte::kopierBild, dateitexte::kopierTitel, dateitexte::kopierFrage, "LAGER");
    dialoge.erwarte(Messend("frmDatei", QStringLiteral("cmdAbbrechen")));
    dialoge.meldung(QStringLiteral("Keine Datei ausgewählt !"), QStringLiteral("Nicht doch"));
    Finden<QAbstractButton>(MDIFenster(), QStringLiteral("cmdLaden"))->click();
    QVERIFY(dialoge.fertig());
}

void KontrastTest::theSettingsOnEachPage() {
    VorgabenAnsehen([](QDialog& dialog) { Messen(&dialog); });
}

void KontrastTest::theSelectionDialogAndTheListOfForms() {
    Programm programm;
    programm.NeuesQuizformular();
    AuswahlZeigen();
    Messen(FensterAbwarten(QStringLiteral("frmAuswahl")));
    FormularlisteZeigen();
    Messen(FormularlisteOffen());
}

void KontrastTest::theWindowsOfTheExtrasMenu_data() {
    ExtrasfensterZeilen();
}

void KontrastTest::theWindowsOfTheExtrasMenu() {
    Programm programm;
    Messen(ExtrasfensterOeffnen(programm));
}

void KontrastTest::theEditor() {
    const Programm programm;
    Finden<QAbstractButton>(MDIFenster(), QStringLiteral("cmdEdit"))->click();
    QTRY_VERIFY(FensterOderNichts(QStringLiteral("frmEditor")) != nullptr);
    Messen(Fenster(QStringLiteral("frmEditor")));
    delete FensterOderNichts(QStringLiteral("frmEditor"));
}

QTEST_MAIN(KontrastTest)
#include "kontrast_test.moc"
