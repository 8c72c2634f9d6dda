// The preview on the real forms, by keys and clicks; the system knows no printer here, so that the sheets
// become PDF files.
#include "sheets/frmVorschau.h"

#include "tests/sheets/vorschauhilfe.h"

class FrmVorschauTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void withoutAFormTheCommandSaysSoAndOpensNothing();
    void theKeyOpensOneWindowAndBringsItToTheFrontAgain();
    void everyControlHasItsTipAndTabVisitsThemInTheirOrder();
    void theListOffersTheSheetsOfTheOpenForm();
    void thePictureFollowsTheFormWhileOneTypes();
    void whatSticksOutIsOutlinedAndNamed();
    void withoutTitlesThereAreNone();
    void theMarginsOfThePrinterAreAThinLine();
    void aPaperChosenInTheSettingsIsSeenAtOnce();
    void whatIsPrintedIsTheFormsOwnSheet();
    void theOtherSheetsLieBesideTheFormsOwn();
    void asPdfAsksForAName();
    void aSheetNeverTakesTheNameOfAForm();
    void aPdfThatCannotBeWrittenIsReportedAndNothingIsLost();
    void aTestIsPrintedWithItsAnswersWhenTheyAreShown();
    void theZoomStaysWhileOneTypes();
    void theSheetOfTheLastEveningIsShownAgain();
    void withoutAPaperTheSheetIsMissingAndTheOthersAreThere();
    void aFormThatGoesLeavesTheWindowAndAnotherFillsItAgain();
    void escClosesTheWindow();
};

void FrmVorschauTest::initTestCase() {
    qputenv("CUPS_SERVER", "/gibt/es/nicht.sock");
}

void FrmVorschauTest::cleanup() {
    QVERIFY(FensterOderNichts(name) == nullptr); // it goes with the main window
}

void FrmVorschauTest::withoutAFormTheCommandSaysSoAndOpensNothing() {
    const Programm programm;
    Rufen();
    QTRY_COMPARE(HilfeStand(), std::string(" Ich habe nichts zu zeigen: Es ist kein Formular offen. "));
    QVERIFY(FensterOderNichts(name) == nullptr);
}

void FrmVorschauTest::theKeyOpensOneWindowAndBringsItToTheFrontAgain() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    QCOMPARE(Eintrag(8)->text(), QStringLiteral("Druck&vorschau"));
    Rufen();
    const QWidget* fenster = FensterAbwarten(name);
    QTRY_VERIFY(AktivesKind() == fenster);
    QCOMPARE(fenster->windowTitle(), QStringLiteral("Druckvorschau"));
    QCOMPARE(fenster->property("tag").toString(), QStringLiteral("Vorschau"));
    QCOMPARE(Hinweis(), inOrdnung);
    QVERIFY(Drucken()->isEnabled());
    maus::Klicken(form->txtFrage.at(1));
    QTRY_VERIFY(AktivesKind() == form);
    QVERIFY(fenster->isVisible()); // above the form
    Eintrag(8)->trigger();
    QTRY_VERIFY(AktivesKind() == fenster);
    QCOMPARE(programm.haupt()->findChildren<QWidget*>(name).size(), 1);
}

void FrmVorschauTest::everyControlHasItsTipAndTabVisitsThemInTheirOrder() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    const QWidget* fenster = FensterAbwarten(name);
    for (const char* teil :
         {"cmbBlatt", "chkOhneTitel", "chkMitAntworten", "picBlatt", "lblBlattHinweis", "cmdDrucken",
          "cmdAlsPDF", "cmdAbbruch", "cmdGanz", "cmdBreite", "cmdKleiner", "cmdGroesser"}) {
        QVERIFY2(!Finden(fenster, QLatin1String(teil))->toolTip().isEmpty(), teil);
    }
    QTRY_VERIFY(Blatt()->hasFocus());
    for (const char* teil : {"chkOhneTitel", "cmdGanz", "cmdBreite", "cmdKleiner", "cmdGroesser"}) {
        maus::Taste(QStringLiteral("Tab"));
        QTRY_VERIFY2(Finden(fenster, QLatin1String(teil))->hasFocus(), teil);
    }
    maus::Taste(QStringLiteral("Tab"));
    QTRY_VERIFY(Ansicht()->isAncestorOf(QApplication::focusWidget())); // scrolls by keys
    for (const char* teil : {"cmdDrucken", "cmdAlsPDF", "cmdAbbruch", "cmbBlatt"}) {
        maus::Taste(QStringLiteral("Tab"));
        QTRY_VERIFY2(Finden(fenster, QLatin1String(teil))->hasFocus(), teil);
    }
}

