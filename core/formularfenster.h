// The open form as whoever works on a form of either kind sees it: what to merge, what to empty, what it is
// called. There is one at most; its window registers itself and takes itself off. Which kinds there are and
// how one is opened is forms/formulare.h.
#pragma once

#include "core/formart.h"

#include <string_view>

class QWidget;

class Formularfenster {
public:
    Formularfenster() = default;
    Formularfenster(const Formularfenster&) = delete;
    Formularfenster& operator=(const Formularfenster&) = delete;
    virtual ~Formularfenster() = default;

    [[nodiscard]] virtual Formart art() const = 0;
    // The form's own window, which lies in a child window of the main window.
    [[nodiscard]] virtual QWidget* fenster() = 0;

    // Shows the window and brings it to the front.
    virtual void NachVorn() = 0;
    // Caption of the window.
    virtual void TitelSetzen(std::string_view titel) = 0;
    // Closes the window with its closing check; true when it is gone.
    virtual bool Schliessen() = 0;
    // Closes the window without asking; what is on it is discarded, and this object is off.
    virtual void Entladen() = 0;

    // Typed text of the box that has the focus reaches the stored copy, as if the box lost the focus.
    virtual void EingabeAbschliessen() = 0;
    // Window into stored copy: the texts; the head, which only a save and a print take along.
    virtual void Merken() = 0;
    virtual void KopfMerken() = 0;
    // Repaints the cells or rows for what stands in them.
    virtual void Faerben() = 0;
    // Empties question and answer of a cell or row on the screen; a number outside does nothing.
    virtual void FeldLeeren(int feld) = 0;
};

// The open form, nullptr for none.
[[nodiscard]] Formularfenster* OffenesFormular();
// The same if it is of that kind.
[[nodiscard]] Formularfenster* OffenesFormular(Formart art);
// Kind of the open form.
[[nodiscard]] Formart OffeneArt();

// Tells one open form from another, also two without a file: another number for each form that is begun or
// read, the same one before and after a save. 0 while none is open.
[[nodiscard]] int Formularnummer();
// Called when another form is read into the window of the open one.
void FormularWechselt();

// Called by the form's window when it comes up and when it goes.
void FormularAnmelden(Formularfenster& form);
void FormularAbmelden(const Formularfenster& form);
