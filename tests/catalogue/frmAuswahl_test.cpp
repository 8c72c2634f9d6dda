#include "catalogue/frmAuswahl.h"

#include "catalogue/auswahl.h"
#include "catalogue/auswahltexte.h"
#include "catalogue/themen.h"
#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/programmstand.h"
#include "core/ziehen.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/maus.h"
#include "tests/hilfe/programmordner.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>
#include <utility>

namespace {

// What was dragged last, kept while the next press may replace it.
Ziehwert LetzterZug() {
    return Gezogen();
}

QByteArray Datei(const QStringList& zeilen) {
    return (zeilen.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toLatin1();
}

// A list of twenty places behind its header.
QByteArray Liste(QStringList namen) {
    while (namen.size() < anzahlListenplaetze) {
        namen << QString();
    }
    return Datei(QStringList{QStringLiteral("Kopf")} + namen);
}

// A sub-theme list is read token by token: blank places need their quotes.
QByteArray Unterliste(QStringList namen) {
    for (QString& name : namen) {
        name = QLatin1Char('"') + name + QLatin1Char('"');
    }
    while (namen.size() < anzahlListenplaetze) {
        namen << QStringLiteral("\"\"");
    }
    return Datei(QStringList{QStringLiteral("Kopf")} + namen);
}

// A drag that another window began, dropped on the trash field.
void InDenMuell(Formart herkunft, int feld) {
    QLabel quelle;
    QVERIFY(OhneMausAufnehmen([&] {
        Ziehen(&quelle, {Zugart::Verschieben, herkunft, feld, "Eine Frage", ""});
    }));
    QVERIFY(OhneMausAblegen(Finden(Fenster(QStringLiteral("frmAuswahl")), QStringLiteral("fraMuell"))));
}

const QString muellTitel = QStringLiteral("Frage und Antwort löschen");
const QString muellText = QStringLiteral("Soll ich die Frage und Antwort wirklich löschen ?");
const QString sehIchEin = QStringLiteral("Das sehe ich ein.");
const QString ausDerAuswahl = QStringLiteral("Aus der Fragenauswahl kann ich so keine Fragen löschen.");

} // namespace

class AuswahlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { OberflaecheEinrichten(); }
    void init();
    void cleanup();

    void allTwentyThemesStandInTheListTheEmptyOnesToo();
    void pickingAThemeFillsTheSubThemes();
    void pickingABlankThemeLeadsToTheMessageOfTheSubThemeReader();
    void txtFrageStaysEmptyAfterASubThemeIsPickedUntilAQuestionIsPicked();
    void theFourListsAreOneTable();
    void pickingASubThemeEmptiesListsAndFields();
    void twoQuestionsWithTheSameTextShowTheAnswerOfTheLaterOneBothTimes();
    void aSubThemeWithoutAKnownThemeLoadsNothing();
    void pickingWithTheKeyboardPicksOnce();
    void aPressOnAnEmptyTxtFrageStartsADragAllTheSame();
    void aRightPressStartsNothing();
    void theBackgroundTheFrameAndTheButtonAreNoTargets();
    void aQuestionOfThisDialogOnTheTrashChangesNothingAndShowsTheMessage();
    void theTrashAsksBeforeItThrowsAQuestionOfAFormAway();
    void abbrechenAndTheFrameKeepTheQuestion();
    void theSheetFallsThroughSevenPicturesAndIsGone();
    void blattNrNeverGoesPastSeven();
    void theDialogIsASingleWindowAndComesBackEmpty();
    void everyControlTellsItsTip();
    void theWindowNeverLeavesTheScreen_data();
    void theWindowNeverLeavesTheScreen();
    void returnHoldsTheQuestionForTheKeyboard();
    void escapeClosesTheDialog();
    void aHundredThousandQuestionsAreThereToPick();

private:
    QComboBox* liste(const char* name) const { return Finden<QComboBox>(fenster_, QLatin1String(name)); }
    QString zeile(const char* name) const { return Finden<QLineEdit>(fenster_, QLatin1String(name))->text(); }
    QString feld(const char* name) const {
        return Finden<QPlainTextEdit>(fenster_, QLatin1String(name))->toPlainText();
    }
    void Waehlen(const char* name, const QString& text) const {
        const int index = liste(name)->findText(text);
        QVERIFY2(index >= 0, qPrintable(text));
        liste(name)->setCurrentIndex(index);
    }
    void BerufeLaden() const;

