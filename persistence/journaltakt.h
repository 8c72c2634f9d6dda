// When a journal is due: soon after the first change, so that what is typed in one go is written at once, and
// from then on at most every two seconds, as long as changes come.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

class Journaltakt {
public:
    explicit Journaltakt(std::function<void()> schreiben);

    // There is a change.
    void Anstossen();
    // Nothing is due any more.
    void Anhalten() { uhr_.stop(); }

private:
    std::function<void()> schreiben_;
    QTimer uhr_;
    QElapsedTimer seit_;
};
