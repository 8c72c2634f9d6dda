// The program's panel: a rectangle with a caption, a colour of its own, a bevel, and a fill level where it
// has one. It can be clicked. Decides nothing.
#pragma once

#include <QFrame>

class Panel : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(double value READ value WRITE setValue)

public:
    explicit Panel(QWidget* eltern, const QString& name = QString());

    [[nodiscard]] QString caption() const { return caption_; }
    void setCaption(const QString& caption);
    // What the panel is, for those who can't see its place: "Natur, Zeile 3, Punkte". Its caption follows.
    void setAnsage(const QString& ansage);

    // Fill level in per cent; below 0 the panel shows none.
    [[nodiscard]] double value() const { return value_; }
    void setValue(double prozent);

    // Back and text colour; an invalid back colour is system face.
    void setFarben(const QColor& grund, const QColor& schrift);
    [[nodiscard]] QColor grund() const;
    [[nodiscard]] QColor schrift() const;

    void setAusrichtung(Qt::Alignment ausrichtung);

Q_SIGNALS:
    void captionGeaendert();
    void geklickt();
    void doppeltGeklickt();

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;

private:
    void NamenSetzen();

    QString caption_;
    QString ansage_;
    double value_ = -1.0;
    QColor grund_;
    QColor schrift_;
    Qt::Alignment ausrichtung_ = Qt::AlignCenter;
};