    std::unique_ptr<Programmordner> ordner_;
    QPointer<QWidget> fenster_;
};

void AuswahlTest::init() {
    Katalog.ThemenListe.fill({});
    Katalog.UnterthemenListe.fill({});
    FormStatusSetzen(false);
    ordner_ = std::make_unique<Programmordner>();
    ordner_->schreiben(
        QStringLiteral("WISSEN/WISSEN.TXT"),
        Liste({QStringLiteral("Land"), QStringLiteral("Leute"), QString(), QStringLiteral("Sprüche")}));
    ordner_->schreiben(QStringLiteral("WISSEN/LEUTE/W_LEUTE.TXT"), Unterliste({QStringLiteral("Berufe")}));
    ordner_->schreiben(QStringLiteral("WISSEN/LAND/W_LAND.TXT"), Unterliste({QStringLiteral("Afrika")}));
    AuswahlZeigen();
    fenster_ = FensterAbwarten(QStringLiteral("frmAuswahl"));
    // The window manager has put its frame around it and the mouse finds it where it says it is.
    QTRY_COMPARE(QApplication::topLevelAt(fenster_->mapToGlobal(QPoint(3, 3))), fenster_.data());
}

void AuswahlTest::cleanup() {
    OhneMausLoslassen();
    if (fenster_ != nullptr) {
        fenster_->close();
        QTRY_VERIFY(fenster_ == nullptr);
    }
    BildschirmgroesseVorgeben({});
    ordner_.reset();
}

// The sub-themes and files of the table: the first one of the theme is good enough.
void AuswahlTest::BerufeLaden() const {
    const Thema* leute = ThemaSuchen("Leute");
    QVERIFY(leute != nullptr && !leute->unterthemen.empty());
    const QString unter = Anzeige(leute->unterthemen.front().name);
    ordner_->schreiben(QStringLiteral("WISSEN/LEUTE/W_LEUTE.TXT"), Unterliste({unter}));
    ordner_->schreiben(QStringLiteral("WISSEN/LEUTE/") + Anzeige(leute->unterthemen.front().datei),
                       Datei({"Kopf", "1", "Wer backt Brot?", "Der Bäcker", "2", "2", "Wer fährt zur See?",
                              "Der Matrose", "3", "3", "Wer backt Brot?", "Die Bäckerin", "4"}));
    Waehlen("cmbThemen", QStringLiteral("Leute"));
    Waehlen("cmbUnter", unter);
}

void AuswahlTest::allTwentyThemesStandInTheListTheEmptyOnesToo() {
    QCOMPARE(fenster_->windowTitle(), QStringLiteral(" Fragen-Auswahl"));
    QCOMPARE(liste("cmbThemen")->count(), 20);
    QCOMPARE(liste("cmbThemen")->itemText(0), QStringLiteral("Land"));
    QCOMPARE(liste("cmbThemen")->itemText(2), QString());
    QCOMPARE(liste("cmbThemen")->itemText(3), QStringLiteral("Sprüche"));
    QCOMPARE(liste("cmbThemen")->currentIndex(), -1);
    QCOMPARE(liste("cmbUnter")->count(), 0);
    QCOMPARE(liste("cmbFrage")->count(), 0);
    for (const char* name : {"cmbNr", "cmbAntwort", "cmbPunkte"}) {
        QVERIFY(!liste(name)->isVisible());
    }
}

void AuswahlTest::pickingAThemeFillsTheSubThemes() {
    Waehlen("cmbThemen", QStringLiteral("Leute"));
    QCOMPARE(liste("cmbUnter")->count(), 20);
    QCOMPARE(liste("cmbUnter")->itemText(0), QStringLiteral("Berufe"));
    QCOMPARE(liste("cmbUnter")->itemText(1), QString());
    QCOMPARE(liste("cmbUnter")->currentIndex(), -1);
}

