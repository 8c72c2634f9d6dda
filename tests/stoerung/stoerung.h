// Faults of the disk in the running test program: while a Stoerung lives, a rule decides about every system
// call of the process that goes into one of its places, and a call may fail, take its time or see the disk
// changed under it. The calls are caught by the program's own definitions of them (systemaufrufe.cpp), which
// the linker puts before the system library's: nothing is preloaded, so the sanitizers have no say in it.
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

struct Aufruf {
    int nummer = 0;          // in this Stoerung, from 1
    std::string_view name{}; // as the system names it
    std::string pfad{};      // what it is about, absolute
    bool aendernd = false;   // makes, changes or removes something, or opens it for that
    bool anlegend = false;   // opens a file that it may make
    int fehlernummer = 0;    // what it was failed with
};

// Whose calls count. The journal writes when it likes, in a thread of its own.
enum class Faeden { Dieser, Alle };

// What a call comes to: 0 lets it do its work, else it fails with that errno.
using Regel = std::function<int(const Aufruf&)>;

class Stoerung {
public:
    // orte: native paths; each counts with all beneath it. One object at a time.
    explicit Stoerung(std::vector<std::string> orte, Regel regel = {}, Faeden faeden = Faeden::Dieser);
    ~Stoerung();
    Stoerung(const Stoerung&) = delete;
    Stoerung& operator=(const Stoerung&) = delete;

    [[nodiscard]] const std::vector<Aufruf>& aufrufe() const { return aufrufe_; }

    // --- For the system calls ---
    // The errno that a call comes to, 0 for none or where it isn't about a place of this object's.
    [[nodiscard]] int Entscheiden(Aufruf aufruf);
    // A descriptor that stands for a path, and one that is closed.
    void Merken(int deskriptor, const std::string& pfad);
    void Vergessen(int deskriptor);
    // The path of a descriptor, "" for one that isn't known.
    [[nodiscard]] std::string Pfad(int deskriptor);

private:
    [[nodiscard]] bool Betroffen(std::string_view pfad) const;

    std::vector<std::string> orte_;
    Regel regel_;
    Faeden faeden_;
    std::thread::id faden_ = std::this_thread::get_id();
    std::vector<Aufruf> aufrufe_;
    std::map<int, std::string> offene_;
    std::mutex schloss_; // the journal and the toolkit have threads of their own
};

// The one that lives, or nullptr: held for the calling thread as long as this object, so that no other thread
// ends it meanwhile. The toolkit's threads make calls at all times.
class LaufendeStoerung {
public:
    LaufendeStoerung();
    [[nodiscard]] Stoerung* get() const { return stoerung_; }

private:
    std::shared_lock<std::shared_mutex> riegel_;
    Stoerung* stoerung_ = nullptr;
};