void FrmVorschauTest::theListOffersTheSheetsOfTheOpenForm() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    const auto eintraege = [] {
        QStringList texte;
        for (int i = 0; i < Blatt()->count(); ++i) {
            texte << Blatt()->itemText(i);
        }
        return texte.join(u'|');
    };
    QCOMPARE(
        eintraege(),
        QStringLiteral("Bogen|Antwortbogen|Brett A4|Brett A3|Brett A2|Brett A1|Brett A0|8 Karten|16 Karten"));
    QVERIFY(Bauteil<QCheckBox>("chkOhneTitel")->isEnabled());
    QVERIFY(!Bauteil<QCheckBox>("chkMitAntworten")->isVisible());
    Blatt()->setFocus();
    maus::Taste(QStringLiteral("End"));
    QTRY_COMPARE(Blatt()->currentText(), QStringLiteral("16 Karten"));
    QCOMPARE(Hinweis(),
             QStringLiteral("4 Seiten, Vorderseiten und Rückseiten im Wechsel : beidseitig drucken, an der "
                            "kurzen Kante wenden."));
    QVERIFY(!Bauteil<QCheckBox>("chkOhneTitel")->isEnabled());
    programm.NeuesTestformular();
    QTRY_COMPARE(eintraege(), QStringLiteral("Bogen|Antwortbogen"));
    QVERIFY(Bauteil<QCheckBox>("chkMitAntworten")->isVisible());
    QVERIFY(!Bauteil<QCheckBox>("chkOhneTitel")->isVisible());
}

void FrmVorschauTest::thePictureFollowsTheFormWhileOneTypes() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    Betreten(form->txtAntwort.at(1));
    const QImage vorher = Bild();
    maus::Tippen(QStringLiteral("xxxxx"));
    QTRY_VERIFY(Bild() != vorher);
    QVERIFY(form->txtAntwort.at(1)->hasFocus()); // and nothing has been left yet
    form->txtAntwort.at(1)->setText("Antwort");
    QTRY_VERIFY(Bild() == vorher);
}

void FrmVorschauTest::whatSticksOutIsOutlinedAndNamed() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    QCOMPARE(Hinweis(), inOrdnung);
    QCOMPARE(Farbtupfer(Bild(), IstRot), 0);
    form->txtAntwort.at(2)->setText("Donaudampfschifffahrtsgesellschaftskapitän");
    QTRY_VERIFY2(
        Hinweis().startsWith(QStringLiteral("Gebiet 1, Antwort 2 : Auf dem Papier ragt der Text rechts ")),
        qPrintable(Hinweis()));
    Bauteil<QToolButton>("cmdBreite")->click();
    Bauteil<QToolButton>("cmdGroesser")->click();
    Bauteil<QToolButton>("cmdGroesser")->click();
    QTRY_VERIFY(Farbtupfer(Bild(), IstRot) > 10);
    form->txtAntwort.at(2)->setText("Lotse");
    QTRY_COMPARE(Hinweis(), inOrdnung);
    QTRY_COMPARE(Farbtupfer(Bild(), IstRot), 0);
}

void FrmVorschauTest::withoutTitlesThereAreNone() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    const QImage mit = Bild();
    maus::Klicken(Bauteil<QCheckBox>("chkOhneTitel"), Qt::NoModifier,
                  QPoint(8, Bauteil<QCheckBox>("chkOhneTitel")->height() / 2));
    QTRY_VERIFY(Bauteil<QCheckBox>("chkOhneTitel")->isChecked());
    QTRY_VERIFY(Bild() != mit);
    maus::Klicken(Drucken());
    const QString datei = programm.ordner().nativ(QStringLiteral("KRANZ/Feldkranz.pdf"));
    QTRY_VERIFY(QFile::exists(datei));
    QVERIFY(!PdfText(datei).contains(QStringLiteral("Titel1")));
    QVERIFY(PdfText(datei).contains(QStringLiteral("Welcher Berg")));
}

