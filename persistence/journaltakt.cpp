#include "persistence/journaltakt.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 abstand = 2000; // milliseconds between two writings
constexpr qint64 anlauf = 250;

} // namespace

Journaltakt::Journaltakt(std::function<void()> schreiben) : schreiben_(std::move(schreiben)) {
    uhr_.setSingleShot(true);
    uhr_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&uhr_, &QTimer::timeout, &uhr_, [this] {
        seit_.start();
        schreiben_();
    });
}

void Journaltakt::Anstossen() {
    if (!uhr_.isActive()) {
        const qint64 seit = seit_.isValid() ? seit_.elapsed() : abstand;
        uhr_.start(static_cast<int>(std::max(anlauf, abstand - seit)));
    }
}
