#include "core/flaggen.h"

#include "core/hauptfenster.h"
#include "core/oberflaeche.h"
#include "core/zustand.h"

#include <QLabel>
#include <QPainter>
#include <QPointer>

#include <array>

namespace {

QPointer<QLabel> picEingabeFlagGruen;
QPointer<QLabel> picEingabeFlagRot;

// A pole with a flag: waving with a mark of exclamation, or hanging at half height with a tick.
class Flagge : public QLabel {
public:
    Flagge(QWidget* eltern, const char* name, bool rot) : QLabel(eltern), rot_(rot) {
        setObjectName(QLatin1String(name));
    }

protected:
    void paintEvent(QPaintEvent* ereignis) override {
        QLabel::paintEvent(ereignis);
        QPainter maler(this);
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(QPen(QColor(80, 70, 60), 2));
        maler.drawLine(QPointF(4, 2), QPointF(4, 23));
        const QColor tuch = rot_ ? QColor(214, 32, 32) : QColor(24, 140, 48);
        maler.setPen(QPen(tuch.darker(140), 1));
        maler.setBrush(tuch);
        const double oben = rot_ ? 2.0 : 8.0;
        maler.drawPolygon(
            QPolygonF({{5, oben}, {21, oben + 1}, {17, oben + 5.5}, {21, oben + 11}, {5, oben + 11}}));
        maler.setPen(QPen(Qt::white, 1.8));
        if (rot_) {
            maler.drawLine(QPointF(11, 4), QPointF(11, 8.5));
            maler.drawPoint(QPointF(11, 11));
        } else {
            maler.drawPolyline(QPolygonF({{8, 13.5}, {10.5, 16}, {14.5, 11}}));
        }
    }

private:
    bool rot_;
};

} // namespace

void FlaggenBauen(QWidget* pnlKranz) {
    picEingabeFlagGruen = new Flagge(pnlKranz, "picEingabeFlagGruen", false);
    picEingabeFlagGruen->setAccessibleName(QStringLiteral("Alles gespeichert"));
    picEingabeFlagRot = new Flagge(pnlKranz, "picEingabeFlagRot", true);
    picEingabeFlagRot->setAccessibleName(QStringLiteral("Ungespeicherte Änderungen"));
    picEingabeFlagGruen->hide();
    picEingabeFlagRot->hide();
}

void FlaggenAnordnen(QWidget* pnlKranz) {
    const auto* picFK = pnlKranz->findChild<QWidget*>(QStringLiteral("picFK"));
    const auto* picHB = pnlKranz->findChild<QWidget*>(QStringLiteral("picHB"));
    const QWidget* leiste = picHB->isHidden() ? picFK : picHB;
    for (QLabel* flagge : {picEingabeFlagGruen.data(), picEingabeFlagRot.data()}) {
        flagge->setGeometry(Pixel(60) + leiste->width() + Pixel(120), Pixel(60), 24, Pixel(375));
    }
}

void FlaggeZeigen(bool rot) {
    if (picEingabeFlagRot.isNull()) {
        return;
    }
    picEingabeFlagRot->setVisible(rot);
    picEingabeFlagGruen->setVisible(!rot);
}

void FormStatusSetzen(int flag) {
    FormGeaendert = flag == 1 ? 1 : 0;
    FlaggeZeigen(flag == 1);
}

void EditorStatusSetzen(int flag) {
    EditorGeaendert = flag == 1 ? 1 : 0;
}
