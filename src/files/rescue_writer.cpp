#include "files/rescue_writer.h"

#include <exception>
#include <utility>

namespace kestrum {

Rescue_Writer::Rescue_Writer() : thread_([this](const std::stop_token& stop) { Work(stop); }) {}

Rescue_Writer::~Rescue_Writer() {
    Stop();
}

void Rescue_Writer::Put(const std::string& folder, Rescue_Set files) {
    const std::scoped_lock hold(mutex_);
    if (folder != folder_) {
        waiting_.clear();
        folder_ = folder;
    }
    for (auto& file : files) {
        waiting_.insert_or_assign(file.first, std::move(file.second));
    }
    is_asked_ = !waiting_.empty();
    changed_.notify_all();
}

bool Rescue_Writer::Flush(std::chrono::milliseconds at_most) {
    std::unique_lock hold(mutex_);
    if (!thread_.joinable()) {
        return waiting_.empty(); // what was given up at the stop is written by nobody
    }
    is_asked_ = !waiting_.empty();
    changed_.notify_all();
    const bool is_done =
        changed_.wait_for(hold, at_most, [this] { return !is_asked_ && !is_busy_; });
    return is_done && !has_failed_;
}

void Rescue_Writer::Stop() {
    thread_.request_stop();
    if (thread_.joinable()) {
        thread_.join();
    }
}

bool Rescue_Writer::Is_Idle() const {
    const std::scoped_lock hold(mutex_);
    return waiting_.empty() && !is_busy_;
}

bool Rescue_Writer::Has_Failed() const {
    const std::scoped_lock hold(mutex_);
    return has_failed_;
}

void Rescue_Writer::Work(const std::stop_token& stop) {
    std::unique_lock hold(mutex_);
    while (changed_.wait(hold, stop, [this] { return is_asked_; }) && !stop.stop_requested()) {
        Write_Waiting(hold);
    }
}

void Rescue_Writer::Write_Waiting(std::unique_lock<std::mutex>& hold) {
    const std::string folder = folder_;
    const Rescue_Set files = std::exchange(waiting_, {});
    is_asked_ = false;
    is_busy_ = true;
    hold.unlock();
    bool is_written = true;
    try {
        Write_Rescue_Set(folder, files);
    } catch (const std::exception&) {
        is_written = false; // nothing may leave a thread
    }
    hold.lock();
    is_busy_ = false;
    has_failed_ = !is_written;
    if (!is_written && folder == folder_) {
        waiting_.insert(files.begin(), files.end()); // a newer content stays
    }
    changed_.notify_all();
}

} // namespace kestrum
