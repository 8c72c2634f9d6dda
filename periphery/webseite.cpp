#include "periphery/webseite.h"

#include <QAuthenticator>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
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

} // namespace

Webseite::Webseite(QWebEngineProfile* profil, Netzregeln regeln)
    : QWebEnginePage(profil), regeln_(std::move(regeln)) {
    Einschraenken();
    WuenscheAblehnen();
    connect(this, &QWebEnginePage::loadFinished, this, [this](bool gelungen) { regeln_.geladen(gelungen); });
    connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] { regeln_.geladen(false); });
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
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest& wunsch) {
                // A link that wants a window of its own is a link like any other; nobody else gets a window.
                if (!wunsch.isUserInitiated()) {
                    return;
                }
                if (regeln_.ziel(wunsch.requestedUrl()) == Netzziel::Hier) {
                    setUrl(wunsch.requestedUrl());
                } else {
                    Abgeben(wunsch.requestedUrl());
                }
            });
}

void Webseite::Abgeben(const QUrl& adresse) const {
    if (regeln_.ziel(adresse) == Netzziel::Aussen) {
        regeln_.nachAussen(adresse);
    }
}

void Webseite::DateiAbgeben(const QUrl& adresse) {
    if (regeln_.ziel(adresse) != Netzziel::Nirgends && adresse == std::exchange(gefolgt_, {})) {
        regeln_.nachAussen(adresse);
    }
}

bool Webseite::acceptNavigationRequest(const QUrl& adresse, NavigationType art, bool hauptrahmen) {
    const bool gefolgt = art == NavigationTypeLinkClicked;
    const bool hier = regeln_.ziel(adresse) == Netzziel::Hier;
    if (gefolgt && hauptrahmen) {
        gefolgt_ = adresse;
        if (!hier) {
            Abgeben(adresse);
        }
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
