// A spin control without a value of its own: two buttons, up above down, that tell of each step. What a step
// changes is the listener's affair. With the focus the arrow keys, + and - step as well.
#pragma once

#include <QPointer>
#include <QWidget>

class Panel;
class QToolButton;

class Drehfeld : public QWidget {
    Q_OBJECT

public:
    // was: what the steps change, for those who can't see the two arrows ("Punkte, Frage 3").
    explicit Drehfeld(QWidget* eltern, const QString& name, const QString& was = QString());

    [[nodiscard]] QSize sizeHint() const override;

    // The panel that shows the number; for who is told of it.
    void setZahlpanel(const Panel* panel);
    [[nodiscard]] int Zahl() const;

Q_SIGNALS:
    void hoch();
    void runter();

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;

private:
    QPointer<const Panel> panel_;
    QToolButton* hoch_;
    QToolButton* runter_;
};
