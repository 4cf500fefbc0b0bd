#include "desktop/library_reading.h"

#include <exception>
#include <utility>

namespace kestrum::desktop {

void Library_Reading::Start(const std::string& folder, bool metric) {
    Give_Up();
    is_given_up_ = false;
    is_done_ = false;
    read_ = 0;
    all_ = 0;
    thread_ = std::thread([this, folder, metric] { Run(folder, metric); });
}

void Library_Reading::Give_Up() {
    is_given_up_ = true;
    if (thread_.joinable()) {
        thread_.join();
    }
}

Library_Reading::Result Library_Reading::Take() {
    thread_.join();
    return std::exchange(result_, {});
}

void Library_Reading::Run(const std::string& folder, bool metric) {
    try {
        Folder_Walk walk = Tests_Below(folder);
        all_ = walk.tests.size();
        result_.is_there = walk.is_there;
        result_.problems = std::move(walk.problems);
        result_.entries = Read_Library({.folder = folder,
                                        .metric = metric,
                                        .jobs = Usual_Jobs(),
                                        .goes_on =
                                            [this](std::size_t read) {
                                                read_ = read;
                                                return !is_given_up_;
                                            }},
                                       std::move(walk.tests));
    } catch (const std::exception& failure) { // a thread must not end the program
        result_.problems.emplace_back(failure.what());
    }
    is_done_ = true;
}

} // namespace kestrum::desktop
