#include "periphery/hinweise.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace {

// Puts a control's status line into the help panel while the pointer moves onto it or the focus reaches it.
class Statusmelder : public QObject {
public:
    Statusmelder(QWidget* steuerelement, std::string status)
        : QObject(steuerelement), status_(std::move(status)) {
        setObjectName(QStringLiteral("statusmelder"));
        steuerelement->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Enter || ereignis->type() == QEvent::FocusIn) {
            HilfeText(status_);
        }
        return QObject::eventFilter(objekt, ereignis);
    }

private:
    std::string status_;
};

} // namespace

void HinweisSetzen(QWidget* steuerelement, std::string_view tipp, std::string_view titel,
                   std::string_view status) {
    // The title is kept with the control; the tip window shows it above the text.
    steuerelement->setProperty("tipptitel", Anzeige(titel));
    steuerelement->setToolTip(Anzeige(tipp));
    delete steuerelement->findChild<QObject*>(QStringLiteral("statusmelder"), Qt::FindDirectChildrenOnly);
    if (!status.empty()) {
        new Statusmelder(steuerelement, std::string(status));
    }
}
