#include "periphery/webansicht.h"

#include "periphery/webseite.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QKeyEvent>
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

// Whether an event may follow a link. Only the window system makes such events, no page.
bool FolgtVerweis(const QEvent& ereignis) {
    switch (ereignis.type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const int taste = static_cast<const QKeyEvent&>(ereignis).key();
        return taste == Qt::Key_Return || taste == Qt::Key_Enter || taste == Qt::Key_Space;
    }
    default:
        return false;
    }
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

void Webansicht::childEvent(QChildEvent* ereignis) {
    if (ereignis->added()) {
        ereignis->child()->installEventFilter(this);
    }
    QWebEngineView::childEvent(ereignis);
}

bool Webansicht::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (FolgtVerweis(*ereignis)) {
        seite_->Eingegeben();
    }
    return QWebEngineView::eventFilter(ziel, ereignis);
}

Netzansicht* Webzusatz::Bauen(QWidget* eltern, Netzregeln regeln) {
    OhneTreiberZeichnen();
    return new Webansicht(eltern, std::move(regeln));
}
