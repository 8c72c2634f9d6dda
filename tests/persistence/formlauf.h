// What the window tests of saving and opening share: the running program with an empty state for each test,
// form files in its KRANZ folder, the file dialog with a name typed into it.
#pragma once

#include "quizform/frmFKFragen.h"
#include "tests/hilfe/dateidialoghilfe.h"
#include "tests/hilfe/dialogfolge.h"
#include "tests/hilfe/programm.h"

#include <memory>

class Formlauf {
public:
    // The state as at the start of the program, no form open, no file in KRANZ.
    void Vorbereiten();
    // Goes before the application does.
    void Beenden() { programm_.reset(); }

    [[nodiscard]] Programm& programm() const { return *programm_; }

    // Bytes of a quiz form, or of a test form, with texts that begin with the word.
    static QByteArray Quiz(const std::string& wort);
    static QByteArray Test(const std::string& wort);
    void Schreiben(const QString& name, const QByteArray& bytes) const;
    [[nodiscard]] QByteArray Lesen(const QString& name) const;
    // Path of a file there as the program has it after its file dialog chose it for opening.
    [[nodiscard]] std::string Pfad(const std::string& name) const;

    // Opens a file by the button of the toolbar that shows; the further dialogs must be expected already
    // behind the file dialog.
    void Oeffnen(const QString& name) const;
    // Presses a button of the main window.
    void Druecken(const QString& name) const;
    // A new form with a text typed into its first cell.
    frmFKFragen* NeuesFormular(const QString& text) const;

private:
    std::unique_ptr<Programm> programm_;
};

// Expects the message about a form that has been saved.
void GespeichertErwarten(Dialogfolge& dialoge, const QString& name, Stelle stelle = Stelle::hier());
