// Reads and writes that the system cuts short or interrupts. The system's calls are replaced here for the
// whole program: they take three bytes at a time, and every other call is interrupted.
#include "core/datei.h"
#include "tests/core/probeordner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool gestoert = false;
int aufrufe = 0;

// True when the call is to be interrupted.
bool Stoeren() {
    if (gestoert) {
        errno = EINTR;
        return ++aufrufe % 2 == 1;
    }
    return false;
}

std::size_t Stueck(std::size_t laenge) {
    return gestoert ? std::min<std::size_t>(laenge, 3) : laenge;
}

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's names are reserved ones
extern "C" ssize_t write(int datei, const void* bytes, size_t laenge) {
    return Stoeren() ? -1 : ::syscall(SYS_write, datei, bytes, Stueck(laenge));
}

extern "C" ssize_t read(int datei, void* bytes, size_t laenge) {
    return Stoeren() ? -1 : ::syscall(SYS_read, datei, bytes, Stueck(laenge));
}

extern "C" int fsync(int datei) {
    return Stoeren() ? -1 : static_cast<int>(::syscall(SYS_fsync, datei));
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

namespace {

class Stueckweise : public ::testing::Test {
protected:
    void SetUp() override { aufrufe = 0; }
    void TearDown() override { gestoert = false; }
    Probeordner ordner;
    const std::string bytes = "Feldkranz, in Stücken von drei Bytes";
};

TEST_F(Stueckweise, AFileIsSavedWhole) {
    ordner.schreiben("a.fkr", std::string(500, 'x'));
    gestoert = true;
    DateiSchreiben(ordner.eigen("a.fkr"), bytes);
    gestoert = false;
    EXPECT_EQ(ordner.lesen("a.fkr"), bytes);
    EXPECT_GT(aufrufe, 24);
}

TEST_F(Stueckweise, AFileIsReadWhole) {
    ordner.schreiben("a.fkr", bytes);
    gestoert = true;
    const std::string gelesen = DateiLesen(ordner.eigen("a.fkr"));
    gestoert = false;
    EXPECT_EQ(gelesen, bytes);
    EXPECT_GT(aufrufe, 24);
}

TEST_F(Stueckweise, ASaveIntoAFolderThatIsMissingIsRefused) {
    gestoert = true;
    EXPECT_EQ(FehlerVon([&] { DateiSchreiben(ordner.eigen("fehlt/a.fkr"), bytes); }), 76);
    gestoert = false;
}

} // namespace
