// Reading the rule document: turned, sized and searched.
#include "tests/periphery/regelhilfe.h"

class DokumentleserTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pagesAreTurnedByButtonsKeysAndNumber();
    void thePagesAreFittedToWidthShownWholeAndSized();
    void aSearchFindsEveryPlaceWhateverItsCase();
    void ctrlFBeginsASearchAndEscEndsIt();
    void whatIsNowhereIsSaidBelow();
    void aLongDocumentKeepsFewPicturesAndScrollsToItsEnd();
    void aDocumentThatVanishesWhileItIsReadStaysLegible();
    void aPageOfMonstrousSizeIsShown();
};

void DokumentleserTest::pagesAreTurnedByButtonsKeysAndNumber() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(5));
    Zeigen(programm);
    Dokumentansicht* ansicht = Ansicht();
    QCOMPARE(ansicht->Seite(), 1);
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("cmdSeiteZurueck"))->isEnabled());
    Klick("cmdSeiteWeiter");
    QCOMPARE(ansicht->Seite(), 2);
    Klick("cmdSeiteZurueck");
    QCOMPARE(ansicht->Seite(), 1);
    auto* txtSeite = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSeite"));
    txtSeite->setText(QStringLiteral("4"));
    QTest::keyClick(txtSeite, Qt::Key_Return);
    QCOMPARE(ansicht->Seite(), 4);
    QWidget* seiten = ansicht->Steuerelement();
    QTest::keyClick(seiten, Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(ansicht->Seite(), 3);
    QTest::keyClick(seiten, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(ansicht->Seite(), 4);
    QTest::keyClick(seiten, Qt::Key_Home);
    QCOMPARE(ansicht->Seite(), 1);
    // The pages go by screenfuls: the same way down as up.
    const auto* leiste = qobject_cast<QAbstractScrollArea*>(seiten)->verticalScrollBar();
    QTest::keyClick(seiten, Qt::Key_PageDown);
    QVERIFY(leiste->value() > 0);
    QTest::keyClick(seiten, Qt::Key_PageUp);
    QCOMPARE(leiste->value(), 0);
    QTest::keyClick(seiten, Qt::Key_End);
    QCOMPARE(ansicht->Seite(), 5);
    QVERIFY(!Finden(BrowserOffen(), QStringLiteral("cmdSeiteWeiter"))->isEnabled());
    QVERIFY2(Regelstand().startsWith(QStringLiteral(" Seite 5 von 5  -  ")), qPrintable(Regelstand()));
    QCOMPARE(Finden<QLabel>(BrowserOffen(), QStringLiteral("lblSeiten"))->text(), QStringLiteral("von 5"));
    txtSeite->setText(QStringLiteral("99"));
    QTest::keyClick(txtSeite, Qt::Key_Return);
    QCOMPARE(txtSeite->text(), QStringLiteral("5"));
}

void DokumentleserTest::thePagesAreFittedToWidthShownWholeAndSized() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(3));
    Zeigen(programm);
    Dokumentansicht* ansicht = Ansicht();
    auto* flaeche = qobject_cast<QAbstractScrollArea*>(ansicht->Steuerelement());
    QCOMPARE(ansicht->Einpassung(), Passung::Breite);
    QVERIFY(Finden<QToolButton>(BrowserOffen(), QStringLiteral("cmdBreite"))->isChecked());
    const double breit = (flaeche->viewport()->width() - 16) / (595.0 * 96 / 72);
    QVERIFY(qAbs(ansicht->Groesse() - breit) < 0.01);
    Klick("cmdGanzeSeite");
    QCOMPARE(ansicht->Einpassung(), Passung::Seite);
    QVERIFY(ansicht->Groesse() * 842 * 96 / 72 <= flaeche->viewport()->height());
    const double ganz = ansicht->Groesse();
    Klick("cmdGroesser");
    QVERIFY(qAbs(ansicht->Groesse() - ganz * 1.25) < 0.01);
    QVERIFY(!Finden<QToolButton>(BrowserOffen(), QStringLiteral("cmdGanzeSeite"))->isChecked());
    for (int i = 0; i < 12; ++i) {
        Klick("cmdGroesser");
    }
    QVERIFY(qAbs(ansicht->Groesse() - 4.0) < 0.01);
    QTRY_VERIFY(flaeche->horizontalScrollBar()->isVisible());
    QVERIFY(!flaeche->grab().isNull()); // a page larger than its picture may be is drawn all the same
    for (int i = 0; i < 14; ++i) {
        Klick("cmdKleiner");
    }
    QVERIFY(qAbs(ansicht->Groesse() - 0.25) < 0.01);
    QTest::keyClick(flaeche, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(ansicht->Einpassung(), Passung::Breite);
}