void AuswahlTest::pickingABlankThemeLeadsToTheMessageOfTheSubThemeReader() {
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich habe Probleme mit den Unterthemen zu  [  ] !\n"
                                   "( Wahrscheinlich fehlt die entsprechende Datei\nim Ordner [ ") +
                        Anzeige(Stand.AppPfad) + QStringLiteral("\\WISSEN ] )"),
                    QStringLiteral("Ich sehe nach !"));
    liste("cmbThemen")->setCurrentIndex(2);
    QVERIFY(dialoge.fertig());
    QCOMPARE(liste("cmbUnter")->count(), 20);
}

void AuswahlTest::txtFrageStaysEmptyAfterASubThemeIsPickedUntilAQuestionIsPicked() {
    BerufeLaden();
    QCOMPARE(feld("txtFrage"), QString());
    QCOMPARE(liste("cmbFrage")->currentIndex(), -1);
    liste("cmbFrage")->setCurrentIndex(1);
    QCOMPARE(feld("txtFrage"), QStringLiteral("Wer fährt zur See?"));
    QCOMPARE(feld("txtAntwort"), QStringLiteral("Der Matrose"));
    QCOMPARE(zeile("txtNr"), QStringLiteral("2"));
    QCOMPARE(zeile("txtPunkte"), QStringLiteral("3"));
    QCOMPARE(AuswahlAntwort(), std::string("Der Matrose"));
    BildVon(fenster_, QStringLiteral("frmAuswahl"));
}

void AuswahlTest::theFourListsAreOneTable() {
    BerufeLaden();
    const QStringList erwartet{"1|Wer backt Brot?|Der Bäcker|2", "2|Wer fährt zur See?|Der Matrose|3",
                               "3|Wer backt Brot?|Die Bäckerin|4"};
    QStringList tabelle;
    for (int i = 0; i < liste("cmbFrage")->count(); ++i) {
        tabelle << QStringList{liste("cmbNr")->itemText(i), liste("cmbFrage")->itemText(i),
                               liste("cmbAntwort")->itemText(i), liste("cmbPunkte")->itemText(i)}
                       .join(QLatin1Char('|'));
    }
    QCOMPARE(tabelle, erwartet);
}

void AuswahlTest::pickingASubThemeEmptiesListsAndFields() {
    BerufeLaden();
    liste("cmbFrage")->setCurrentIndex(0);
    Dialogfolge dialoge;
    dialoge.meldung(QStringLiteral("Ich habe Probleme mit den Unterthemen zu\n[  ] !"),
                    QStringLiteral("Ich sehe nach !"));
    liste("cmbUnter")->setCurrentIndex(1); // a blank place, which no row of the table knows
    QVERIFY(dialoge.fertig());
    for (const char* name : {"cmbNr", "cmbFrage", "cmbAntwort", "cmbPunkte"}) {
        QCOMPARE(liste(name)->count(), 0);
    }
    for (const char* name : {"txtNr", "txtPunkte"}) {
        QCOMPARE(zeile(name), QString());
    }
    for (const char* name : {"txtFrage", "txtAntwort"}) {
        QCOMPARE(feld(name), QString());
    }
}

void AuswahlTest::twoQuestionsWithTheSameTextShowTheAnswerOfTheLaterOneBothTimes() {
    BerufeLaden();
    for (const int index : {0, 2}) {
        liste("cmbFrage")->setCurrentIndex(index);
        QCOMPARE(feld("txtFrage"), QStringLiteral("Wer backt Brot?"));
        QCOMPARE(feld("txtAntwort"), QStringLiteral("Die Bäckerin"));
        QCOMPARE(zeile("txtNr"), QStringLiteral("3"));
        QCOMPARE(zeile("txtPunkte"), QStringLiteral("4"));
    }
}

