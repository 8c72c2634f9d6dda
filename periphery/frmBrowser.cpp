#include "periphery/frmBrowser.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/pfad.h"
#include "periphery/dokumentleser.h"
#include "periphery/texte.h"
#include "tooltips/hinweise.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>

namespace {

QPointer<frmBrowser> offen;

constexpr std::string_view schema = "file://";
constexpr double ueberBildschirm = 2100; // twips that the window is lower than the screen
constexpr double seitenverhaeltnis = 0.68;
constexpr double saum = 100; // twips that the control is smaller than the window

// In the main window, as one of its child windows.
void Aufnehmen(frmBrowser& fenster) {
    QMdiSubWindow* kind = KindfensterAufnehmen(&fenster);
    if (kind != nullptr) {
        fenster.Platzieren(kind);
        kind->show();
    }
    fenster.show();
}

// A modal dialog blocks the main window with all its child windows, but not a window of its own: there the
// rules can be read beside the dialog. When that closes, the window moves into the main window.
void UeberDialogZeigen(frmBrowser& fenster, QDialog& dialog) {
    fenster.setParent(&dialog, Qt::Window);
    fenster.Platzieren(&fenster);
    QObject::connect(&dialog, &QDialog::finished, &fenster, [&fenster] {
        if (fenster.isVisible()) {
            fenster.hide();
            Aufnehmen(fenster);
        } else {
            fenster.deleteLater();
        }
    });
    fenster.show();
}

} // namespace

frmBrowser::frmBrowser(QWidget* eltern) : QWidget(eltern) {
    offen = this;
    setObjectName(QStringLiteral("frmBrowser"));
    setProperty("tag", QStringLiteral("Browser"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(Anzeige(periphertexte::regelTitel));
    brwWebBrowser_ = new Dokumentleser(this);
    brwWebBrowser_->setObjectName(QStringLiteral("brwWebBrowser"));
    setFocusProxy(brwWebBrowser_);
    HinweiseSetzen(*this, periphertexte::leserHinweise);
    for (const char* name : {"picAddress", "imlIcons"}) { // part of the window, and used by nobody
        auto* unbenutzt = new QLabel(this);
        unbenutzt->setObjectName(QLatin1String(name));
        unbenutzt->hide();
    }
}

void frmBrowser::Navigieren(std::string_view adresse) {
    const std::string pfad(adresse.substr(adresse.substr(0, schema.size()) == schema ? schema.size() : 0));
    const QString nativ = NativerPfad(pfad);
    setWindowTitle(Anzeige(brwWebBrowser_->Laden(nativ) ? std::string_view(EigenerPfad(nativ))
                                                        : periphertexte::regelTitel));
}

void frmBrowser::Platzieren(QWidget* rahmen) {
    const double hoehe = Bildschirmgroesse(this).height() * 15.0 - ueberBildschirm;
    const QSize aussen(Pixel(hoehe * seitenverhaeltnis), Pixel(hoehe));
    rahmen->move(0, 0);
    // A window of the desktop is told its inner size; its frame is known only later, and is thin.
    rahmen->resize(aussen);
}

void frmBrowser::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    TwipsGeometrie(brwWebBrowser_, saum / 2, saum / 2, width() * 15.0 - saum, height() * 15.0 - saum);
}

frmBrowser* BrowserOffen() {
    return offen;
}

frmBrowser& BrowserZeigen() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (offen != nullptr && dialog != nullptr && offen->parentWidget() != dialog) {
        delete offen->parentWidget(); // its place in the main window, which the dialog blocks
    }
    if (offen == nullptr) {
        auto* fenster = new frmBrowser; // goes with the window that it is put into
        if (dialog != nullptr) {
            UeberDialogZeigen(*fenster, *dialog);
        } else {
            Aufnehmen(*fenster);
        }
    }
    KindNachVorn(offen);
    offen->raise();
    offen->setFocus(); // the pages' own keys answer at once
    return *offen;
}
