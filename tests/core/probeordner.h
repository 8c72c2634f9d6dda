// A temporary folder for one test of the edge, with what such tests do in it beside the program: write and
// read raw bytes, see every name, and run a step in a child process that may give up rights for good.
#pragma once

#include "core/laufzeitfehler.h"
#include "core/pfad.h"

#include <QString>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <system_error>

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

class Probeordner {
public:
    Probeordner() : ordner_((std::filesystem::temp_directory_path() / "fk-XXXXXX").string()) {
        if (::mkdtemp(ordner_.data()) == nullptr) {
            throw std::filesystem::filesystem_error("mkdtemp",
                                                    std::error_code(errno, std::system_category()));
        }
        // Open for every user: some tests go on without root's rights.
        std::filesystem::permissions(ordner_, std::filesystem::perms(0755));
    }
    Probeordner(const Probeordner&) = delete;
    Probeordner& operator=(const Probeordner&) = delete;
    ~Probeordner() {
        std::error_code egal; // what can't be removed is the system's to clear away
        std::filesystem::remove_all(ordner_, egal);
    }

    [[nodiscard]] std::string nativ(const std::string& name) const { return ordner_ + "/" + name; }
    // The same in the program's notation; the name with slashes.
    [[nodiscard]] std::string eigen(const std::string& name) const {
        return EigenerPfad(QString::fromStdString(nativ(name)));
    }
    void schreiben(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories(std::filesystem::path(nativ(name)).parent_path());
        std::ofstream(nativ(name), std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string lesen(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(nativ(name), std::ios::binary).rdbuf();
        return bytes.str();
    }
    // Every name directly in a folder, hidden ones too.
    [[nodiscard]] std::set<std::string> namen(const std::string& unter = "") const {
        std::set<std::string> alle;
        for (const auto& eintrag : std::filesystem::directory_iterator(nativ(unter))) {
            alle.insert(eintrag.path().filename().string());
        }
        return alle;
    }

private:
    std::string ordner_;
};

// Number of the run-time error that a step throws; 0 for none.
inline int FehlerVon(const std::function<void()>& schritt) {
    try {
        schritt();
    } catch (const Laufzeitfehler& fehler) {
        return fehler.nummer();
    }
    return 0;
}

inline constexpr int keinUnterschied = 254; // the child could not be given its circumstances
inline constexpr int abgestuerzt = 255;

// Runs a step in a child process and gives the number of its run-time error. vorher sets the child's
// circumstances and says whether it could.
inline int ImKind(const std::function<bool()>& vorher, const std::function<void()>& schritt) {
    const pid_t kind = ::fork();
    if (kind == 0) {
        ::_exit(vorher() ? FehlerVon(schritt) : keinUnterschied);
    }
    int zustand = 0;
    ::waitpid(kind, &zustand, 0);
    return WIFEXITED(zustand) ? WEXITSTATUS(zustand) : abgestuerzt;
}

// Gives up root's rights, which pass over every permission; true when the process has none (any more).
inline bool OhneRechte() {
    constexpr unsigned niemand = 65534;
    return ::geteuid() != 0 ||
           (::setgroups(0, nullptr) == 0 && ::setgid(niemand) == 0 && ::setuid(niemand) == 0);
}

// For tests that need a file of somebody else's.
inline bool AlsRoot() {
    return ::geteuid() == 0;
}
