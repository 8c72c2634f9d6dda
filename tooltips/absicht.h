// Whether it was the person who moved the pointer or the focus: the toolkit gives a window that comes up its
// focus as if by Tab, and makes events of the pointer where only a window came or went.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

class QEvent;
class QFocusEvent;
class QMouseEvent;

class Absicht {
public:
    // To be told of each event of each control, before anything else is asked about it.
    void Sehen(const QWidget& element, const QEvent& ereignis);

    // True for a focus that was brought by a key pressed in the same window.
    [[nodiscard]] bool MitTaste(const QWidget& element, const QFocusEvent& ereignis) const;

    // True if the pointer isn't where it was seen last, which it is then.
    bool Bewegt(const QMouseEvent& ereignis);

private:
    void FensterKommt(const QWidget& element);

    QPointer<const QWidget> tastenfenster_; // of the key pressed last
    QPoint zeiger_;
};
