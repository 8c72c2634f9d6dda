// What a web page may not do in the homepage's window.
#include "tests/periphery/netzhilfe.h"

namespace {

const QString zip = QStringLiteral("/Feldkranz.zip");

} // namespace

class NetzschutzTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linksElsewhereGoToTheSystemsBrowser_data();
    void linksElsewhereGoToTheSystemsBrowser();
    void addressesOfNoWebLeadNowhere_data();
    void addressesOfNoWebLeadNowhere();
    void aRedirectElsewhereIsNotFollowed();
    void noFileOfTheMachineCanBeReadFromAPage();
    void nothingIsStored_data();
    void nothingIsStored();
    void aFollowedLinkOfTheMakersMayLeadElsewhere();
    void aScriptAloneOpensNothingOutside_data();
    void aScriptAloneOpensNothingOutside();
    void oneClickOpensOneAddressOutside();
    void theKeyboardFollowsALinkToo();
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
    QTRY_VERIFY(IstGruen());
    const auto geladen = Ladezaehler();
    Klicken();
    QTRY_COMPARE(besuch.draussen, QStringList{ziel});
    if (merkmale.isEmpty()) {
        QTRY_COMPARE(geladen->size(), 1); // the page that wasn't loaded
    }
    QCOMPARE(andere.gefragt, QStringList());
    QVERIFY(!Verdeckt());
    QVERIFY(IstGruen()); // the page stays
}

void NetzschutzTest::addressesOfNoWebLeadNowhere_data() {
    QTest::addColumn<QString>("ziel");
    QTest::addColumn<bool>("versucht"); // the page itself refuses the others already
    QTest::newRow("file") << QStringLiteral("file:///etc/hostname") << false;
    QTest::newRow("ftp") << QStringLiteral("ftp://127.0.0.1/") << true;
    QTest::newRow("mail") << QStringLiteral("mailto:a@feldkranz.example") << true;
    QTest::newRow("data") << QStringLiteral("data:text/html,weg") << false;
    QTest::newRow("chrome") << QStringLiteral("chrome://version") << false;
    QTest::newRow("program") << QStringLiteral("fremd:machwas") << true;
}

void NetzschutzTest::addressesOfNoWebLeadNowhere() {
    QFETCH(const QString, ziel);
    QFETCH(const bool, versucht);
    Server server(gruen.arg(QStringLiteral("<a href='%1' style='display:block;height:600px' "
                                           "onclick=\"fetch('/geklickt')\">Weiter</a>")
                                .arg(ziel)));
    const Besuch besuch(server);
    const Dialogfolge dialoge;
    QTRY_VERIFY(IstGruen());
    const auto geladen = Ladezaehler();
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/geklickt")), 1);
    // A second click is seen after all that the first one has caused.
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/geklickt")), 2);
    if (versucht) {
        QTRY_COMPARE(geladen->size(), 2);
    }
    QVERIFY(!Verdeckt());
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
    QTRY_VERIFY(Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible());
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
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/gesperrt")), 1);
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/bildgesperrt")), 1);
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/datengesperrt")), 1);
    QCOMPARE(server.Anfragen(QStringLiteral("/gelesen")), 0);
}

void NetzschutzTest::nothingIsStored_data() {
    QTest::addColumn<QString>("pfad");
    QTest::addColumn<QString>("merkmale");
    QTest::newRow("plain") << zip << QString();
    QTest::newRow("window of its own") << zip << QStringLiteral("target='_blank'");
    QTest::newRow("by a redirect") << QStringLiteral("/laden") << QString();
}

void NetzschutzTest::nothingIsStored() {
    QFETCH(const QString, pfad);
    QFETCH(const QString, merkmale);
    Server server(Verweis(pfad, merkmale));
    server.seiten.insert(zip, QStringLiteral("PK"));
    server.koepfe.insert(zip, QStringLiteral("200 OK\r\nContent-Type: application/zip\r\n"
                                             "Content-Disposition: attachment; filename=Feldkranz.zip"));
    server.koepfe.insert(QStringLiteral("/laden"), QStringLiteral("302 Found\r\nLocation: ") + zip);
    const QStringList vorher = AllesImHeimordner();
    const Besuch besuch(server);
    const Dialogfolge dialoge;
    QTRY_VERIFY(IstGruen());
    const auto geladen = Ladezaehler();
    Klicken();
    // The user asked for the file, and his own browser fetches it.
    QTRY_COMPARE(besuch.draussen, QStringList{server.adresse() + zip});
    QTRY_COMPARE(geladen->size(), 1);
    QVERIFY(!Verdeckt());
    QVERIFY(IstGruen());
    // A name that exists for a moment is no trace; one that stays is.
    QTRY_COMPARE(AllesImHeimordner().join(u'\n'), vorher.join(u'\n'));
    QVERIFY(!QDir::current().exists(QStringLiteral("Feldkranz.zip")));
}

