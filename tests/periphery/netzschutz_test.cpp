// What a web page may not do in the homepage's window.
#include "tests/periphery/netzhilfe.h"

class NetzschutzTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linksElsewhereGoToTheSystemsBrowser_data();
    void linksElsewhereGoToTheSystemsBrowser();
    void addressesOfNoWebLeadNowhere_data();
    void addressesOfNoWebLeadNowhere();
    void aRedirectElsewhereIsNotFollowed();
    void noFileOfTheMachineCanBeReadFromAPage();
    void nothingIsStored();
    void aPageOpensNeitherWindowsNorDialogs();
    void noPermissionIsGranted();
    void nothingStaysOnTheDisk();
};

void NetzschutzTest::linksElsewhereGoToTheSystemsBrowser_data() {
    QTest::addColumn<QString>("merkmale");
    QTest::newRow("plain") << QString();
    QTest::newRow("window of its own") << QStringLiteral("target='_blank'");
}

void NetzschutzTest::linksElsewhereGoToTheSystemsBrowser() {
    QFETCH(const QString, merkmale);
    const Server andere(gruen.arg(QString()));
    const QString ziel = QStringLiteral("http://localhost:%1/seite?a=b%20c").arg(andere.serverPort());
    const Server server(Verweis(ziel, merkmale));
    const Besuch besuch(server);
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
    Klicken();
    QTRY_COMPARE(besuch.draussen, QStringList{ziel});
    QCOMPARE(andere.gefragt, QStringList());
    QVERIFY(IstGruen()); // the page stays
}

void NetzschutzTest::addressesOfNoWebLeadNowhere_data() {
    QTest::addColumn<QString>("ziel");
    QTest::newRow("file") << QStringLiteral("file:///etc/hostname");
    QTest::newRow("ftp") << QStringLiteral("ftp://127.0.0.1/");
    QTest::newRow("mail") << QStringLiteral("mailto:a@feldkranz.example");
    QTest::newRow("data") << QStringLiteral("data:text/html,weg");
    QTest::newRow("chrome") << QStringLiteral("chrome://version");
    QTest::newRow("program") << QStringLiteral("fremd:machwas");
}

void NetzschutzTest::addressesOfNoWebLeadNowhere() {
    QFETCH(const QString, ziel);
    Server server(gruen.arg(QStringLiteral("<a href='%1' style='display:block;height:600px' "
                                           "onclick=\"fetch('/geklickt')\">Weiter</a>")
                                .arg(ziel)));
    const Besuch besuch(server);
    const Dialogfolge dialoge;
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/geklickt")), 1);
    // A second click is seen after all that the first one has caused.
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/geklickt")), 2);
    QCOMPARE(besuch.draussen, QStringList());
    QVERIFY(IstGruen());
}

void NetzschutzTest::aRedirectElsewhereIsNotFollowed() {
    const Server andere(gruen.arg(QString()));
    Server server;
    server.koepfe.insert(
        QStringLiteral("/modules.php"),
        QStringLiteral("302 Found\r\nLocation: http://localhost:%1/weg").arg(andere.serverPort()));
    const Besuch besuch(server);
    QTRY_VERIFY_WITH_TIMEOUT(Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible(), 20000);
    QCOMPARE(andere.gefragt, QStringList());
    QCOMPARE(besuch.draussen, QStringList());
}

void NetzschutzTest::noFileOfTheMachineCanBeReadFromAPage() {
    const QString geheim = QDir::homePath() + QStringLiteral("/geheim.html");
    QFile datei(geheim);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("<script>parent.postMessage('geheim','*')</script>");
    datei.close();
    const Server server(
        gruen.arg(QStringLiteral("<script>"
                                 "onmessage=e=>fetch('/gelesen?'+e.data);"
                                 "fetch('file://%1').then(r=>r.text()).then(t=>fetch('/gelesen?'+t))"
                                 ".catch(e=>fetch('/gesperrt'));"
                                 "let b=new Image();b.onload=()=>fetch('/gelesen?bild');"
                                 "b.onerror=()=>fetch('/bildgesperrt');b.src='file://%1';"
                                 "let d=new Image();d.onload=()=>fetch('/gelesen?daten');"
                                 "d.onerror=()=>fetch('/datengesperrt');"
                                 "d.src='data:image/gif;base64,R0lGODlhAQABAAAAACw=';"
                                 "</script><iframe src='file://%1' onload=\"fetch('/rahmen')\"></iframe>")
                      .arg(geheim)));
    const Besuch besuch(server);
    QTRY_COMPARE_WITH_TIMEOUT(server.Anfragen(QStringLiteral("/gesperrt")), 1, 20000);
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/bildgesperrt")), 1);
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/datengesperrt")), 1);
    QCOMPARE(server.Anfragen(QStringLiteral("/gelesen")), 0);
}

