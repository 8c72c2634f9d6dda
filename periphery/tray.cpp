#include "periphery/tray.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "periphery/traydaten.h"

#include <QApplication>
#include <QList>
#include <QMdiArea>
#include <QMouseEvent>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

namespace {

constexpr int nachfrage = 500; // ms

QPointer<QSystemTrayIcon> zeichen; // goes with the main window
QList<QPointer<QWidget>> mitgegangen;

// The number of the mouse message that an activation of the icon stands for; 0 for none that counts.
int NachrichtNummer(QSystemTrayIcon::ActivationReason grund) {
    switch (grund) {
    case QSystemTrayIcon::Trigger:
        return linkeTasteGedrueckt;
    case QSystemTrayIcon::Context:
        return rechteTasteLosgelassen;
    default:
        return 0;
    }
}

void ZeichenZeigen(QWidget* haupt) {
    TrayEntfernen();
    zeichen = new QSystemTrayIcon(haupt);
    zeichen->setObjectName(QStringLiteral("traySymbol"));
    // The picture of picSystray, in every size that a tray may ask for.
    zeichen->setIcon(QApplication::windowIcon());
    zeichen->setToolTip(Anzeige(TrayDaten.tipp.substr(0, TrayDaten.tipp.size() - 1)));
    QObject::connect(
        zeichen, &QSystemTrayIcon::activated, zeichen,
        [](QSystemTrayIcon::ActivationReason grund) { TrayNachricht(NachrichtNummer(grund)); },
        Qt::QueuedConnection); // the icon goes in its own event
    zeichen->show();
}

// The tool windows belong to the main window, and would stay on the screen without it.
void WerkzeugfensterVerstecken(const QWidget* haupt) {
    mitgegangen.clear();
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
        if (fenster->isVisible() && fenster != haupt && fenster->parentWidget() != nullptr &&
            fenster->parentWidget()->window() == haupt) {
            mitgegangen.append(fenster);
            fenster->hide();
        }
    }
}

// On a busy desktop the window manager may give the keyboard away before it knows the window again: then it
// is asked once more, as long as no other window of ours has it.
void TastenHolen(QWidget* haupt, int versuche) {
    haupt->activateWindow();
    if (versuche > 1) {
        QTimer::singleShot(nachfrage, haupt, [haupt, versuche] {
            if (haupt->isVisible() && QApplication::activeWindow() == nullptr) {
                TastenHolen(haupt, versuche - 1);
            }
        });
    }
}

void Zeigen() {
    QWidget* haupt = Hauptfenster();
    haupt->show();
    for (const QPointer<QWidget>& fenster : std::as_const(mitgegangen)) {
        if (fenster != nullptr) {
            fenster->show();
        }
    }
    mitgegangen.clear();
    TastenHolen(haupt, 4);
    TrayEntfernen();
}

// Sees the double click on the background, and only there: one on a child window comes past here too.
class Hintergrund : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::MouseButtonDblClick) {
            const auto* maus = static_cast<QMouseEvent*>(ereignis);
            const auto* flaeche = qobject_cast<QWidget*>(objekt);
            if (maus->button() == Qt::LeftButton && flaeche->childAt(maus->position().toPoint()) == nullptr) {
                AbInDenTray();
                return true;
            }
        }
        return QObject::eventFilter(objekt, ereignis);
    }
};

} // namespace

void AbInDenTray() {
    QWidget* haupt = Hauptfenster();
    if (haupt == nullptr) {
        return;
    }
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        haupt->showMinimized(); // hidden, it would have no way back
        return;
    }
    ZeichenZeigen(haupt);
    WerkzeugfensterVerstecken(haupt);
    haupt->hide();
}

void TrayNachricht(int nummer) {
    QWidget* haupt = Hauptfenster();
    if (haupt == nullptr) {
        return;
    }
    switch (TrayEreignis(nummer)) {
    case Traytat::Zeigen:
        Zeigen();
        break;
    case Traytat::NachVorn:
        haupt->raise(); // a hidden window stays hidden: it is meant
        haupt->activateWindow();
        break;
    case Traytat::Nichts:
        break;
    }
}

void TrayEntfernen() {
    if (zeichen != nullptr) {
        zeichen->hide();
        zeichen->deleteLater();
        zeichen = nullptr;
    }
}

void TrayVerbinden(QMdiArea* kindflaeche) {
    kindflaeche->viewport()->installEventFilter(new Hintergrund(kindflaeche));
}