void AuswahlTest::aSubThemeWithoutAKnownThemeLoadsNothing() {
    BerufeLaden();
    const QString unter = liste("cmbUnter")->currentText();
    Katalog.ThemenListe[1] = "Leute "; // not one of the sixteen names
    {
        const QSignalBlocker still(liste("cmbThemen"));
        liste("cmbThemen")->setItemText(0, QStringLiteral("Leute "));
        liste("cmbThemen")->setCurrentIndex(0);
    }
    QCoreApplication::processEvents(); // a pick by hand never comes within the one before
    Q_EMIT liste("cmbUnter")->activated(liste("cmbUnter")->currentIndex());
    QCOMPARE(liste("cmbFrage")->count(), 0);
    QCOMPARE(liste("cmbUnter")->currentText(), unter);
}

void AuswahlTest::pickingWithTheKeyboardPicksOnce() {
    Dialogfolge dialoge;
    liste("cmbThemen")->setFocus();
    QTest::keyClick(liste("cmbThemen"), Qt::Key_Down);
    QTest::keyClick(liste("cmbThemen"), Qt::Key_Down);
    QCOMPARE(liste("cmbUnter")->itemText(0), QStringLiteral("Berufe"));
    // The blank place: one message, not one for the change and one for the pick.
    dialoge.erwarte({QStringLiteral("frmMeldung"), {}, {}, {QStringLiteral("cmdKenntnis")}});
    QTest::keyClick(liste("cmbThemen"), Qt::Key_Down);
    QVERIFY(dialoge.fertig());
}

void AuswahlTest::aPressOnAnEmptyTxtFrageStartsADragAllTheSame() {
    auto* txtFrage = Finden<QPlainTextEdit>(fenster_, QStringLiteral("txtFrage"));
    bool gezogen = false;
    maus::Ziehen(txtFrage, txtFrage, Qt::NoModifier,
                 [&] { return gezogen = AktuellesZiehBild() == ZiehBild::Aufnehmen; });
    QVERIFY(gezogen);
    QVERIFY(Gezogen() == (Ziehwert{Zugart::Auswahl, Formart::Keine, 0, "", ""}));
}

void AuswahlTest::aRightPressStartsNothing() {
    const Ziehwert vorher = LetzterZug();
    auto* txtFrage = Finden<QPlainTextEdit>(fenster_, QStringLiteral("txtFrage"));
    QTest::mousePress(txtFrage->viewport(), Qt::RightButton);
    QTest::mouseRelease(txtFrage->viewport(), Qt::RightButton);
    QVERIFY(Gezogen() == vorher);
    QCOMPARE(AktuellesZiehBild(), ZiehBild::Keins);
}

void AuswahlTest::theBackgroundTheFrameAndTheButtonAreNoTargets() {
    auto* txtFrage = Finden<QPlainTextEdit>(fenster_, QStringLiteral("txtFrage"));
    for (const char* name : {"cmdAbbruch", "txtAntwort", "cmbThemen", "lblUnter"}) {
        bool nein = false;
        maus::Ziehen(txtFrage, Finden(fenster_, QLatin1String(name)), Qt::NoModifier,
                     [&] { return nein = AktuellesZiehBild() == ZiehBild::Nein; });
        QVERIFY2(nein, name);
    }
    QCOMPARE(feld("txtAntwort"), QString());
}

void AuswahlTest::aQuestionOfThisDialogOnTheTrashChangesNothingAndShowsTheMessage() {
    BerufeLaden();
    liste("cmbFrage")->setCurrentIndex(1);
    Dialogfolge dialoge;
    dialoge.meldung(ausDerAuswahl, sehIchEin);
    bool platzt = false;
    maus::Ziehen(Finden(fenster_, QStringLiteral("txtFrage")), Finden(fenster_, QStringLiteral("fraMuell")),
                 Qt::NoModifier, [&] { return platzt = AktuellesZiehBild() == ZiehBild::Atom; });
    QVERIFY(platzt);
    QTRY_VERIFY(dialoge.fertig());
    QCOMPARE(feld("txtFrage"), QStringLiteral("Wer fährt zur See?"));
    QCOMPARE(feld("txtAntwort"), QStringLiteral("Der Matrose"));
    QVERIFY(!Stand.FormGeaendert);
    QCOMPARE(Finden(fenster_, QStringLiteral("picMuell"))->property("BlattNr").toInt(), 7);
}

