// Answers modal dialogs in tests as a user would: waits until the dialog stands on the screen, then acts on
// it.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <deque>
#include <functional>
#include <utility>

// Steps to be taken one after another, each on the next dialog of its name that comes up. A step may leave
// its dialog open; the following step then finds it again.
class Dialogwarter : public QObject {
public:
    using Schritt = std::function<void(QDialog&)>;

    Dialogwarter() {
        takt_.setInterval(5);
        connect(&takt_, &QTimer::timeout, this, [this] { Nachsehen(); });
        takt_.start();
    }

    void dann(const QString& name, Schritt schritt) { schritte_.emplace_back(name, std::move(schritt)); }
    [[nodiscard]] bool fertig() const { return schritte_.empty(); }

private:
    void Nachsehen() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (schritte_.empty() || dialog == nullptr || !dialog->windowHandle() ||
            !dialog->windowHandle()->isExposed()) {
            return;
        }
        const auto& [name, schritt] = schritte_.front();
        if (name != dialog->objectName() && !dialog->inherits(qPrintable(name))) {
            return;
        }
        const Schritt jetzt = schritt;
        schritte_.pop_front();
        jetzt(*dialog); // the dialog itself lives on until its exec has come back
        if (QTest::currentTestFailed() && dialog->isVisible()) {
            dialog->reject(); // a test that failed mustn't wait for an answer
        }
    }

    QTimer takt_;
    std::deque<std::pair<QString, Schritt>> schritte_;
};

// The control of that name, which must exist.
template <class T>
T& Kind(QWidget& fenster, const char* name) {
    auto* kind = fenster.findChild<T*>(QLatin1String(name));
    if (kind == nullptr) {
        qFatal("%s has no control %s", qPrintable(fenster.objectName()), name);
    }
    return *kind;
}
