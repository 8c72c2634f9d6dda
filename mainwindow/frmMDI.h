// The main window: the area with the toolbars on top, the help panel at the bottom, the menu bar, and between
// them the child windows. It builds these units, places them at each resize and passes its own closing on to
// the open form; what they hold and do is in units of their own.
#pragma once

#include <QMainWindow>

class QMdiArea;
class QMdiSubWindow;
class Panel;

class frmMDI : public QMainWindow {
    Q_OBJECT

public:
    frmMDI();
    ~frmMDI() override;

    [[nodiscard]] QMdiArea* Kindflaeche() const { return kindflaeche_; }
    // Places everything that depends on the width.
    void Anordnen();

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void FlaechenBauen();
    void KindGewechselt(const QMdiSubWindow* kind);

    QWidget* pnlKranz_ = nullptr;
    Panel* pnlHilfe_ = nullptr;
    Panel* pnlFKFelder_ = nullptr;
    QMdiArea* kindflaeche_ = nullptr;
};

// The main window, nullptr while there is none.
[[nodiscard]] frmMDI* MDIFenster();
// Reads the settings and shows the main window.
void HauptfensterZeigen();
