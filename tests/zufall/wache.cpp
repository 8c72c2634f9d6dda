#include "tests/zufall/wache.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::chrono::milliseconds blick{500}; // from one look to the next
constexpr int stillstand = 180;                 // looks without any sign of life

} // namespace

Wache::Wache() : faden_([this] { Wachen(); }) {}

Wache::~Wache() {
    ende_ = true;
    faden_.join();
}

void Wache::Wachen() {
    int gesehen = -1;
    int still = 0;
    while (!ende_) {
        std::this_thread::sleep_for(blick);
        const int jetzt = takte_;
        still = jetzt == gesehen ? still + 1 : 0;
        gesehen = jetzt;
        if (still > stillstand) {
            std::fputs("# MANGEL: the program hangs\n", stderr);
            std::abort();
        }
    }
}