void DokumentleserTest::aSearchFindsEveryPlaceWhateverItsCase() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(4));
    Zeigen(programm);
    QCOMPARE(Bildpunkte(QColor(255, 170, 60)), 0);
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    QTest::keyClicks(txtSuche, QStringLiteral("kranzfeld"));
    QTRY_VERIFY2(Regelstand().endsWith(QStringLiteral("  -  Fundstelle 1 von 3")), qPrintable(Regelstand()));
    QCOMPARE(Ansicht()->Seite(), 1);
    QVERIFY(Bildpunkte(QColor(255, 170, 60)) > 200);
    QTest::keyClick(txtSuche, Qt::Key_Return);
    QVERIFY2(Regelstand().endsWith(QStringLiteral("  -  Fundstelle 2 von 3")), qPrintable(Regelstand()));
    QCOMPARE(Ansicht()->Seite(), 3);
    QVERIFY(Bildpunkte(QColor(255, 170, 60)) > 200);
    QVERIFY(Bildpunkte(QColor(255, 236, 120)) > 200); // the third place, on the same page
    Klick("cmdFundWeiter");
    Klick("cmdFundWeiter");
    QVERIFY2(Regelstand().endsWith(QStringLiteral("  -  Fundstelle 1 von 3")), qPrintable(Regelstand()));
    Klick("cmdFundZurueck");
    QVERIFY2(Regelstand().endsWith(QStringLiteral("  -  Fundstelle 3 von 3")), qPrintable(Regelstand()));
    txtSuche->setText(QStringLiteral("Glück"));
    QTest::keyClick(Ansicht()->Steuerelement(), Qt::Key_F3);
    QVERIFY2(Regelstand().endsWith(QStringLiteral(" von 2")), qPrintable(Regelstand()));
}

void DokumentleserTest::ctrlFBeginsASearchAndEscEndsIt() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    Zeigen(programm);
    QWidget* seiten = Ansicht()->Steuerelement();
    QTRY_VERIFY(seiten->hasFocus());
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    maus::Taste(QStringLiteral("ctrl+f"));
    QTRY_VERIFY(txtSuche->hasFocus());
    maus::Tippen(QStringLiteral("Kranz"));
    QTRY_VERIFY2(Regelstand().endsWith(QStringLiteral("  -  Fundstelle 1 von 1")), qPrintable(Regelstand()));
    maus::Taste(QStringLiteral("Escape"));
    QTRY_VERIFY(seiten->hasFocus());
    QCOMPARE(txtSuche->text(), QString());
    QVERIFY2(Regelstand().startsWith(QStringLiteral(" Seite 1 von 1")) && Regelstand().endsWith(u'%'),
             qPrintable(Regelstand()));
    QCOMPARE(Bildpunkte(QColor(255, 170, 60)), 0);
    QVERIFY(BrowserOffen()->isVisible());
}

void DokumentleserTest::whatIsNowhereIsSaidBelow() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(1));
    Zeigen(programm);
    auto* txtSuche = Finden<QLineEdit>(BrowserOffen(), QStringLiteral("txtSuche"));
    txtSuche->setText(QStringLiteral("<i>Krümel</i>"));
    QTest::keyClick(txtSuche, Qt::Key_Return);
    const auto* stand = Finden<QLabel>(BrowserOffen(), QStringLiteral("lblStand"));
    QCOMPARE(stand->textFormat(), Qt::PlainText); // and not in italics
    txtSuche->setText(QStringLiteral("Krümel"));
    QTest::keyClick(txtSuche, Qt::Key_Return);
    QVERIFY2(Regelstand().endsWith(QStringLiteral("  -  [ Krümel ] kommt nicht vor.")),
             qPrintable(Regelstand()));
    QTest::keyClick(txtSuche, Qt::Key_Return); // nothing to go to
    Klick("cmdFundZurueck");
    QCOMPARE(Ansicht()->Seite(), 1);
}

void DokumentleserTest::aLongDocumentKeepsFewPicturesAndScrollsToItsEnd() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(60));
    Zeigen(programm);
    for (int seite = 1; seite <= 60; ++seite) {
        Ansicht()->SeiteZeigen(seite);
        QVERIFY(!Ansicht()->Steuerelement()->grab().isNull());
    }
    QCOMPARE(Ansicht()->Seite(), 60);
    QCOMPARE(Ansicht()->Suchen(QStringLiteral("Nummer")), 60);
}

void DokumentleserTest::aDocumentThatVanishesWhileItIsReadStaysLegible() {
    const Zusatzordner zusatz;
    Programm programm;
    programm.ordner().schreiben(regel, Dokument(40));
    Zeigen(programm);
    programm.ordner().schreiben(regel, QByteArray(100, 'x')); // in place, as a copy over it would
    QVERIFY(QFile::remove(programm.ordner().nativ(regel)));
    Ansicht()->SeiteZeigen(33);
    QTRY_VERIFY(Bildpunkte(Qt::black) > 100);
    QCOMPARE(Ansicht()->Suchen(QStringLiteral("Seite Nummer 40")), 1);
}

void DokumentleserTest::aPageOfMonstrousSizeIsShown() {
    const Zusatzordner zusatz;
    Programm programm;
    const QByteArray seite = "%PDF-1.4\n"
                             "1 0 obj <</Type /Catalog /Pages 2 0 R>> endobj\n"
                             "2 0 obj <</Type /Pages /Kids [3 0 R] /Count 1>> endobj\n"
                             "3 0 obj <</Type /Page /Parent 2 0 R /MediaBox [0 0 1 1000000000]>> endobj\n"
                             "trailer <</Root 1 0 R /Size 4>>\n%%EOF\n";
    programm.ordner().schreiben(regel, seite);
    Zeigen(programm);
    QCOMPARE(Ansicht()->Seiten(), 1);
    QVERIFY(Bildpunkte(Qt::white) > 100);
    for (const Passung passung : {Passung::Seite, Passung::Breite}) {
        Ansicht()->Einpassen(passung);
        QVERIFY(!Ansicht()->Steuerelement()->grab().isNull());
    }
}

QTEST_MAIN(DokumentleserTest)
#include "dokumentleser_test.moc"
