// The entry of a fuzzing program; FUZZ_ZIEL is its subject's place in the table.
#include "tests/fuzz/eigenschaften.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge);

int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    // The bytes of a file are chars everywhere else.
    fuzz::ziele.at(FUZZ_ZIEL).pruefen({reinterpret_cast<const char*>(daten), laenge}); // NOLINT
    return 0;
}
