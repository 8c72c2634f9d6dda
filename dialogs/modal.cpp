#include "dialogs/modal.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

#include <utility>

namespace {

ModalHandler vertreter;

// The window that the dialog has to stay above: the active one, or any other of the program's that shows.
QWidget* Bezugsfenster(const QDialog& dialog) {
    if (QWidget* aktiv = QApplication::activeWindow(); aktiv != nullptr && aktiv != &dialog) {
        return aktiv;
    }
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
        if (fenster != &dialog && fenster->isVisible() && fenster->windowType() == Qt::Window) {
            return fenster;
        }
    }
    return nullptr;
}

// A dialog is never larger than the screen, its frame included; what is in it shares what there is.
void Einpassen(QDialog& dialog) {
    constexpr QSize rahmen{8, 32};
    const QSize frei = Bildschirmgroesse(&dialog) - rahmen;
    const QSize wunsch = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    if (wunsch.boundedTo(frei) != wunsch) {
        dialog.resize(wunsch.boundedTo(frei));
    }
}

} // namespace

Hilfewahrer::Hilfewahrer() : vorher_(HilfeStand()) {}

Hilfewahrer::~Hilfewahrer() {
    HilfeStandSetzen(vorher_);
}

int ModalZeigen(QDialog& dialog) {
    const Hilfewahrer wahrer;
    Einpassen(dialog);
    if (vertreter && vertreter(dialog)) {
        return dialog.result();
    }
    if (dialog.isVisible()) {
        return dialog.result(); // it is being answered already
    }
    // A dialog that outlives the windows it is shown over can't be their child; the window system is told.
    if (QWidget* bezug = Bezugsfenster(dialog); bezug != nullptr && dialog.parentWidget() == nullptr) {
        dialog.winId();
        dialog.windowHandle()->setTransientParent(bezug->windowHandle());
    }
    return dialog.exec();
}

void ModalHandlerSetzen(ModalHandler handler) {
    vertreter = std::move(handler);
}
