// The fonts of the pages as the check measures them: at the resolution that printers have, without asking for
// one.
#pragma once

#include <memory>

class Schriftmass;

class Pruefschriften {
public:
    Pruefschriften();
    ~Pruefschriften();
    Pruefschriften(const Pruefschriften&) = delete;
    Pruefschriften& operator=(const Pruefschriften&) = delete;

    [[nodiscard]] const Schriftmass& mass() const;

private:
    struct Blatt;
    std::unique_ptr<Blatt> blatt_;
};