void FrmVorschauTest::theMarginsOfThePrinterAreAThinLine() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    const QPageLayout sonst = Drucker().pageLayout();
    Rufen();
    FensterAbwarten(name);
    QCOMPARE(Farbtupfer(Bild(), IstBlau), 0); // a file has no margins
    QPageLayout layout = sonst;
    layout.setOrientation(QPageLayout::Landscape);
    layout.setUnits(QPageLayout::Millimeter);
    layout.setMinimumMargins(QMarginsF(15, 30, 15, 15));
    Drucker().setPageLayout(layout);
    form->txtAntwort.at(30)->setText("anders");
    QTRY_VERIFY(Farbtupfer(Bild(), IstBlau) > 50);
    BildVomBildschirm(name);
    Drucker().setPageLayout(sonst);
}

void FrmVorschauTest::aPaperChosenInTheSettingsIsSeenAtOnce() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    QCOMPARE(Ansicht()->orientation(), QPageLayout::Landscape);
    MitOK(programm, [](const QDialog& dialog, Dialogfolge&) {
        Finden<QRadioButton>(&dialog, QStringLiteral("optDrucken"), 0)->click(); // A5
    });
    QCOMPARE(Spiel.Papierformat, std::string("A5 quer"));
    QTRY_COMPARE(Ansicht()->orientation(), QPageLayout::Portrait);
}

void FrmVorschauTest::whatIsPrintedIsTheFormsOwnSheet() {
    Programm programm;
    GutesQuiz(programm);
    const QString datei = programm.ordner().nativ(QStringLiteral("KRANZ/Feldkranz.pdf"));
    Dialogfolge dialoge;
    dialoge.frage(
        QStringLiteral("Formular drucken"),
        QStringLiteral("Ich drucke das Formular für Feldkranz\nauf DIN A4 quer (blattfüllend) aus !"), 1);
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdDruckenFK(2)"))->click();
    const QStringList soll = Inhalt(datei);
    QVERIFY(soll.size() > 100);
    QVERIFY(QFile::remove(datei));
    Rufen();
    FensterAbwarten(name);
    maus::Klicken(Drucken()); // without a question: it has been seen
    QTRY_VERIFY(QFile::exists(datei));
    QCOMPARE(Inhalt(datei), soll);
    QTRY_VERIFY2(QString::fromStdString(HilfeStand()).contains(QStringLiteral("liegt als PDF-Datei in")),
                 HilfeStand().c_str());
}

void FrmVorschauTest::theOtherSheetsLieBesideTheFormsOwn() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    for (int mal = 0; mal < 2; ++mal) { // the second print replaces what the first one made
        for (const char* blatt : {"Bogen", "Antwortbogen", "Brett A3", "8 Karten"}) {
            Blatt()->setCurrentText(QLatin1String(blatt));
            Drucken()->click();
        }
    }
    QDir ordner(programm.ordner().nativ(QStringLiteral("KRANZ")));
    QCOMPARE(ordner.entryList({QStringLiteral("Feldkranz*.pdf")}, QDir::Files, QDir::Name).join(u'|'),
             QStringLiteral(
                 "Feldkranz 8 Karten.pdf|Feldkranz Antwortbogen.pdf|Feldkranz Brett A3.pdf|Feldkranz.pdf"));
    QCOMPARE(PdfSeitenzahl(ordner.filePath(QStringLiteral("Feldkranz 8 Karten.pdf"))), 8);
    QCOMPARE(PdfSeitenzahl(ordner.filePath(QStringLiteral("Feldkranz Brett A3.pdf"))), 2);
}

