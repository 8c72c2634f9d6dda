// The way from a second start to the program that runs already, of the same person and with the same program
// folder: one of them receives, and others hand their file over. Opens no file.
#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

// Where the programs of a program folder meet, as plattform::Anschluss puts it; "" where they can't.
[[nodiscard]] QString Empfangsort(const QString& programmordner);

class Empfang {
public:
    // Runs for each file that was handed over, with its absolute path, or "" for nothing but a start.
    using Annahme = std::function<void(const QString& datei)>;

    // Receives from now on, unless another program does; the place of one that was killed is taken over.
    Empfang(const QString& ort, Annahme annahme);
    ~Empfang();
    Empfang(const Empfang&) = delete;
    Empfang& operator=(const Empfang&) = delete;

    [[nodiscard]] bool laeuft() const;

private:
    class Stelle;
    std::unique_ptr<Stelle> stelle_;
};

inline constexpr std::chrono::milliseconds uebergabefrist{1500};

// Hands a file to the program that receives there. False when none does, or when it doesn't answer in time.
[[nodiscard]] bool DateiUebergeben(const QString& ort, const QString& datei,
                                   std::chrono::milliseconds frist = uebergabefrist);
