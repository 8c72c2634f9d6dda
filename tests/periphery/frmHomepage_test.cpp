// The homepage's window: where it leads, what a page may do there, and that nothing is said when there is
// none.
#include "core/frmMDI.h"
#include "core/plattform.h"
#include "periphery/frmHomepage.h"
#include "periphery/uebergabe.h"
#include "tests/hilfe/bild.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/finden.h"
#include "tests/hilfe/programm.h"
#include "tests/periphery/rundgang.h"
#include "tests/periphery/zusatzordner.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

// A web server on this machine alone. It answers with the page that stands under the path, and notes who
// asked for what.
class Server : public QTcpServer {
public:
    explicit Server(const QString& seite = {}) {
        listen(QHostAddress::LocalHost);
        seiten.insert(QStringLiteral("/modules.php"), seite);
        QObject::connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* leitung = nextPendingConnection();
            QObject::connect(leitung, &QTcpSocket::readyRead, leitung,
                             [this, leitung] { Antworten(leitung); });
        });
    }
    [[nodiscard]] QString adresse() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }
    // How often a path was asked for, "?" and what follows left out.
    [[nodiscard]] qsizetype Anfragen(const QString& pfad) const {
        return std::count_if(gefragt.begin(), gefragt.end(),
                             [&](const QString& frage) { return frage.section(u'?', 0, 0) == pfad; });
    }

    QHash<QString, QString> seiten;
    QHash<QString, QString> koepfe; // further lines of the head of an answer
    QStringList gefragt;

private:
    void Antworten(QTcpSocket* leitung) {
        const QString frage = QString::fromUtf8(leitung->readAll()).section(u' ', 1, 1);
        const QString pfad = frage.section(u'?', 0, 0);
        gefragt.append(frage);
        const QByteArray inhalt = seiten.value(pfad).toUtf8();
        const QString kopf =
            koepfe.value(pfad, QStringLiteral("200 OK\r\nContent-Type: text/html; charset=utf-8"));
        leitung->write("HTTP/1.1 " + kopf.toUtf8() + "\r\nConnection: close\r\nContent-Length: " +
                       QByteArray::number(inhalt.size()) + "\r\n\r\n" + inhalt);
        leitung->disconnectFromHost();
    }
};

const QString gruen = QStringLiteral("<html><body style='background:#20c040;margin:0'>%1</body></html>");

// A page that fills the window with a link.
QString Verweis(const QString& ziel, const QString& merkmale = {}) {
    return gruen.arg(
        QStringLiteral("<a href='%1' %2 style='display:block;height:600px'>Weiter</a>").arg(ziel, merkmale));
}

QWidget* Netz() {
    return Finden(HomepageOffen(), QStringLiteral("WebBrowser1"));
}

// Colour in the middle of the page, as the user sees it.
QColor Mitte() {
    const QImage bild = Netz()->grab().toImage();
    return bild.pixelColor(bild.width() / 2, bild.height() / 2);
}

bool IstGruen() {
    const QColor farbe = Mitte();
    return farbe.green() > 150 && farbe.red() < 90 && farbe.blue() < 110;
}

void Klicken() {
    // The page's own widget takes the events; it is made with the first page.
    QTRY_VERIFY(Netz()->focusProxy() != nullptr);
    QTest::mouseClick(Netz()->focusProxy(), Qt::LeftButton, {}, QPoint(60, 60));
}

// Shows the homepage from a server; what leaves the program is collected.
struct Besuch {
    explicit Besuch(const Server& server) {
        HomepageServerVorgeben(server.adresse());
        UebergabeErsetzen([this](const std::string& adresse) {
            draussen.append(QString::fromStdString(adresse));
            return true;
        });
        Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    }
    ~Besuch() {
        UebergabeErsetzen({});
        HomepageServerVorgeben({});
    }
    Besuch(const Besuch&) = delete;
    Besuch& operator=(const Besuch&) = delete;

    Zusatzordner zusatz;
    Programm programm;
    QStringList draussen;
};

