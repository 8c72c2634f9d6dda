// The homepage's window: where it leads, and that nothing is said when there is no page.
#include "tests/periphery/netzhilfe.h"

class FrmHomepageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsAChildOfTheMainWindowWithTheSiteInItsTitle();
    void thePageIsAskedForByItsAddressAndShown();
    void thePageFillsTheWindowBelowItsFirstTwoPixels();
    void aSecondCallBringsTheSameWindowToTheFront();
    void theMenuEntryShowsTheSameWindow();
    void linksOfTheMakersStayInTheWindow();
    void aServerThatIsNotThereReportsNothing();
    void aSecondCallTriesAPageAgainThatFailed();
    void aPageWithAnErrorReportsNothing();
    void asTheAdministratorNoPageIsShownWithoutItsWalls();
    void theWindowClosesWhileItsPageIsLoading();
    void theWindowLooksFinished();
};

void FrmHomepageTest::theWindowIsAChildOfTheMainWindowWithTheSiteInItsTitle() {
    const Server server(gruen.arg(QString()));
    const Besuch besuch(server);
    QVERIFY(HomepageOffen()->isVisible());
    QCOMPARE(HomepageOffen()->windowTitle(), QStringLiteral("Homepage [www.feldkranz.example]"));
    QVERIFY(qobject_cast<QMdiSubWindow*>(HomepageOffen()->parentWidget()) != nullptr);
    QCOMPARE(HomepageOffen()->parentWidget()->size(), QSize(814, 568)); // 12210 and 8520 twips
}

void FrmHomepageTest::thePageIsAskedForByItsAddressAndShown() {
    const Server server(gruen.arg(QStringLiteral("Grüße")));
    const Besuch besuch(server);
    QTRY_VERIFY(IstGruen());
    QVERIFY(server.gefragt.contains(
        QStringLiteral("/modules.php?op=modload&name=Downloads&file=index&req=viewsdownload&sid=18")));
    QVERIFY(!Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible());
}

void FrmHomepageTest::thePageFillsTheWindowBelowItsFirstTwoPixels() {
    const Server server(gruen.arg(QString()));
    const Besuch besuch(server);
    for (const QSize groesse : {QSize(500, 400), QSize(700, 300)}) {
        HomepageOffen()->parentWidget()->resize(groesse);
        QCOMPARE(Netz()->geometry(), QRect(0, 2, HomepageOffen()->width(), HomepageOffen()->height() - 2));
    }
}

