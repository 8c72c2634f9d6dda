#include "tooltips/hinweiswaechter.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "tooltips/absicht.h"
#include "tooltips/hinweise.h"
#include "tooltips/tooltipps.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCursor>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QStatusTipEvent>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>

namespace {

// Entries of a list may have tips of their own, for what doesn't fit.
QString Tipptext(const QWidget& element) {
    if (const auto* liste = qobject_cast<const QAbstractItemView*>(&element)) {
        const QModelIndex eintrag = liste->indexAt(liste->viewport()->mapFromGlobal(QCursor::pos()));
        if (QString text = eintrag.data(Qt::ToolTipRole).toString(); !text.isEmpty()) {
            return text;
        }
    }
    return element.toolTip();
}

// The toolkit shows the tip of an entry of an open list itself, and would take a text from a file for markup.
bool EintragstippZeigen(const QWidget& flaeche, const QHelpEvent& ereignis) {
    auto* liste = qobject_cast<QAbstractItemView*>(flaeche.parentWidget());
    if (liste == nullptr || liste->viewport() != &flaeche) {
        return false;
    }
    const QString text = liste->indexAt(ereignis.pos()).data(Qt::ToolTipRole).toString();
    if (!Qt::mightBeRichText(text)) {
        return false;
    }
    QToolTip::showText(ereignis.globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal), liste);
    return true;
}

// The standard routines act on the window opened last. A window that the pointer comes back to counts as
// opened again: its tips must not keep a title that belongs to another control. The main window's controls
// set the main window's own object instead; only the button of the file list runs the standard routine too.
void StilStellen(clsToolTipDeluxe& objekt, const QWidget& element) {
    const std::string titel = Modelltext(Hinweistitel(element));
    const tipp::Stil stil = tipp::StilFuer(titel);
    if (objekt.parent() == Hauptfenster()) {
        StilSetzen(objekt, titel, stil);
        if (element.objectName() == QLatin1String("cmdDateiliste")) {
            ToolTipStandard();
        }
        return;
    }
    ToolTip = &objekt;
    if (stil == tipp::stilHilfe) {
        ToolTipHilfe();
    } else if (stil == tipp::stilSchliessen) {
        ToolTipSchliessen();
    } else if (titel == tipp::titelStandard) {
        ToolTipStandard();
    } else {
        ToolTipTitel(titel);
    }
}

class Hinweiswaechter : public QObject {
public:
    explicit Hinweiswaechter(QObject* eltern) : QObject(eltern), uhr_(this) {
        uhr_.setSingleShot(true);
        connect(&uhr_, &QTimer::timeout, this, [this] { Ablaufen(); });
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        return objekt->isWidgetType() && Sehen(*static_cast<QWidget*>(objekt), *ereignis);
    }

private:
    // True for an event that goes no further.
    bool Sehen(QWidget& element, QEvent& ereignis) {
        absicht_.Sehen(element, ereignis);
        switch (ereignis.type()) {
        case QEvent::MouseMove:
            ZeigerSehen(element, static_cast<QMouseEvent&>(ereignis));
            return false;
        case QEvent::FocusIn:
            if (absicht_.MitTaste(element, static_cast<QFocusEvent&>(ereignis))) {
                Ansprechen(HinweisstelleVon(&element), false);
            }
            return false;
        case QEvent::Leave:
        case QEvent::Hide:
        case QEvent::FocusOut:
            if (&element == bereich_ && (amZeiger_ != (ereignis.type() == QEvent::FocusOut))) {
                Vergessen();
            }
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::WindowDeactivate:
        case QEvent::WindowBlocked:
            Schweigen();
            return false;
        case QEvent::StatusTip: // of a menu entry
            if (const QString status = static_cast<QStatusTipEvent&>(ereignis).tip(); !status.isEmpty()) {
                HilfeText(Modelltext(status));
            }
            return false;
        case QEvent::ToolTip: // the toolkit's own tip
            return HinweisstelleVon(&element).element != nullptr ||
                   EintragstippZeigen(element, static_cast<QHelpEvent&>(ereignis));
        default:
            return false;
        }
    }

    // Only the innermost element counts: an event that nobody takes comes again for each element around it.
    // A window that comes up under the resting pointer has nothing to tell: entering it is no move.
    void ZeigerSehen(QWidget& element, const QMouseEvent& ereignis) {
        if (absicht_.Bewegt(ereignis) && ereignis.buttons() == Qt::NoButton &&
            element.childAt(ereignis.position().toPoint()) == nullptr) {
            Ansprechen(HinweisstelleVon(&element), true);
        }
    }

    void Ansprechen(const Hinweisstelle& stelle, bool amZeiger) {
        if (stelle.element == nullptr) {
            Vergessen();
            return;
        }
        if (const QString status = Hinweisstatus(*stelle.element); !status.isEmpty()) {
            HilfeText(Modelltext(status));
        }
        const QString text = Tipptext(*stelle.element);
        if (stelle.bereich != bereich_ || amZeiger != amZeiger_ || text != text_) {
            Vergessen();
            bereich_ = stelle.bereich;
            element_ = stelle.element;
            ende_ = connect(element_, &QObject::destroyed, this, [this] { Vergessen(); });
            text_ = text;
            amZeiger_ = amZeiger;
        }
        clsToolTipDeluxe& objekt = Tippobjekt(*stelle.element);
        StilStellen(objekt, *stelle.element);
        if (!still_ && !objekt.sichtbar()) {
            uhr_.start(objekt.wartezeit()); // the pointer has to rest
        }
    }

    void Ablaufen() {
        if (element_ == nullptr || !element_->isVisible()) {
            return;
        }
        clsToolTipDeluxe& objekt = Tippobjekt(*element_);
        if (objekt.sichtbar() || QApplication::activePopupWidget() != nullptr) {
            Schweigen();
            return;
        }
        gezeigt_ = &objekt;
        objekt.Zeigen(*element_, text_, amZeiger_);
        uhr_.start(objekt.sichtzeit());
    }

    // No tip any more until another control is reached.
    void Schweigen() {
        uhr_.stop();
        still_ = true;
        if (gezeigt_ != nullptr) {
            gezeigt_->Verbergen();
            gezeigt_ = nullptr;
        }
    }

    void Vergessen() {
        Schweigen();
        disconnect(ende_);
        still_ = false;
        bereich_ = nullptr;
        element_ = nullptr;
        text_.clear();
    }

    Absicht absicht_;
    QTimer uhr_; // first until the tip comes, then until it goes
    QPointer<QWidget> bereich_;
    QPointer<QWidget> element_;
    QPointer<clsToolTipDeluxe> gezeigt_;
    QMetaObject::Connection ende_;
    QString text_;
    bool amZeiger_ = true;
    bool still_ = false;
};

} // namespace

void HinweiswaechterEinrichten() {
    static QPointer<Hinweiswaechter> waechter;
    if (waechter == nullptr && QCoreApplication::instance() != nullptr) {
        waechter = new Hinweiswaechter(QCoreApplication::instance());
    }
}

bool IstHauptfenster(const QWidget& fenster) {
    return &fenster == Hauptfenster();
}
