// What the plug-in for documents offers: a control that shows the pages of a PDF file below each other. The
// buttons around it are periphery/dokumentleser.h.
#pragma once

#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>

class QWidget;

// How large a page is shown: as wide as the control, whole, or by a factor of its size on paper.
enum class Passung : std::uint8_t { Breite, Seite, Frei };

// The control and what it does. It belongs to its parent window.
class Dokumentansicht {
public:
    Dokumentansicht() = default;
    Dokumentansicht(const Dokumentansicht&) = delete;
    Dokumentansicht& operator=(const Dokumentansicht&) = delete;
    virtual ~Dokumentansicht() = default;

    [[nodiscard]] virtual QWidget* Steuerelement() = 0;

    // Loads a file and shows its first page. False for one that can't be read: nothing is shown then.
    virtual bool Laden(const QString& datei) = 0;

    // Number of pages, and the one that is read, from 1; 0 without a document.
    [[nodiscard]] virtual int Seiten() const = 0;
    [[nodiscard]] virtual int Seite() const = 0;
    // Goes to the top of a page; a number beyond the pages is brought back into them.
    virtual void SeiteZeigen(int seite) = 0;

    // Size of the pages, 1.0 for that on paper, and the way it comes about.
    [[nodiscard]] virtual double Groesse() const = 0;
    [[nodiscard]] virtual Passung Einpassung() const = 0;
    virtual void Einpassen(Passung passung) = 0;
    // A size of its own, brought into the limits where it leaves them.
    virtual void GroesseSetzen(double groesse) = 0;

    // Marks all places where the text stands, whatever its case, and returns their number; "" takes the marks
    // away.
    virtual int Suchen(const QString& text) = 0;
    // Goes to a place, counted from 0 through the whole document. Returns its page.
    virtual int FundZeigen(int fund) = 0;
    // First place on the page that is read or behind it; 0 when none is left.
    [[nodiscard]] virtual int FundAbHier() const = 0;

    // Runs whenever page or size have changed.
    virtual void BeiWechsel(std::function<void()> wechsel) = 0;
};

// The plug-in itself.
class Dokumentzusatz {
public:
    Dokumentzusatz() = default;
    Dokumentzusatz(const Dokumentzusatz&) = delete;
    Dokumentzusatz& operator=(const Dokumentzusatz&) = delete;
    virtual ~Dokumentzusatz() = default;

    [[nodiscard]] virtual Dokumentansicht* Bauen(QWidget* eltern) = 0;
};
Q_DECLARE_INTERFACE(Dokumentzusatz, "feldkranz.Dokumentzusatz/1")
