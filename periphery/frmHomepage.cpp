#include "periphery/frmHomepage.h"

#include "core/hauptfenster.h"
#include "core/konfiguration.h"
#include "core/meldungstext.h"
#include "core/oberflaeche.h"
#include "core/plattform.h"
#include "periphery/netzansicht.h"
#include "periphery/texte.h"
#include "periphery/uebergabe.h"
#include "periphery/zusatz.h"
#include "tooltips/hinweise.h"

#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

QPointer<frmHomepage> offen;
QString vorgegebenerServer;

constexpr int breite = 12210; // twips, with the frame
constexpr int hoehe = 8520;
constexpr int oben = 30; // where the page begins

// The toolkit's web library ends the process where the system gives it no walls to put web pages behind.
bool NetzSicher() {
    return plattform::ProzesseAbschirmbar() || qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX");
}

void NachAussen(const QUrl& adresse) {
    AnSystemUebergeben(adresse.toString(QUrl::FullyEncoded).toStdString()); // reports nothing
}

} // namespace

frmHomepage::frmHomepage(QUrl seite, QWidget* eltern) : QWidget(eltern), seite_(std::move(seite)) {
    offen = this;
    setObjectName(QStringLiteral("frmHomepage"));
    setProperty("tag", QStringLiteral("Homepage"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Anzeige(Einsetzen(periphertexte::homepageTitel, {konfiguration::homepageText})));
    NetzBauen();
    WebBrowser1_->setObjectName(QStringLiteral("WebBrowser1"));
    pnlErsatz_ = ErsatzBauen();
    SeiteDaZeigen(qobject_cast<QLabel*>(WebBrowser1_) == nullptr);
    setFocusProxy(WebBrowser1_);
    HinweiseSetzen(*this, periphertexte::homepageHinweise);
}

void frmHomepage::NetzBauen() {
    Netzzusatz* zusatz = NetzSicher() ? Zusatz<Netzzusatz>(QStringLiteral("feldkranz_web")) : nullptr;
    if (zusatz == nullptr) {
        WebBrowser1_ = new QLabel(this); // an empty place
        return;
    }
    Netzregeln regeln;
    regeln.ziel = [schema = seite_.scheme().toStdString(),
                   host = seite_.host().toStdString()](const QUrl& adresse) {
        return NetzzielFuer(adresse.scheme().toStdString(), adresse.host().toStdString(), schema, host);
    };
    regeln.nachAussen = NachAussen;
    regeln.geladen = [this](bool gelungen) { SeiteDaZeigen(gelungen); };
    ansicht_ = zusatz->Bauen(this, std::move(regeln));
    WebBrowser1_ = ansicht_->Steuerelement();
    ansicht_->Zeigen(seite_);
}

void frmHomepage::NeuVersuchen() {
    if (ansicht_ != nullptr && !pnlErsatz_->isHidden()) {
        ansicht_->Zeigen(seite_);
    }
}

QWidget* frmHomepage::ErsatzBauen() {
    auto* ersatz = new QWidget(this);
    ersatz->setObjectName(QStringLiteral("pnlErsatz"));
    ersatz->setAutoFillBackground(true);
    ersatz->setBackgroundRole(QPalette::Base);
    auto* spalte = new QVBoxLayout(ersatz);
    auto* lblHinweis = new QLabel(Anzeige(periphertexte::seiteFehlt), ersatz);
    lblHinweis->setObjectName(QStringLiteral("lblHinweis"));
    lblHinweis->setWordWrap(true);
    lblHinweis->setAlignment(Qt::AlignCenter);
    auto* cmdBrowser = new QPushButton(Anzeige(periphertexte::imBrowser), ersatz);
    cmdBrowser->setObjectName(QStringLiteral("cmdBrowser"));
    connect(cmdBrowser, &QPushButton::clicked, this, [this] { NachAussen(seite_); });
    spalte->addStretch();
    spalte->addWidget(lblHinweis);
    spalte->addWidget(cmdBrowser, 0, Qt::AlignHCenter);
    spalte->addStretch();
    return ersatz;
}

void frmHomepage::SeiteDaZeigen(bool da) {
    if (pnlErsatz_ != nullptr) {
        pnlErsatz_->setVisible(!da);
        pnlErsatz_->raise();
    }
}

void frmHomepage::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    if (!isMinimized()) {
        const QRect platz(0, Pixel(oben), width(), height() - Pixel(oben));
        WebBrowser1_->setGeometry(platz);
        pnlErsatz_->setGeometry(platz);
    }
}

void HomepageZeigen() {
    if (offen == nullptr) {
        const std::string server = vorgegebenerServer.isEmpty() ? std::string(konfiguration::homepage)
                                                                : vorgegebenerServer.toStdString();
        auto* fenster = new frmHomepage(QUrl(Anzeige(Downloadseite(server))));
        QMdiSubWindow* kind = KindfensterAufnehmen(fenster);
        if (kind != nullptr) {
            kind->resize(Pixel(breite), Pixel(hoehe));
            kind->show();
            // In the middle: the child area's own choice is where the fewest windows are, even if out of
            // sight.
            const QSize rest = kind->parentWidget()->size() - kind->size();
            kind->move(std::max(0, rest.width() / 2), std::max(0, rest.height() / 2));
        }
        fenster->show();
    } else {
        offen->NeuVersuchen();
    }
    KindNachVorn(offen);
}

frmHomepage* HomepageOffen() {
    return offen;
}

void HomepageServerVorgeben(const QString& server) {
    vorgegebenerServer = server;
}
