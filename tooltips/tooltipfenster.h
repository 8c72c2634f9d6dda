// The window of a tool tip: a title in bold behind a drawn symbol, below it the text in as many lines as its
// width asks for. It takes no input and no focus. When it comes and goes, and where, is the tip object's
// affair.
#pragma once

#include "tooltips/tooltipregeln.h"

#include <QTextLayout>
#include <QWidget>

struct Tippaussehen {
    tipp::Stil stil = tipp::stilStandard;
    QString titel;
    int breite = tipp::anfangsbreite; // where lines are broken, in pixels
    bool ballon = false;              // rounded
};

class Tippfenster : public QWidget {
    Q_OBJECT

public:
    Tippfenster();

    [[nodiscard]] const Tippaussehen& aussehen() const { return aussehen_; }
    [[nodiscard]] const QString& text() const { return text_; }
    // Takes look and text and the size that they need.
    void Stellen(const Tippaussehen& aussehen, const QString& text);

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void Umbrechen();
    [[nodiscard]] int Titelhoehe() const;

    Tippaussehen aussehen_;
    QString text_;
    QTextLayout zeilen_;
};
