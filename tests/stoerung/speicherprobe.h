// One kind of file as the running program saves it, and what must hold whatever becomes of a save: the old
// file or the new one stands whole, the message and the flag say which, nothing is left lying about, the
// window lives on and holds what it held.
#pragma once

#include "tests/hilfe/dialogfolge.h"
#include "tests/persistence/fremdhilfe.h"
#include "tests/stoerung/mitschrift.h"
#include "tests/stoerung/stoerung.h"

#include <QByteArray>
#include <QString>

#include <vector>

// A failure as the user is told it.
struct Fehlgrund {
    int nummer = 0;
    QString text{};
};
// What an errno is told as where a save makes, writes or looks up something, and where it reads the old file.
[[nodiscard]] Fehlgrund Schreibgrund(int fehlernummer);
[[nodiscard]] Fehlgrund Lesegrund(int fehlernummer);
struct Meldungserwartung {
    QString text{};
    QString taste{};
};

// As FehlerMelden puts it.
[[nodiscard]] Meldungserwartung Fehlerbericht(const QString& ort, const Fehlgrund& grund);

struct Speicherfall {
    QString ordner{}; // native
    QString name{};
    QByteArray alt{};                          // the file before each save
    std::function<void()> speichern{};         // by the button
    std::function<void(Dialogfolge&)> frage{}; // the question before the save; none where none comes
    std::function<bool()> ungesichert{};       // by the flag; none where there is no flag
    std::function<void()> aendern{};           // unsaved again, with the same content
    std::function<void()> kennen{};            // the old file counts as the one that the program has read
    Fremdfrage fremdfrage{};                   // the question about a file that isn't that one
    std::function<QString()> inhalt{};         // what the window shows
    std::function<void()> bedienen{};          // by mouse or keyboard: the window shows something else then
    Meldungserwartung gelungen{};              // about a save that came about; no text where none is told
    std::function<Meldungserwartung(const Fehlgrund& grund)> gescheitert{}; // and about one that didn't

    [[nodiscard]] QString pfad() const { return ordner + QLatin1Char('/') + name; }
    void Ablegen(const QByteArray& bytes) const;
    // The old file put there and known, and the window unsaved.
    void Anfang() const;
};

// The bytes of a file; a null array where there is none.
[[nodiscard]] QByteArray Dateibytes(const QString& pfad);
// An event that is sent comes, and no hourglass stays: what is wrong with that, or "".
[[nodiscard]] QString Lebensklage();

class Speicherprobe {
public:
    explicit Speicherprobe(Speicherfall fall);

    // Saves under a rule, from the old file on, and once more without one. What is wrong, or "".
    [[nodiscard]] QString Speichern(const Regel& regel, int fehlernummer);
    // The same with each call of a save failing in turn; immer is in force all the time. The first
    // complaints, or "".
    [[nodiscard]] QString JederVersagt(const std::vector<int>& fehlernummern, const Regel& immer = {});
    // What somebody else has written since, with each call of a save failing in turn and the question about
    // it answered Abbrechen: it stands there as it is. The first complaint, or "".
    [[nodiscard]] QString FremdesBleibt(const std::vector<int>& fehlernummern);
    // From each call of a save on: a broken disk fails every call, a full one takes nothing more.
    [[nodiscard]] QString KaputtAb(const Regel& immer = {});
    [[nodiscard]] QString VollAb(const Regel& immer = {});

    // Of the last save under a rule, and of all of them.
    [[nodiscard]] bool gerufen(std::string_view name) const;
    [[nodiscard]] int gelungene() const { return gelungene_; }
    [[nodiscard]] int gescheiterte() const { return gescheiterte_; }

private:
    [[nodiscard]] QString AbJedem(int fehlernummer, const std::function<bool(const Aufruf&)>& welche,
                                  const Regel& immer);
    [[nodiscard]] QString Lauf(const Regel& regel, int fehlernummer);
    [[nodiscard]] QString Dateiklage(bool gelungen) const;
    [[nodiscard]] QString Fensterklage(bool gelungen, const QString& inhalt) const;
    [[nodiscard]] QString Restklage() const;
    [[nodiscard]] bool Altesgelesen() const;
    [[nodiscard]] bool Bewahrt() const;
    [[nodiscard]] QString Klagen(const std::function<Regel(int)>& regel, int anzahl, int fehlernummer);

    Speicherfall fall_;
    QByteArray neu_;
    Mitschrift mitschrift_;
    QStringList texte_;
    std::vector<Aufruf> aufrufe_;
    int gelungene_ = 0;
    int gescheiterte_ = 0;
    bool endgueltig_ = false;
};
