// A run of the random hands: rolls or reads the steps, does them by a clock that goes on inside the loops of
// dialogs, menus and drags, and looks after each at what must hold. A program that was ended is started anew.
#pragma once

#include "tests/zufall/haende.h"
#include "tests/zufall/handgriff.h"
#include "tests/zufall/wache.h"
#include "tests/zufall/wuerfel.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <vector>

struct Auftrag {
    unsigned saat = 1;
    int schritte = 2000;
    std::vector<Handgriff> liste; // done instead of rolled ones, if there are any
    int protokoll = 1;            // file descriptor for the steps, one a line
};

class Lauf : public QObject {
public:
    explicit Lauf(Auftrag auftrag);
    // Returns when all steps are done. The first thing that is wrong ends the process with exit code 1.
    void ausfuehren();
    // Something is wrong: says so, and ends the process.
    [[noreturn]] void Mangel(const QString& satz);
    void Notiz(const QString& zeile);

private:
    void Takt();
    void Pruefen();
    void Naechster();
    void Tun(const Handgriff& schritt);
    [[nodiscard]] bool Aufbruch() const;
    void DialogZaehlen();
    void SpeicherMessen();

    Auftrag auftrag_;
    Handwuerfel wuerfel_;
    Haende haende_;
    QFile protokoll_;
    QTimer uhr_;
    QElapsedTimer unruhe_; // since the last stroke
    int schritt_ = 0;
    bool ende_ = false;
    double cpu_ = 0;           // the thread's time in seconds when the last stroke began
    QPointer<QWidget> dialog_; // open since so many steps
    int dialogschritte_ = 0;
    long speicherAnfang_ = 0; // kilobytes after the first tenth
    Wache wache_;
};
