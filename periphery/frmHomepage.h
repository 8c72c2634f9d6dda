// The window that shows the makers' download page. The page itself comes from the plug-in
// (periphery/netzansicht.h); without it, or without the page, an empty window with a word remains, and
// nothing is reported.
#pragma once

#include <QUrl>
#include <QWidget>

class Netzansicht;
class QLabel;

class frmHomepage : public QWidget {
    Q_OBJECT

public:
    explicit frmHomepage(QUrl seite, QWidget* eltern = nullptr);

    // Asks for the page once more, where it couldn't be shown.
    void NeuVersuchen();

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void NetzBauen();
    QWidget* ErsatzBauen();
    // Either the page or the word that there is none.
    void SeiteDaZeigen(bool da);

    QUrl seite_;
    Netzansicht* ansicht_ = nullptr; // behind WebBrowser1_; none without the plug-in
    QWidget* WebBrowser1_ = nullptr;
    QWidget* pnlErsatz_ = nullptr;
};

// Shows the window, making it at its first use.
void HomepageZeigen();
// The window, nullptr while none is open.
[[nodiscard]] frmHomepage* HomepageOffen();
// The makers' server, another one in tests; an empty one is the configured one.
void HomepageServerVorgeben(const QString& server);
