// The plug-in's control for documents: the pages of a PDF file below each other, drawn in the screen's own
// resolution, with the places that a search has found. It keeps the pictures of the pages in sight only.
#pragma once

#include "periphery/dokumentansicht.h"
#include "periphery/seitenlage.h"

#include <QAbstractScrollArea>
#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QPdfDocument>
#include <QPdfSearchModel>
#include <QRectF>

#include <map>
#include <vector>

class Seitenansicht : public QAbstractScrollArea, public Dokumentansicht {
    Q_OBJECT

public:
    explicit Seitenansicht(QWidget* eltern);
    ~Seitenansicht() override;

    QWidget* Steuerelement() override { return this; }
    bool Laden(const QString& datei) override;
    int Seiten() const override { return static_cast<int>(masse_.size()); }
    int Seite() const override;
    void SeiteZeigen(int seite) override;
    double Groesse() const override;
    Passung Einpassung() const override { return passung_; }
    void Einpassen(Passung passung) override;
    void GroesseSetzen(double groesse) override;
    int Suchen(const QString& text) override;
    int FundZeigen(int fund) override;
    int FundAbHier() const override;
    void BeiWechsel(std::function<void()> wechsel) override { wechsel_ = std::move(wechsel); }

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;

private:
    [[nodiscard]] bool Lesen(const QString& datei);

    struct Fund {
        int seite = 0; // from 0
        QList<QRectF> flaechen;
    };

    // Places the pages anew and keeps what is read in its place.
    void Anordnen();
    void Melden() const;
    [[nodiscard]] QPoint Verschiebung() const;
    const QImage& Bild(int seite, QSize groesse);
    void SeiteMalen(QPainter& maler, int seite);
    void FundeMalen(QPainter& maler, int seite, const QRect& platz) const;

    // The whole file, for as long as it is read: it may vanish meanwhile, or be replaced.
    QByteArray bytes_;
    QBuffer quelle_;
    QPdfDocument dokument_;
    QPdfSearchModel suche_;
    std::vector<QSizeF> masse_; // of the pages, in points
    Seitenlage lage_;
    Passung passung_ = Passung::Breite;
    double groesse_ = 1.0;
    std::vector<Fund> funde_;
    int fund_ = -1;
    std::map<int, QImage> bilder_;
    std::function<void()> wechsel_;
};
