#pragma once

#include "library/library.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kestrum::desktop {

/// Reads a folder beside the windows.
class Library_Reading {
public:
    using Entries = std::shared_ptr<const std::vector<Library_Entry>>;

    Library_Reading() = default;
    Library_Reading(const Library_Reading&) = delete;
    Library_Reading& operator=(const Library_Reading&) = delete;
    ~Library_Reading();

    /// Begins, and gives up what was being read. What is known of the folder is not read again.
    void Start(const std::string& folder, bool metric, Entries known);
    /// Ends the reading without waiting for that: a slow disk may hold its thread for long.
    void Give_Up();

    [[nodiscard]] bool Runs() const { return job_ != nullptr; }

    [[nodiscard]] bool Is_Done() const { return job_ != nullptr && job_->is_done; }

    /// Tests that have been read, and all there are.
    [[nodiscard]] std::size_t Read() const { return job_->read; }

    [[nodiscard]] std::size_t All() const { return job_->all; }

    struct Result {
        std::vector<Library_Entry> entries;
        std::vector<std::string> problems; // of folders
        bool is_there = false;
        bool is_as_known = false;
        std::chrono::steady_clock::duration time{};
    };

    /// Hands out what was read, when it is done.
    [[nodiscard]] Result Take();

private:
    struct Job {
        std::thread thread;
        std::atomic<bool> is_given_up = false;
        std::atomic<bool> is_done = false;
        std::atomic<std::size_t> read = 0;
        std::atomic<std::size_t> all = 0;
        Result result;
    };

    static void Run(Job& job, const std::string& folder, bool metric, const Entries& known);
    void Forget_Ended();

    std::unique_ptr<Job> job_;
    /// Those whose threads have still to notice.
    std::vector<std::unique_ptr<Job>> given_up_;
};

} // namespace kestrum::desktop
