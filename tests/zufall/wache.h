// Watches from a thread of its own whether the program goes on: one that hangs can't tell of it.
#pragma once

#include <atomic>
#include <thread>

class Wache {
public:
    Wache();
    ~Wache();
    Wache(const Wache&) = delete;
    Wache& operator=(const Wache&) = delete;

    // The program is alive. Without any such call for long the process is aborted.
    void Takt() { ++takte_; }

private:
    void Wachen();

    std::atomic<int> takte_ = 0;
    std::atomic<bool> ende_ = false;
    std::thread faden_; // starts last
};
