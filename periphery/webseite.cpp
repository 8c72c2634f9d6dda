#include "periphery/webseite.h"

#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>

#include <array>
#include <utility>

namespace {

// Whatever could reach files, devices, other windows or the disk. Scripts stay: the page may be built by
// them.
constexpr std::array abgeschaltet{
    QWebEngineSettings::JavascriptCanOpenWindows,
    QWebEngineSettings::JavascriptCanAccessClipboard,
    QWebEngineSettings::JavascriptCanPaste,
    QWebEngineSettings::LocalStorageEnabled,
    QWebEngineSettings::LocalContentCanAccessRemoteUrls,
    QWebEngineSettings::LocalContentCanAccessFileUrls,
    QWebEngineSettings::AllowRunningInsecureContent,
    QWebEngineSettings::AllowGeolocationOnInsecureOrigins,
    QWebEngineSettings::AllowWindowActivationFromJavaScript,
    QWebEngineSettings::HyperlinkAuditingEnabled,
    QWebEngineSettings::PluginsEnabled,
    QWebEngineSettings::PdfViewerEnabled,
    QWebEngineSettings::FullScreenSupportEnabled,
    QWebEngineSettings::ScreenCaptureEnabled,
    QWebEngineSettings::WebGLEnabled,
    QWebEngineSettings::DnsPrefetchEnabled,
    QWebEngineSettings::ErrorPageEnabled, // the window has a word of its own
    QWebEngineSettings::NavigateOnDropEnabled,
};

constexpr qint64 eingabefrist = 2000; // ms from an input to the link that it follows

} // namespace

Webseite::Webseite(QWebEngineProfile* profil, Netzregeln regeln)
    : QWebEnginePage(profil), regeln_(std::move(regeln)) {
    Einschraenken();
    WuenscheAblehnen();
    connect(this, &QWebEnginePage::loadingChanged, this, &Webseite::LadenVerfolgen);
    connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] { Melden(false); });
    connect(this, &QWebEnginePage::newWindowRequested, this, &Webseite::FensterErsetzen);
}

void Webseite::Melden(bool gelungen) {
    steht_ = gelungen;
    regeln_.geladen(gelungen);
}

// A link that is refused here, or a file, stops a load as well; the page that stands stays in sight then.
void Webseite::LadenVerfolgen(const QWebEngineLoadingInfo& stand) {
    const bool abgebrochen = stand.status() == QWebEngineLoadingInfo::LoadStoppedStatus;
    if (stand.status() == QWebEngineLoadingInfo::LoadStartedStatus || (abgebrochen && steht_)) {
        return;
    }
    const bool gelungen = stand.status() == QWebEngineLoadingInfo::LoadSucceededStatus;
    if (gelungen) {
        gefolgt_.clear();
    }
    Melden(gelungen);
}

void Webseite::Einschraenken() {
    for (const QWebEngineSettings::WebAttribute merkmal : abgeschaltet) {
        settings()->setAttribute(merkmal, false);
    }
    settings()->setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    settings()->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

// Certificates that don't fit, and passwords, are refused by the toolkit where nobody answers.
void Webseite::WuenscheAblehnen() {
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& herkunft, Feature wunsch) {
                setFeaturePermission(herkunft, wunsch, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest wunsch) { wunsch.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest wunsch) { wunsch.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest wunsch) { wunsch.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest wunsch) { wunsch.reject(); });
    connect(this, &QWebEnginePage::selectClientCertificate, this,
            [](QWebEngineClientCertificateSelection wunsch) { wunsch.selectNone(); });
}

// A link that wants a window of its own is a link like any other; nobody else gets a window.
void Webseite::FensterErsetzen(const QWebEngineNewWindowRequest& wunsch) {
    if (!wunsch.isUserInitiated() || !EingabeVerbrauchen()) {
        return;
    }
    if (regeln_.ziel(wunsch.requestedUrl()) == Netzziel::Hier) {
        verlangt_ = wunsch.requestedUrl();
        setUrl(verlangt_);
    } else {
        Abgeben(wunsch.requestedUrl());
    }
}

void Webseite::Eingegeben() {
    eingabe_.start();
}

bool Webseite::EingabeVerbrauchen() {
    const bool frisch = eingabe_.isValid() && !eingabe_.hasExpired(eingabefrist);
    eingabe_.invalidate();
    return frisch;
}

void Webseite::Abgeben(const QUrl& adresse) {
    gefolgt_.clear();
    if (regeln_.ziel(adresse) == Netzziel::Aussen) {
        regeln_.nachAussen(adresse);
    }
}

void Webseite::DateiAbgeben(const QUrl& adresse) {
    if (regeln_.ziel(adresse) != Netzziel::Nirgends && adresse == std::exchange(gefolgt_, {})) {
        regeln_.nachAussen(adresse);
    }
}

// Where a followed link is sent on to is followed by the user as well.
bool Webseite::VomBenutzer(const QUrl& adresse, NavigationType art) {
    if (art == NavigationTypeRedirect) {
        return !gefolgt_.isEmpty();
    }
    const bool verlangt = !verlangt_.isEmpty() && adresse == std::exchange(verlangt_, {});
    return verlangt || (art == NavigationTypeLinkClicked && EingabeVerbrauchen());
}

bool Webseite::acceptNavigationRequest(const QUrl& adresse, NavigationType art, bool hauptrahmen) {
    const bool hier = regeln_.ziel(adresse) == Netzziel::Hier;
    if (VomBenutzer(adresse, art)) {
        gefolgt_ = adresse;
        if (!hier) {
            Abgeben(adresse);
        }
    } else if (hauptrahmen) {
        gefolgt_.clear();
    }
    return hier;
}

QStringList Webseite::chooseFiles(FileSelectionMode /*art*/, const QStringList& /*alte*/,
                                  const QStringList& /*arten*/) {
    return {};
}

void Webseite::javaScriptAlert(const QUrl& /*quelle*/, const QString& /*text*/) {}

bool Webseite::javaScriptConfirm(const QUrl& /*quelle*/, const QString& /*text*/) {
    return false;
}

bool Webseite::javaScriptPrompt(const QUrl& /*quelle*/, const QString& /*text*/, const QString& /*vorgabe*/,
                                QString* /*antwort*/) {
    return false;
}

void Webseite::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*stufe*/, const QString& /*text*/,
                                        int /*zeile*/, const QString& /*quelle*/) {}
