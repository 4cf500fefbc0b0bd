#pragma once

#include "files/rescue_set.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

namespace kestrum {

/// Writes rescue copies beside the window, so that a slow disk holds nobody up. Of a file that
/// waits only the newest content is kept. What cannot be written waits for the next call.
class Rescue_Writer {
public:
    Rescue_Writer();
    Rescue_Writer(const Rescue_Writer&) = delete;
    Rescue_Writer& operator=(const Rescue_Writer&) = delete;
    /// Waits for what is being written; what still waits is given up.
    ~Rescue_Writer();

    /// Hands files over that belong together, and tries again what has failed. What waits for
    /// another folder is given up.
    void Put(const std::string& folder, Rescue_Set files);

    /// Waits until all is written; false when that fails or takes longer.
    bool Flush(std::chrono::milliseconds at_most);

    /// Gives up what waits, and waits for what is being written.
    void Stop();

    [[nodiscard]] bool Is_Idle() const;
    /// Whether the last try of what waits has failed.
    [[nodiscard]] bool Has_Failed() const;

private:
    void Work(const std::stop_token& stop);
    void Write_Waiting(std::unique_lock<std::mutex>& hold);

    mutable std::mutex mutex_;
    std::condition_variable_any changed_;
    std::string folder_;
    Rescue_Set waiting_;
    bool is_asked_ = false;
    bool is_busy_ = false;
    bool has_failed_ = false;
    std::jthread thread_; // goes first, since it uses all above
};

} // namespace kestrum
