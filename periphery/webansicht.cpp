#include "periphery/webansicht.h"

#include "periphery/webseite.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInfo>

// The toolkit's own way of sharing one drawing context; in no public header.
QT_BEGIN_NAMESPACE
extern Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

namespace {

// The web library wants to be known before the program's first window, and would have every start pay for a
// 3D driver. One page needs none: it is drawn in software, and the library finds a context that is never
// used.
void OhneTreiberZeichnen() {
    if (QOpenGLContext::globalShareContext() != nullptr) {
        return; // done before
    }
    qt_gl_set_global_share_context(new QOpenGLContext(QCoreApplication::instance()));
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace

void Torwaechter::interceptRequest(QWebEngineUrlRequestInfo& anfrage) {
    if (ziel_(anfrage.requestUrl()) == Netzziel::Nirgends) {
        anfrage.block(true);
    }
}

Webansicht::Webansicht(QWidget* eltern, Netzregeln regeln)
    : QWebEngineView(eltern),
      torwaechter_(std::make_unique<Torwaechter>(regeln.ziel)),
      profil_(std::make_unique<QWebEngineProfile>()), // without a name: nothing of it reaches the disk
      seite_(std::make_unique<Webseite>(profil_.get(), std::move(regeln))) {
    profil_->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    profil_->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    profil_->setSpellCheckEnabled(false);
    profil_->setUrlRequestInterceptor(torwaechter_.get());
    connect(profil_.get(), &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* datei) {
                datei->cancel();
                seite_->DateiAbgeben(datei->url());
            });
    setPage(seite_.get());
    setContextMenuPolicy(Qt::NoContextMenu); // its entries store pages and show sources
    setAcceptDrops(false);
}

Webansicht::~Webansicht() = default;

void Webansicht::Zeigen(const QUrl& adresse) {
    load(adresse);
}

Netzansicht* Webzusatz::Bauen(QWidget* eltern, Netzregeln regeln) {
    OhneTreiberZeichnen();
    return new Webansicht(eltern, std::move(regeln));
}