void NetzschutzTest::aFollowedLinkOfTheMakersMayLeadElsewhere() {
    const Server andere(gruen.arg(QString()));
    const QString ziel = QStringLiteral("http://localhost:%1/weg").arg(andere.serverPort());
    Server server(Verweis(QStringLiteral("/weiter")));
    server.koepfe.insert(QStringLiteral("/weiter"), QStringLiteral("302 Found\r\nLocation: ") + ziel);
    const Besuch besuch(server);
    QTRY_VERIFY(IstGruen());
    const auto geladen = Ladezaehler();
    Klicken();
    QTRY_COMPARE(besuch.draussen, QStringList{ziel});
    QTRY_COMPARE(geladen->size(), 1);
    QCOMPARE(andere.gefragt, QStringList());
    QVERIFY(IstGruen());
}

void NetzschutzTest::aScriptAloneOpensNothingOutside_data() {
    QTest::addColumn<QString>("befehl");
    QTest::newRow("address") << QStringLiteral("location='%1'");
    QTest::newRow("link") << QStringLiteral("let a=document.createElement('a');a.href='%1';"
                                            "document.body.append(a);a.click()");
    QTest::newRow("link to a window")
        << QStringLiteral("let a=document.createElement('a');a.href='%1';a.target='_blank';"
                          "document.body.append(a);a.click()");
    QTest::newRow("form") << QStringLiteral("let f=document.createElement('form');f.action='%1';"
                                            "document.body.append(f);f.submit()");
    QTest::newRow("redirect") << QStringLiteral("location='/weiter'");
    QTest::newRow("file") << QStringLiteral("location='/Feldkranz.zip'");
}

void NetzschutzTest::aScriptAloneOpensNothingOutside() {
    QFETCH(const QString, befehl);
    const Server andere(gruen.arg(QString()));
    const QString ziel = QStringLiteral("http://localhost:%1/weg").arg(andere.serverPort());
    const QString ruf = befehl.contains(QLatin1String("%1")) ? befehl.arg(ziel) : befehl;
    Server server(gruen.arg(QStringLiteral("<script>onload=()=>{setTimeout(()=>{%1},100);"
                                           "setInterval(()=>fetch('/danach'),700)}</script>")
                                .arg(ruf)));
    server.seiten.insert(zip, QStringLiteral("PK"));
    server.koepfe.insert(zip, QStringLiteral("200 OK\r\nContent-Type: application/zip"));
    server.koepfe.insert(QStringLiteral("/weiter"), QStringLiteral("302 Found\r\nLocation: ") + ziel);
    const Besuch besuch(server);
    // The page is still there and goes on, long after it has tried.
    QTRY_VERIFY(server.Anfragen(QStringLiteral("/danach")) >= 2);
    QCOMPARE(besuch.draussen, QStringList());
    QCOMPARE(andere.gefragt, QStringList());
    QVERIFY(IstGruen());
}

void NetzschutzTest::oneClickOpensOneAddressOutside() {
    const Server server(
        gruen.arg(QStringLiteral("<script>let n=0;function auf(){let a=document.createElement('a');"
                                 "a.href='http://localhost:4711/'+n++;document.body.append(a);a.click()}"
                                 "function klick(){auf();setTimeout(auf,200);"
                                 "setTimeout(()=>fetch('/danach'),600)}</script>"
                                 "<div onclick='klick()' style='height:600px'>Weiter</div>")));
    const Besuch besuch(server);
    QTRY_VERIFY(IstGruen());
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/danach")), 1);
    QCOMPARE(besuch.draussen, QStringList{QStringLiteral("http://localhost:4711/0")});
}

void NetzschutzTest::theKeyboardFollowsALinkToo() {
    const QString ziel = QStringLiteral("http://localhost:4711/seite");
    const Server server(Verweis(ziel));
    const Besuch besuch(server);
    QTRY_VERIFY(IstGruen());
    QTRY_VERIFY(Netz()->focusProxy() != nullptr);
    Netz()->setFocus();
    QTRY_VERIFY(Netz()->focusProxy()->hasFocus());
    QTest::keyClick(Netz()->focusProxy(), Qt::Key_Tab);
    QTest::keyClick(Netz()->focusProxy(), Qt::Key_Return);
    QTRY_COMPARE(besuch.draussen, QStringList{ziel});
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
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/fertig")), 1);
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
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/verweigert")), 4);
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
        QTRY_COMPARE(server.Anfragen(QStringLiteral("/keks")), 1);
        QTRY_VERIFY(IstGruen());
    }
    QTRY_COMPARE(AllesImHeimordner().join(u'\n'), vorher.join(u'\n'));
}

QTEST_MAIN(NetzschutzTest)
#include "netzschutz_test.moc"
