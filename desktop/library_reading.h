#pragma once

#include "library/library.h"

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace kestrum::desktop {

/// Reads a folder beside the windows.
class Library_Reading {
public:
    Library_Reading() = default;
    Library_Reading(const Library_Reading&) = delete;
    Library_Reading& operator=(const Library_Reading&) = delete;

    ~Library_Reading() { Give_Up(); }

    /// Begins, and gives up what was being read.
    void Start(const std::string& folder, bool metric);
    /// Ends the reading soon and waits for that.
    void Give_Up();

    [[nodiscard]] bool Runs() const { return thread_.joinable(); }

    [[nodiscard]] bool Is_Done() const { return is_done_; }

    /// Tests that have been read, and all there are.
    [[nodiscard]] std::size_t Read() const { return read_; }

    [[nodiscard]] std::size_t All() const { return all_; }

    struct Result {
        std::vector<Library_Entry> entries;
        std::vector<std::string> problems; // of folders
        bool is_there = false;
    };

    /// Hands out what was read, when it is done.
    [[nodiscard]] Result Take();

private:
    void Run(const std::string& folder, bool metric);

    std::thread thread_;
    std::atomic<bool> is_given_up_ = false;
    std::atomic<bool> is_done_ = false;
    std::atomic<std::size_t> read_ = 0;
    std::atomic<std::size_t> all_ = 0;
    Result result_;
};

} // namespace kestrum::desktop