QStringList AllesImHeimordner() {
    QStringList alles;
    QDirIterator suche(QDir::homePath(), QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (suche.hasNext()) {
        alles.append(suche.next());
    }
    alles.sort();
    return alles;
}

} // namespace

class FrmHomepageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowIsAChildOfTheMainWindowWithTheSiteInItsTitle();
    void thePageIsAskedForByItsAddressAndShown();
    void thePageFillsTheWindowBelowItsFirstTwoPixels();
    void aSecondCallBringsTheSameWindowToTheFront();
    void theMenuEntryShowsTheSameWindow();
    void linksOfTheMakersStayInTheWindow();
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
    void aServerThatIsNotThereReportsNothing();
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
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
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
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
}

void FrmHomepageTest::linksOfTheMakersStayInTheWindow() {
    Server server(Verweis(QStringLiteral("/zwei.html")));
    server.seiten.insert(QStringLiteral("/zwei.html"), gruen.arg(QStringLiteral("zwei")));
    const Besuch besuch(server);
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
    Klicken();
    QTRY_COMPARE(server.Anfragen(QStringLiteral("/zwei.html")), 1);
    QVERIFY(besuch.draussen.isEmpty());
}

void FrmHomepageTest::linksElsewhereGoToTheSystemsBrowser_data() {
    QTest::addColumn<QString>("merkmale");
    QTest::newRow("plain") << QString();
    QTest::newRow("window of its own") << QStringLiteral("target='_blank'");
}

void FrmHomepageTest::linksElsewhereGoToTheSystemsBrowser() {
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

void FrmHomepageTest::addressesOfNoWebLeadNowhere_data() {
    QTest::addColumn<QString>("ziel");
    QTest::newRow("file") << QStringLiteral("file:///etc/hostname");
    QTest::newRow("ftp") << QStringLiteral("ftp://127.0.0.1/");
    QTest::newRow("mail") << QStringLiteral("mailto:a@feldkranz.example");
    QTest::newRow("data") << QStringLiteral("data:text/html,weg");
    QTest::newRow("chrome") << QStringLiteral("chrome://version");
    QTest::newRow("program") << QStringLiteral("fremd:machwas");
}

void FrmHomepageTest::addressesOfNoWebLeadNowhere() {
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

void FrmHomepageTest::aRedirectElsewhereIsNotFollowed() {
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

void FrmHomepageTest::noFileOfTheMachineCanBeReadFromAPage() {
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

void FrmHomepageTest::nothingIsStored() {
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

void FrmHomepageTest::aPageOpensNeitherWindowsNorDialogs() {
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

void FrmHomepageTest::noPermissionIsGranted() {
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

void FrmHomepageTest::nothingStaysOnTheDisk() {
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

void FrmHomepageTest::aServerThatIsNotThereReportsNothing() {
    Server server;
    server.close();
    const Dialogfolge dialoge;
    HomepageServerVorgeben(QStringLiteral("http://127.0.0.1:1"));
    const Zusatzordner zusatz;
    const Programm programm;
    Finden<QAbstractButton>(programm.haupt(), QStringLiteral("cmdHomepage"))->click();
    QTRY_VERIFY_WITH_TIMEOUT(Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible(), 20000);
    QVERIFY(HomepageOffen()->isVisible());
    HomepageServerVorgeben({});
}

void FrmHomepageTest::aPageWithAnErrorReportsNothing() {
    Server server(gruen.arg(QString()));
    server.koepfe.insert(QStringLiteral("/modules.php"), QStringLiteral("500 Kaputt"));
    const Dialogfolge dialoge;
    const Besuch besuch(server);
    QTRY_VERIFY_WITH_TIMEOUT(!server.gefragt.isEmpty(), 20000);
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
    QTRY_VERIFY_WITH_TIMEOUT(IstGruen(), 20000);
    BildVon(besuch.programm.haupt(), QStringLiteral("frmHomepage"));
    QCOMPARE(rundgang::Maengel(*HomepageOffen()), QStringList()); // everything tells about itself
}

QTEST_MAIN(FrmHomepageTest)
#include "frmHomepage_test.moc"
