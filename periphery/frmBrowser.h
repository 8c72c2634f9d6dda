// The window that shows the game's rule document. It only places its control and takes over the document's
// location as its title; reading is periphery/dokumentleser.h.
#pragma once

#include <QWidget>

#include <string_view>

class Dokumentleser;

class frmBrowser : public QWidget {
    Q_OBJECT

public:
    explicit frmBrowser(QWidget* eltern = nullptr);

    // Shows the document at "file://" and a path of the program. Where that fails the title stays, and only
    // the control itself says so.
    void Navigieren(std::string_view adresse);
    // Left top corner, as high as the screen lets it, in the proportion of a page. Outer measures.
    void Platzieren(QWidget* rahmen);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    Dokumentleser* brwWebBrowser_ = nullptr;
};

// The window, nullptr while none is open.
[[nodiscard]] frmBrowser* BrowserOffen();
// The window, made at its first use and shown; above a modal dialog as long as that is open, else in the main
// window.
[[nodiscard]] frmBrowser& BrowserZeigen();
