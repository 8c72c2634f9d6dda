// What the three dialogs of the service share: the background picture, the place on the screen and a text
// that is cut at its edge. A picture that can't be loaded is kept for whoever reports it.
#pragma once

#include "core/laenge.h"
#include "core/laufzeitfehler.h"

#include <QDialog>
#include <QLabel>
#include <QPixmap>

#include <optional>
#include <string_view>

class Dialoggrund : public QDialog {
    Q_OBJECT

public:
    // Size of the client area.
    Dialoggrund(const QString& name, Twips breite, Twips hoehe, Qt::WindowFlags art = Qt::Dialog);

    // Why the background is missing, if it is.
    [[nodiscard]] const std::optional<Laufzeitfehler>& bildfehler() const { return bildfehler_; }

protected:
    // The picture "\BITMAP\FK_" + name, stretched over the client area.
    void HintergrundLaden(std::string_view name);
    // Centre of the screen, down by that much; hoehe is the height that counts, the title included.
    void Zentrieren(Twips hoehe, Twips tiefer = {});
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QPixmap grund_;
    std::optional<Laufzeitfehler> bildfehler_;
};

// Tells once a run and picture that a background is missing. Without an error it does nothing.
void BildfehlerMelden(std::string_view name, const std::optional<Laufzeitfehler>& fehler);

// Text of a message: its own line breaks, long lines wrapped anywhere, cut at the bottom edge. A double click
// turns one display attribute over, which is of no consequence for a text: it is meant.
class Textschild : public QLabel {
    Q_OBJECT

public:
    Textschild(QWidget* eltern, const QString& name);

    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;

private:
    QString grundtipp_; // the tip of a label whose text isn't cut
};

// Height that a title bar counts with in the dialogs' measures; the real one is the window manager's.
inline constexpr Twips titelHoehe = 360_tw;