void AuswahlTest::theTrashAsksBeforeItThrowsAQuestionOfAFormAway() {
    for (const auto& [herkunft, typ] :
         {std::pair{Formart::Quiz, Formart::Quiz}, std::pair{Formart::Test, Formart::Test},
          std::pair{Formart::Quiz, Formart::Keine}}) {
        FormStatusSetzen(false);
        Stand.FormTyp = typ;
        Dialogfolge dialoge;
        dialoge.frage(muellTitel, muellText, 6);
        InDenMuell(herkunft, 0);
        QVERIFY(dialoge.fertig());
        // Without an open form there is nothing that could be marked.
        QCOMPARE(Stand.FormGeaendert, Stand.FormTyp != Formart::Keine);
    }
    Stand.FormTyp = Formart::Keine;
}

void AuswahlTest::abbrechenAndTheFrameKeepTheQuestion() {
    for (const QString& taste : {QStringLiteral("cmdAntwort(2)"), durchRahmen}) {
        Dialogfolge dialoge;
        dialoge.erwarte({QStringLiteral("frmNachricht"), {}, muellText, {taste}});
        InDenMuell(Formart::Quiz, 3);
        QVERIFY(dialoge.fertig());
        QVERIFY(!Stand.FormGeaendert);
        QCOMPARE(Finden(fenster_, QStringLiteral("picMuell"))->property("BlattNr").toInt(), 7);
    }
}

void AuswahlTest::theSheetFallsThroughSevenPicturesAndIsGone() {
    class Zeuge : public QObject {
    public:
        QStringList gezeigt;
        bool eventFilter(QObject* objekt, QEvent* ereignis) override {
            if (ereignis->type() == QEvent::Show) {
                gezeigt << objekt->objectName();
            }
            return false;
        }
    } zeuge;
    QStringList erwartet;
    QList<QWidget*> blaetter;
    for (int i = 0; i < 7; ++i) {
        blaetter << Finden(fenster_, QStringLiteral("picBlatt"), i);
        blaetter.last()->installEventFilter(&zeuge);
        QVERIFY(!blaetter.last()->isVisible());
        erwartet << blaetter.last()->objectName();
    }
    Dialogfolge dialoge;
    dialoge.frage(muellTitel, muellText, 6);
    InDenMuell(Formart::Quiz, 0);
    QTRY_COMPARE(zeuge.gezeigt, erwartet);
    QTRY_VERIFY(std::ranges::none_of(blaetter, [](const QWidget* blatt) { return blatt->isVisible(); }));
}

void AuswahlTest::blattNrNeverGoesPastSeven() {
    QWidget* picMuell = Finden(fenster_, QStringLiteral("picMuell"));
    auto* timer1 = Finden<QTimer>(fenster_, QStringLiteral("Timer1"));
    QVERIFY(timer1->isActive());
    QSignalSpy ticks(timer1, &QTimer::timeout);
    static_cast<frmAuswahl*>(fenster_.data())->BlattFallenLassen();
    QCOMPARE(picMuell->property("BlattNr").toInt(), 0);
    QTRY_VERIFY(ticks.count() >= 10);
    QCOMPARE(picMuell->property("BlattNr").toInt(), 7);
}

void AuswahlTest::theDialogIsASingleWindowAndComesBackEmpty() {
    Waehlen("cmbThemen", QStringLiteral("Leute"));
    AuswahlZeigen();
    QCOMPARE(static_cast<QWidget*>(AuswahlOffen()), fenster_.data());
    QVERIFY(fenster_->windowFlags().testFlag(Qt::Tool));
    QTest::mouseClick(Finden<QAbstractButton>(fenster_, QStringLiteral("cmdAbbruch")), Qt::LeftButton);
    QVERIFY(AuswahlOffen() == nullptr);
    QCOMPARE(AuswahlAntwort(), std::string());
    QTRY_VERIFY(fenster_ == nullptr);
    AuswahlZeigen();
    fenster_ = FensterAbwarten(QStringLiteral("frmAuswahl"));
    QCOMPARE(liste("cmbThemen")->currentIndex(), -1);
    QCOMPARE(liste("cmbUnter")->count(), 0);
}