void FrmVorschauTest::asPdfAsksForAName() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    Blatt()->setCurrentText(QStringLiteral("Brett A4"));
    const QString ziel = programm.ordner().nativ(QStringLiteral("TEST/Aushang"));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("QFileDialog"),
                     QStringLiteral("Als PDF speichern"),
                     {},
                     {QStringLiteral("Abbrechen")},
                     [](QDialog& dialog) {
                         QCOMPARE(Finden<QLineEdit>(&dialog, QStringLiteral("fileNameEdit"))->text(),
                                  QStringLiteral("Feldkranz Brett A4.pdf"));
                     }});
    dialoge.erwarte(
        {QStringLiteral("QFileDialog"), {}, {}, {QStringLiteral("Speichern")}, [&](QDialog& dialog) {
             Finden<QLineEdit>(&dialog, QStringLiteral("fileNameEdit"))->setText(ziel);
         }});
    Bauteil<QPushButton>("cmdAlsPDF")->click();
    QVERIFY(QDir(programm.ordner().nativ(QStringLiteral("KRANZ")))
                .entryList({QStringLiteral("*.pdf")})
                .isEmpty());
    Bauteil<QPushButton>("cmdAlsPDF")->click();
    QVERIFY(dialoge.fertig());
    QCOMPARE(PdfSeitenzahl(ziel + QStringLiteral(".pdf")), 1);
    QVERIFY(PdfText(ziel + QStringLiteral(".pdf")).contains(QStringLiteral("Titel6")));
    QVERIFY(FensterOderNichts(name) != nullptr);
}

void FrmVorschauTest::aSheetNeverTakesTheNameOfAForm() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    const QString ziel = programm.ordner().nativ(QStringLiteral("KRANZ/Runde.FKR"));
    Dialogfolge dialoge;
    dialoge.erwarte(
        {QStringLiteral("QFileDialog"), {}, {}, {QStringLiteral("Speichern")}, [&](QDialog& dialog) {
             Finden<QLineEdit>(&dialog, QStringLiteral("fileNameEdit"))->setText(ziel);
         }});
    dialoge.erwarte(
        {QStringLiteral("QFileDialog"), {}, {}, {QStringLiteral("Speichern")}, [](const QDialog& dialog) {
             QCOMPARE(Finden<QLineEdit>(&dialog, QStringLiteral("fileNameEdit"))->text(),
                      QStringLiteral("Runde.FKR.pdf"));
         }});
    Bauteil<QPushButton>("cmdAlsPDF")->click();
    QVERIFY(dialoge.fertig());
    QVERIFY(!QFile::exists(ziel));
    QCOMPARE(PdfSeitenzahl(ziel + QStringLiteral(".pdf")), 1);
}

void FrmVorschauTest::aPdfThatCannotBeWrittenIsReportedAndNothingIsLost() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    QVERIFY(QDir().mkpath(programm.ordner().nativ(QStringLiteral("KRANZ/Feldkranz Brett A4.pdf"))));
    Blatt()->setCurrentText(QStringLiteral("Brett A4"));
    Dialogfolge dialoge;
    dialoge.erwarte({QStringLiteral("QMessageBox"), QStringLiteral("Feldkranz"), {}, {QStringLiteral("OK")}});
    Drucken()->click();
    QVERIFY(dialoge.fertig());
    QVERIFY(Drucken()->isEnabled());
    QCOMPARE(QDir(programm.ordner().nativ(QStringLiteral("KRANZ"))).entryList({QStringLiteral("*.neu")}),
             QStringList());
}

void FrmVorschauTest::aTestIsPrintedWithItsAnswersWhenTheyAreShown() {
    Programm programm;
    frmHBFragen* form = programm.NeuesTestformular();
    form->txtFrage.at(1)->setText("Wozu dient der Palstek?");
    Rufen();
    FensterAbwarten(name);
    auto* mit = Bauteil<QCheckBox>("chkMitAntworten");
    QTRY_VERIFY(!mit->isEnabled()); // there is none yet
    form->txtAntwort.at(1)->setText("Rettungsschlinge");
    QTRY_VERIFY(mit->isEnabled());
    const QString datei = programm.ordner().nativ(QStringLiteral("TEST/Test.pdf"));
    Drucken()->click();
    QVERIFY(!PdfText(datei).contains(QStringLiteral("Rettungsschlinge")));
    mit->setChecked(true);
    Drucken()->click();
    QVERIFY(PdfText(datei).contains(QStringLiteral("Rettungsschlinge")));
    Blatt()->setCurrentText(QStringLiteral("Antwortbogen"));
    Drucken()->click();
    QVERIFY(PdfText(programm.ordner().nativ(QStringLiteral("TEST/Test Antwortbogen.pdf")))
                .contains(QStringLiteral("Rettungsschlinge")));
}

