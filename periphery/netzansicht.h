// What the plug-in for web pages offers: a control that shows one web page. Which addresses it may show is
// the caller's rule.
#pragma once

#include "periphery/netzadresse.h"

#include <QObject>
#include <QUrl>

#include <functional>

class QWidget;

struct Netzregeln {
    std::function<Netzziel(const QUrl&)> ziel;   // asked before each page and for each of its parts
    std::function<void(const QUrl&)> nachAussen; // takes what the user followed and the control may not show
    std::function<void(bool)> geladen;           // a page has loaded, or has failed
};

// The control; it belongs to its parent window.
class Netzansicht {
public:
    Netzansicht() = default;
    Netzansicht(const Netzansicht&) = delete;
    Netzansicht& operator=(const Netzansicht&) = delete;
    virtual ~Netzansicht() = default;

    [[nodiscard]] virtual QWidget* Steuerelement() = 0;
    virtual void Zeigen(const QUrl& adresse) = 0;
};

// The plug-in itself.
class Netzzusatz {
public:
    Netzzusatz() = default;
    Netzzusatz(const Netzzusatz&) = delete;
    Netzzusatz& operator=(const Netzzusatz&) = delete;
    virtual ~Netzzusatz() = default;

    [[nodiscard]] virtual Netzansicht* Bauen(QWidget* eltern, Netzregeln regeln) = 0;
};
Q_DECLARE_INTERFACE(Netzzusatz, "feldkranz.Netzzusatz/1")
