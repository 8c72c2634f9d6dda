// A window's tool tips: one object a window, made when the window loads, with the tip window, its look and
// its times. The window's controls are added once, title and colours change as the pointer moves over them.
// When a tip is due is decided by the watcher (tooltips/hinweiswaechter.h).
#pragma once

#include "core/farbe.h"
#include "tooltips/tooltipfenster.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <string_view>

class clsToolTipDeluxe : public QObject {
    Q_OBJECT

public:
    // The object goes with the window that it is given.
    explicit clsToolTipDeluxe(QObject* eltern = nullptr);
    // Destroys the tip window, if there is one.
    ~clsToolTipDeluxe() override;

    // Pixels at which a line is broken. Kept also while there is no tip window.
    void MaxWidth(int pixel);
    // Milliseconds that a tip stays, held to 0 to 16000, and that it waits, held to 0 to 500.
    void VisibleTime(int millisekunden);
    void DelayTime(int millisekunden);
    void ToolTipTextColor(Farbe farbe);
    void ToolTipBackColor(Farbe farbe);
    // Makes the tip window for the controls of a window, rounded with the balloon flag. The third argument
    // has no use. At load this comes first, then the times, then the controls.
    void Create(QWidget* fenster, bool ballon, int ungenutzt = 0);
    void Destroy();
    // Gives a control its text, UTF-8 with CR LF; mittig puts the tip below the control's middle. Without a
    // control nothing happens.
    void AddControl(QWidget* steuerelement, std::string_view text, bool mittig = false);
    // Symbol 1 is information, 2 a warning, 0 none.
    void SetToolTipTitle(std::string_view titel, int symbol);

    [[nodiscard]] int breite() const { return aussehen_.breite; }
    [[nodiscard]] int sichtzeit() const { return sichtzeit_; }
    [[nodiscard]] int wartezeit() const { return wartezeit_; }
    [[nodiscard]] const Tippaussehen& aussehen() const { return aussehen_; }
    // nullptr before Create and after Destroy.
    [[nodiscard]] const Tippfenster* tippfenster() const { return tippfenster_.get(); }

    // Shows the text for a control, beside the pointer or, by keyboard, at the control. An empty text shows
    // nothing.
    void Zeigen(const QWidget& steuerelement, const QString& text, bool amZeiger);
    void Verbergen();
    [[nodiscard]] bool sichtbar() const;

private:
    void Uebernehmen();

    Tippaussehen aussehen_;
    int sichtzeit_ = 5000; // the toolkit's custom until the window sets its own
    int wartezeit_ = tipp::hoechsteWartezeit;
    std::unique_ptr<Tippfenster> tippfenster_;
};
