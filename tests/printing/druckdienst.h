// A print service of the test's own: a CUPS server on a socket in a temporary folder, with one queue that
// writes PDF files. Nothing of the machine's own print service is touched.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

class Druckdienst {
public:
    Druckdienst() = default;
    ~Druckdienst();
    Druckdienst(const Druckdienst&) = delete;
    Druckdienst& operator=(const Druckdienst&) = delete;

    // Starts the server and makes the queue, whose A4 sheet has the unprintable margins of the queue's
    // description: left 5, top 8, right 5, bottom 6 mm. Returns why it couldn't be done, "" if it could.
    [[nodiscard]] QString starten();
    void beenden();

    // Runs one of the service's commands; true when it succeeded.
    bool befehl(const QString& programm, const QStringList& argumente) const;

    // The file that a job of that name became, once it is finished and has all its pages; "" when it doesn't
    // come.
    [[nodiscard]] static QString warten(const QString& auftrag, int seiten = 1);

    static constexpr const char* warteschlange = "Feldkranz-Test";

private:
    bool konfigurieren() const;

    QTemporaryDir ordner_;
    QProcess dienst_;
    bool ablageNeu_ = false; // the folder for the files wasn't there before
};
