#include "tooltips/absicht.h"

#include <QCursor>
#include <QFocusEvent>
#include <QMouseEvent>

void Absicht::Sehen(const QWidget& element, const QEvent& ereignis) {
    switch (ereignis.type()) {
    case QEvent::ShortcutOverride: // an access key is told to nobody as a press
    case QEvent::KeyPress:
        tastenfenster_ = element.window();
        break;
    case QEvent::Show:
        FensterKommt(element);
        break;
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::MouseButtonPress:
        tastenfenster_ = nullptr;
        break;
    default:
        break;
    }
}

bool Absicht::MitTaste(const QWidget& element, const QFocusEvent& ereignis) const {
    const bool wieTaste = ereignis.reason() == Qt::TabFocusReason ||
                          ereignis.reason() == Qt::BacktabFocusReason ||
                          ereignis.reason() == Qt::ShortcutFocusReason;
    return wieTaste && tastenfenster_ != nullptr && tastenfenster_ == element.window();
}

bool Absicht::Bewegt(const QMouseEvent& ereignis) {
    const QPoint vorher = zeiger_;
    zeiger_ = ereignis.globalPosition().toPoint();
    return zeiger_ != vorher;
}

// Not a tip: it comes over the controls that the pointer is just reaching.
void Absicht::FensterKommt(const QWidget& element) {
    const bool fenster = element.isWindow() && element.windowType() != Qt::ToolTip;
    if (fenster || element.windowType() == Qt::SubWindow) {
        tastenfenster_ = nullptr;
        zeiger_ = QCursor::pos(); // it rests there
    }
}
