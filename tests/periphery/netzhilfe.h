// What the tests of the homepage share: a web server on this machine, and a visit to it.
#pragma once

#include "core/plattform.h"
#include "mainwindow/frmMDI.h"
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
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <memory>

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

inline const QString gruen =
    QStringLiteral("<html><body style='background:#20c040;margin:0'>%1</body></html>");

// A page that fills the window with a link.
inline QString Verweis(const QString& ziel, const QString& merkmale = {}) {
    return gruen.arg(
        QStringLiteral("<a href='%1' %2 style='display:block;height:600px'>Weiter</a>").arg(ziel, merkmale));
}

inline QWidget* Netz() {
    return Finden(HomepageOffen(), QStringLiteral("WebBrowser1"));
}

// Whether the word that there is no page covers the page.
inline bool Verdeckt() {
    return Finden(HomepageOffen(), QStringLiteral("pnlErsatz"))->isVisible();
}

// Counts the loads that have ended, well or badly. The page's control is known by its signals' names alone.
inline std::unique_ptr<QSignalSpy> Ladezaehler() {
    return std::make_unique<QSignalSpy>(Netz(), SIGNAL(loadFinished(bool)));
}

// Colour in the middle of the window, as the user sees it: with what covers the page.
inline QColor Mitte() {
    const QImage bild = HomepageOffen()->grab().toImage();
    const QRect seite = Netz()->geometry();
    return bild.pixelColor(seite.left() + seite.width() / 2, seite.top() + seite.height() / 2);
}

inline bool IstGruen() {
    const QColor farbe = Mitte();
    return farbe.green() > 150 && farbe.red() < 90 && farbe.blue() < 110;
}

inline void Klicken() {
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

inline QStringList AllesImHeimordner() {
    QStringList alles;
    QDirIterator suche(QDir::homePath(), QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (suche.hasNext()) {
        alles.append(suche.next());
    }
    alles.sort();
    return alles;
}