void AuswahlTest::everyControlTellsItsTip() {
    for (const auto& [name, text, titel, status] : auswahltexte::hinweise) {
        const QWidget* element = Finden(fenster_, Anzeige(name));
        QCOMPARE(element->toolTip(), Anzeige(text));
        QCOMPARE(element->property("tippstatus").toString(), Anzeige(status));
        QCOMPARE(element->property("tipptitel").toString(), Anzeige(titel));
    }
}

void AuswahlTest::theWindowNeverLeavesTheScreen_data() {
    QTest::addColumn<QSize>("schirm");
    for (const QSize schirm : {QSize(640, 400), QSize(800, 600), QSize(1024, 768), QSize(1280, 800),
                               QSize(1280, 1024), QSize(2560, 1440)}) {
        QTest::addRow("%d x %d", schirm.width(), schirm.height()) << schirm;
    }
}

void AuswahlTest::theWindowNeverLeavesTheScreen() {
    QFETCH(const QSize, schirm);
    BildschirmgroesseVorgeben(schirm);
    const frmAuswahl fenster(nullptr);
    const QSize noetig = fenster.minimumSizeHint();
    QVERIFY(noetig.width() <= fenster.width() && noetig.height() <= fenster.height());
    QVERIFY(QRect(QPoint(0, 0), schirm).contains(QRect(fenster.pos(), fenster.size() + QSize(0, 30))));
    QVERIFY(fenster.x() + fenster.width() / 2 > schirm.width() / 2);
}

void AuswahlTest::returnHoldsTheQuestionForTheKeyboard() {
    BerufeLaden();
    auto* txtFrage = Finden(fenster_, QStringLiteral("txtFrage"));
    QTest::keyClick(txtFrage, Qt::Key_Return);
    QVERIFY(!OhneMausGehalten()); // nothing picked yet
    liste("cmbFrage")->setCurrentIndex(1);
    QTest::keyClick(txtFrage, Qt::Key_Return);
    QVERIFY(OhneMausGehalten());
    QVERIFY(Gezogen() == (Ziehwert{Zugart::Auswahl, Formart::Keine, 0, "Wer fährt zur See?", "Der Matrose"}));
    Dialogfolge dialoge;
    dialoge.meldung(ausDerAuswahl, sehIchEin);
    QTest::keyClick(Finden(fenster_, QStringLiteral("picMuell")), Qt::Key_F8);
    QVERIFY(dialoge.fertig());
    QVERIFY(!OhneMausGehalten());
}

void AuswahlTest::escapeClosesTheDialog() {
    QTest::keyClick(liste("cmbThemen"), Qt::Key_Escape);
    QTRY_VERIFY(fenster_ == nullptr);
}

void AuswahlTest::aHundredThousandQuestionsAreThereToPick() {
    const Thema* leute = ThemaSuchen("Leute");
    BerufeLaden();
    QStringList zeilen{QStringLiteral("Kopf")};
    for (int i = 1; i <= 100000; ++i) {
        const QString nr = QString::number(i);
        zeilen << nr << QStringLiteral("Frage ") + nr << QStringLiteral("Antwort ") + nr
               << QString::number(i % 5 + 1);
    }
    ordner_->schreiben(QStringLiteral("WISSEN/LEUTE/") + Anzeige(leute->unterthemen.front().datei),
                       Datei(zeilen));
    QCoreApplication::processEvents();
    Q_EMIT liste("cmbUnter")->activated(0); // the same place once more
    for (const char* name : {"cmbNr", "cmbFrage", "cmbAntwort", "cmbPunkte"}) {
        QCOMPARE(liste(name)->count(), 100000);
    }
    liste("cmbFrage")->showPopup();
    QTRY_VERIFY(liste("cmbFrage")->view()->isVisible());
    QVERIFY(liste("cmbFrage")->view()->width() > liste("cmbFrage")->width());
    liste("cmbFrage")->hidePopup();
    liste("cmbFrage")->setCurrentIndex(99999);
    QCOMPARE(feld("txtAntwort"), QStringLiteral("Antwort 100000"));
}

QTEST_MAIN(AuswahlTest)
#include "frmAuswahl_test.moc"