void FrmVorschauTest::theZoomStaysWhileOneTypes() {
    Programm programm;
    const frmFKFragen* form = GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    QCOMPARE(Ansicht()->zoomMode(), QPrintPreviewWidget::FitInView);
    const double ganz = Ansicht()->zoomFactor();
    maus::Klicken(Bauteil<QToolButton>("cmdGroesser"));
    QTRY_VERIFY(Ansicht()->zoomFactor() > ganz * 1.2);
    const double groesser = Ansicht()->zoomFactor();
    const QImage vorher = Bild();
    form->txtAntwort.at(1)->setText("anders");
    QTRY_VERIFY(Bild() != vorher);
    QCOMPARE(Ansicht()->zoomFactor(), groesser);
    maus::Klicken(Bauteil<QToolButton>("cmdKleiner"));
    QTRY_VERIFY(Ansicht()->zoomFactor() < groesser);
    maus::Klicken(Bauteil<QToolButton>("cmdGanz"));
    QTRY_COMPARE(Ansicht()->zoomMode(), QPrintPreviewWidget::FitInView);
    maus::Klicken(Bauteil<QToolButton>("cmdBreite"));
    QTRY_COMPARE(Ansicht()->zoomMode(), QPrintPreviewWidget::FitToWidth);
}

void FrmVorschauTest::theSheetOfTheLastEveningIsShownAgain() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    QWidget* fenster = FensterAbwarten(name);
    Blatt()->setCurrentText(QStringLiteral("Brett A2"));
    Bauteil<QCheckBox>("chkOhneTitel")->setChecked(true);
    maus::Klicken(Bauteil<QPushButton>("cmdAbbruch"));
    QTRY_VERIFY(FensterOderNichts(name) == nullptr);
    static_cast<void>(fenster);
    QCOMPARE(ExtraWert("Vorschau.BlattFK"), std::string("Brett A2"));
    Rufen();
    FensterAbwarten(name);
    QCOMPARE(Blatt()->currentText(), QStringLiteral("Brett A2"));
    QVERIFY(Bauteil<QCheckBox>("chkOhneTitel")->isChecked());
    QCOMPARE(Hinweis(),
             QStringLiteral("4 Seiten : an den Marken zuschneiden und Reihe für Reihe aneinanderkleben."));
}

void FrmVorschauTest::withoutAPaperTheSheetIsMissingAndTheOthersAreThere() {
    Programm programm;
    GutesQuiz(programm);
    Spiel.Papierformat = "";
    Rufen();
    FensterAbwarten(name);
    QCOMPARE(Hinweis(), QStringLiteral("Mir fehlt die Angabe der Papiergröße. (Vorgaben, Darstellung)"));
    QVERIFY(!Drucken()->isEnabled());
    Blatt()->setCurrentText(QStringLiteral("Brett A4"));
    QVERIFY(Drucken()->isEnabled());
    QCOMPARE(Hinweis(), inOrdnung);
}

void FrmVorschauTest::aFormThatGoesLeavesTheWindowAndAnotherFillsItAgain() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    QTRY_COMPARE(Hinweis(), inOrdnung);
    FK_Entladen();
    QTRY_COMPARE(Hinweis(), QStringLiteral("Es ist kein Formular offen."));
    QVERIFY(!Drucken()->isEnabled());
    QVERIFY(!Blatt()->isEnabled());
    programm.NeuesTestformular();
    QTRY_VERIFY(Drucken()->isEnabled());
    QCOMPARE(Blatt()->count(), 2);
}

void FrmVorschauTest::escClosesTheWindow() {
    Programm programm;
    GutesQuiz(programm);
    Rufen();
    FensterAbwarten(name);
    QTRY_VERIFY(Blatt()->hasFocus());
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(FensterOderNichts(name) == nullptr);
}

QTEST_MAIN(FrmVorschauTest)
#include "frmVorschau_test.moc"