void NetzschutzTest::nothingIsStored() {
    Server server(Verweis(QStringLiteral("/Feldkranz.zip")));
    server.seiten.insert(QStringLiteral("/Feldkranz.zip"), QStringLiteral("PK"));
    server.koepfe.insert(QStringLiteral("/Feldkranz.zip"),
                         QStringLiteral("200 OK\r\nContent-Type: application/zip\r\n"
                                        "Content-Disposition: attachment; filename=Feldkranz.zip"));
    const QStringList vorher = AllesImHeimordner();
    const Besuch besuch(server);
    const Dialogfolge dialoge;
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
    Klicken();
    // The user asked for the file, and his own browser fetches it.
    QTRY_COMPARE(besuch.draussen, QStringList{server.adresse() + QStringLiteral("/Feldkranz.zip")});
    QCOMPARE(AllesImHeimordner(), vorher);
    QVERIFY(!QDir::current().exists(QStringLiteral("Feldkranz.zip")));
}

void NetzschutzTest::aPageOpensNeitherWindowsNorDialogs() {
    const Server server(gruen.arg(
        QStringLiteral("<input type=file id=d><script>"
                       "open('/fenster');alert('a');let ja=confirm('b');let t=prompt('c');"
                       "document.getElementById('d').click();"
                       "let x=document.createElement('a');x.href='/fenster';x.target='_blank';x.click();"
                       "location.href='/modules.php#'+ja+t;fetch('/fertig?'+ja+t);</script>")));
    const Besuch besuch(server);
    const Dialogfolge dialoge;
    const auto fenster = QApplication::topLevelWidgets().size();
    QTRY_COMPARE_WITH_TIMEOUT(server.Anfragen(QStringLiteral("/fertig")), 1, 20000);
    QVERIFY2(server.gefragt.contains(QStringLiteral("/fertig?falsenull")),
             qPrintable(server.gefragt.join(u' ')));
    QCOMPARE(server.Anfragen(QStringLiteral("/fenster")), 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), fenster);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QCOMPARE(besuch.draussen, QStringList());
}

void NetzschutzTest::noPermissionIsGranted() {
    const Server server(gruen.arg(QStringLiteral(
        "<script>"
        "let n=(w,e)=>fetch('/'+w+'?'+e);"
        "navigator.geolocation.getCurrentPosition(p=>n('erlaubt','ort'),e=>n('verweigert','ort'));"
        "navigator.mediaDevices.getUserMedia({audio:true,video:true})"
        ".then(s=>n('erlaubt','kamera'),e=>n('verweigert','kamera'));"
        "Notification.requestPermission().then(p=>n(p=='granted'?'erlaubt':'verweigert','hinweis'));"
        "navigator.clipboard.readText()"
        ".then(t=>n('erlaubt','ablage'),e=>n('verweigert','ablage'));"
        "</script>")));
    const Besuch besuch(server);
    const Dialogfolge dialoge;
    QTRY_COMPARE_WITH_TIMEOUT(server.Anfragen(QStringLiteral("/verweigert")), 4, 20000);
    QCOMPARE(server.Anfragen(QStringLiteral("/erlaubt")), 0);
}

void NetzschutzTest::nothingStaysOnTheDisk() {
    const QStringList vorher = AllesImHeimordner();
    {
        Server server(gruen.arg(QStringLiteral("<script>document.cookie='keks=1;max-age=99999';"
                                               "try{localStorage.setItem('a','b')}catch(e){}"
                                               "fetch('/keks')</script>")));
        server.koepfe.insert(QStringLiteral("/keks"),
                             QStringLiteral("200 OK\r\nSet-Cookie: zweiter=1; Max-Age=99999\r\n"
                                            "Cache-Control: max-age=99999"));
        const Besuch besuch(server);
        QTRY_COMPARE_WITH_TIMEOUT(server.Anfragen(QStringLiteral("/keks")), 1, 20000);
        QTRY_VERIFY(IstGruen());
    }
    QCOMPARE(AllesImHeimordner(), vorher);
}

QTEST_MAIN(NetzschutzTest)
#include "netzschutz_test.moc"
