// Answers for the modal dialogs that a test expects, in their order. Each dialog really comes on the screen,
// is compared by name, whole title and whole text, and gets a real click on the button named. A dialog that
// nobody expected fails the test and is closed again, and so does an answer that nobody asked for.
#pragma once

#include "tests/hilfe/versagen.h"

#include <QDialog>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

// Stands among the buttons for closing the dialog by its frame.
inline const QString durchRahmen = QStringLiteral("(frame)");

// What a dialog says, whichever of the program's labels carries it, lines joined by \n.
[[nodiscard]] QString Dialogtext(const QDialog& dialog);

struct ErwarteterDialog {
    QString name;                 // objectName; for a stock message box its class name will do
    std::optional<QString> titel; // nothing: not compared
    std::optional<QString> text;  // lines joined by \n; nothing: not compared
    QStringList tasten;           // objectNames or captions (without &) of the buttons to click, in order
    std::function<void(QDialog&)> vorher{}; // runs on the visible dialog, before the click
};

class Dialogfolge {
public:
    explicit Dialogfolge(Stelle stelle = Stelle::hier());
    // Fails the test for every answer left over.
    ~Dialogfolge();
    Dialogfolge(const Dialogfolge&) = delete;
    Dialogfolge& operator=(const Dialogfolge&) = delete;

    void erwarte(ErwarteterDialog dialog, Stelle stelle = Stelle::hier());

    // frmMeldung with that text and that caption on its one button, which is clicked.
    void meldung(const QString& text, const QString& taste, Stelle stelle = Stelle::hier());
    // frmNachricht, answered 1 OK, 2 Abbrechen, 6 Ja or 7 Nein. The blank behind the title is the dialog's.
    void frage(const QString& titel, const QString& text, int antwort, Stelle stelle = Stelle::hier());
    // frmInput; the line is typed and the button clicked (cmdOK or cmdAbbruch).
    void eingabe(const QString& titel, const QString& text, const QString& zeile, const QString& taste,
                 Stelle stelle = Stelle::hier());
    // A stock message box.
    void kasten(const QString& titel, const QString& text, const QString& taste,
                Stelle stelle = Stelle::hier());

    // True when every expected dialog has come, and no other.
    [[nodiscard]] bool fertig() const { return auftraege_.empty() && unerwartete_ == 0; }
    [[nodiscard]] int offen() const { return static_cast<int>(auftraege_.size()); }

private:
    struct Auftrag {
        ErwarteterDialog dialog;
        Stelle stelle{};
    };
    bool Beantworten(QDialog& dialog);
    void Unerwartet(QDialog& dialog);

    std::deque<Auftrag> auftraege_;
    Stelle stelle_;
    int unerwartete_ = 0;
};
