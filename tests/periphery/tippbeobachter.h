// Sees, ahead of the program, when a tip window comes and goes, and that the toolkit asks for a tip of its
// own.
#pragma once

#include "tooltips/tooltipfenster.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <optional>

class Tippbeobachter : public QObject {
public:
    Tippbeobachter() { qApp->installEventFilter(this); }

    [[nodiscard]] bool kam() const { return kam_.isValid(); }
    [[nodiscard]] std::optional<qint64> standzeit() const { return standzeit_; } // milliseconds
    [[nodiscard]] bool werkzeugtippGefragt() const { return gefragt_; }

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        gefragt_ = gefragt_ || ereignis->type() == QEvent::ToolTip;
        if (qobject_cast<Tippfenster*>(objekt) != nullptr) {
            if (ereignis->type() == QEvent::Show) {
                kam_.start();
            } else if (ereignis->type() == QEvent::Hide && kam()) {
                standzeit_ = kam_.elapsed();
            }
        }
        return false;
    }

private:
    QElapsedTimer kam_;
    std::optional<qint64> standzeit_;
    bool gefragt_ = false;
};
