#include "mainwindow/listenfalte.h"

#include "catalogue/auswahl.h"
#include "catalogue/frmAuswahl.h"
#include "core/bilder.h"
#include "core/formularfenster.h"
#include "core/oberflaeche.h"
#include "filetools/formularliste.h"
#include "filetools/frmFKformulare.h"
#include "mainwindow/texte.h"
#include "tooltips/hinweise.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

namespace {

constexpr const char* marke = "gefaltet"; // on a list whose title stands in the menu bar

QRect AufDemSchirm(const QWidget& element) {
    return {element.mapToGlobal(QPoint(0, 0)), element.size()};
}

// What of the open form is to be seen, on the screen; empty without one.
QRect Formularort(const QMdiArea& flaeche) {
    Formularfenster* form = OffenesFormular();
    if (form == nullptr || !form->fenster()->isVisible()) {
        return {};
    }
    return AufDemSchirm(*form->fenster()) & AufDemSchirm(*flaeche.viewport());
}

// Looks behind each step that may have brought the list over the form or away from it.
class Listenfalter : public QObject {
public:
    Listenfalter(QMainWindow& fenster, QMdiArea& flaeche, QToolButton* titel)
        : QObject(&fenster), fenster_(fenster), flaeche_(flaeche), titel_(titel) {
        takt_.setSingleShot(true);
        connect(&takt_, &QTimer::timeout, this, &Listenfalter::Schauen);
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] { takt_.start(0); });
        connect(&flaeche, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* kind) {
            if (kind != nullptr) {
                kind->installEventFilter(this);
            }
            takt_.start(0);
        });
        flaeche.installEventFilter(this);
        fenster.menuBar()->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Resize || ereignis->type() == QEvent::Move) {
            takt_.start(0);
        }
        return QObject::eventFilter(objekt, ereignis);
    }

private:
    // The user works in the form, or takes a question for it.
    [[nodiscard]] bool AmFormular() const {
        const QWidget* auswahl = AuswahlOffen();
        return fenster_.isActiveWindow() || (auswahl != nullptr && auswahl->isActiveWindow());
    }

    void Schauen() {
        if (!fenster_.isVisible() || fenster_.isMinimized()) {
            return; // the list is away with the window
        }
        frmFKformulare* liste = FormularlisteOffen();
        if (liste != nullptr) {
            const bool frei = !liste->frameGeometry().intersects(Formularort(flaeche_));
            if (liste->isVisible() && !liste->WartetAufFokus() && !frei && AmFormular()) {
                Falten(liste);
            } else if (ListeGefaltet(liste) && frei) {
                liste->setAttribute(Qt::WA_ShowWithoutActivating);
                liste->show();
            }
        }
        TitelZeigen(liste != nullptr && ListeGefaltet(liste));
    }

    void Falten(QWidget* liste) {
        if (!liste->property(marke).toBool()) {
            liste->setProperty(marke, true);
            connect(liste, &QObject::destroyed, this, [this] { takt_.start(0); });
        }
        liste->hide();
    }

    // Right of the menus, which leave room there at every width; as the bar's own corner it would make the
    // bar higher, and the form smaller.
    void TitelZeigen(bool zeigen) {
        const QWidget* leiste = fenster_.menuBar();
        const int breite = titel_->sizeHint().width();
        titel_->setGeometry(leiste->width() - breite - 2, 0, breite, leiste->height());
        titel_->setVisible(zeigen);
    }

    QMainWindow& fenster_;
    QMdiArea& flaeche_;
    QToolButton* titel_;
    QTimer takt_;
};

} // namespace

void ListenfalteEinrichten(QMainWindow& fenster) {
    auto* flaeche = fenster.findChild<QMdiArea*>();
    auto* titel = new QToolButton(fenster.menuBar());
    titel->setObjectName(QStringLiteral("cmdListentitel"));
    titel->setText(Anzeige(kerntexte::listentitel));
    titel->setIcon(Bildzeichen("leiste/dateiliste"));
    titel->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    titel->setAutoRaise(true);
    titel->setIconSize({14, 14});
    HinweisSetzen(titel, kerntexte::listentitelTipp, kerntexte::listentitel, kerntexte::listentitelStatus);
    titel->hide();
    QObject::connect(titel, &QToolButton::clicked, titel, [] { FormularlisteZeigen(); });
    new Listenfalter(fenster, *flaeche, titel); // belongs to the window
}

bool ListeGefaltet(const QWidget* liste) {
    return liste != nullptr && !liste->isVisible() && liste->property(marke).toBool();
}