void FrmHomepageTest::aSecondCallBringsTheSameWindowToTheFront() {
    const Server server(gruen.arg(QString()));
    Besuch besuch(server);
    const frmHomepage* fenster = HomepageOffen();
    besuch.programm.NeuesQuizformular();
    Finden<QAbstractButton>(besuch.programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    QCOMPARE(HomepageOffen(), fenster);
    QCOMPARE(besuch.programm.haupt()->Kindflaeche()->activeSubWindow()->widget(), fenster);
}

void FrmHomepageTest::theMenuEntryShowsTheSameWindow() {
    const Server server(gruen.arg(QString()));
    Besuch besuch(server);
    HomepageOffen()->parentWidget()->close();
    QTRY_VERIFY(HomepageOffen() == nullptr);
    auto* eintrag = Finden<QAction>(besuch.programm.haupt(), QStringLiteral("mHilfen(2)"));
    QCOMPARE(eintrag->text(), QStringLiteral("www.feldkranz.example"));
    eintrag->trigger();
    QTRY_VERIFY(IstGruen());
}

void FrmHomepageTest::linksOfTheMakersStayInTheWindow() {
    Server server(Verweis(QStringLiteral("/zwei.html")));
    server.seiten.insert(QStringLiteral("/zwei.html"), gruen.arg(QStringLiteral("zwei")));
    const Besuch besuch(server);
    QTRY_VERIFY(IstGruen());
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/zwei.html")), 1);
    QVERIFY(besuch.draussen.isEmpty());
}

void FrmHomepageTest::aServerThatIsNotThereReportsNothing() {
    Server server;
    server.close();
    const Dialogfolge dialoge;
    HomepageServerVorgeben(QStringLiteral("http://127.0.0.1:1"));
    const Zusatzordner zusatz;
    const Programm programm;
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    QTRY_VERIFY(Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible());
    QVERIFY(HomepageOffen()->isVisible());
    HomepageServerVorgeben({});
}

void FrmHomepageTest::aSecondCallTriesAPageAgainThatFailed() {
    Server server(gruen.arg(QStringLiteral("Weiter")));
    const quint16 anschluss = server.serverPort();
    server.close();
    HomepageServerVorgeben(QStringLiteral("http://127.0.0.1:%1").arg(anschluss));
    const Zusatzordner zusatz;
    const Programm programm;
    auto* cmdHomepage = Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"));
    cmdHomepage->click();
    QTRY_VERIFY(Verdeckt());
    QVERIFY(server.listen(QHostAddress::LocalHost, anschluss));
    cmdHomepage->click();
    QTRY_VERIFY(!Verdeckt());
    QTRY_VERIFY(IstGruen());
    QCOMPARE(server.Anfragen(QStringLiteral("/modules.php")), 1);
    // A page that stands isn't loaded again.
    cmdHomepage->click();
    QVERIFY(!Verdeckt());
    QCOMPARE(server.Anfragen(QStringLiteral("/modules.php")), 1);
    HomepageServerVorgeben({});
}

void FrmHomepageTest::aPageWithAnErrorReportsNothing() {
    Server server(gruen.arg(QString()));
    server.koepfe.insert(QStringLiteral("/modules.php"), QStringLiteral("500 Kaputt"));
    const Dialogfolge dialoge;
    const Besuch besuch(server);
    QTRY_VERIFY(!server.gefragt.isEmpty());
    QVERIFY(HomepageOffen()->isVisible());
}

void FrmHomepageTest::asTheAdministratorNoPageIsShownWithoutItsWalls() {
    if (plattform::ProzesseAbschirmbar()) {
        QSKIP("the system shuts processes off for this user");
    }
    const QByteArray wert = qgetenv("QTWEBENGINE_DISABLE_SANDBOX");
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    const Server server(gruen.arg(QString()));
    {
        const Besuch besuch(server);
        QVERIFY(Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible());
        QVERIFY(qobject_cast<QLabel*>(Netz()) != nullptr);
    }
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", wert);
}

void FrmHomepageTest::theWindowClosesWhileItsPageIsLoading() {
    const Server server(gruen.arg(QString()));
    for (int i = 0; i < 3; ++i) {
        const Besuch besuch(server);
        HomepageOffen()->parentWidget()->close();
        QTRY_VERIFY(HomepageOffen() == nullptr);
    }
}

void FrmHomepageTest::theWindowLooksFinished() {
    const Server server(QStringLiteral(
        "<html><body style='font-family:sans-serif;background:#fffaeb;margin:2em'>"
        "<h1 style='color:#5c3a1e'>Feldkranz! - Downloads</h1><p>Hier gibt es Fragen für den "
        "Gruppenabend.</p>"
        "<ul><li>Fragen über Pflanzen</li><li>Fragen über Tiere</li></ul>"
        "<div style='background:#20c040;position:fixed;left:0;right:0;top:50%;height:40px'></div>"
        "</body></html>"));
    const Besuch besuch(server);
    QTRY_VERIFY(IstGruen());
    BildVon(besuch.programm.haupt(), QStringLiteral("frmHomepage"));
    QCOMPARE(rundgang::Maengel(*HomepageOffen()), QStringList()); // everything tells about itself
}

QTEST_MAIN(FrmHomepageTest)
#include "frmHomepage_test.moc"
