#include "desktop/library_reading.h"

#include <exception>
#include <utility>

namespace kestrum::desktop {

Library_Reading::~Library_Reading() {
    Give_Up();
    for (const std::unique_ptr<Job>& job : given_up_) {
        job->thread.join();
    }
}

void Library_Reading::Start(const std::string& folder, bool metric, Entries known) {
    Give_Up();
    job_ = std::make_unique<Job>();
    job_->thread = std::thread([&job = *job_, folder, metric, known = std::move(known)] {
        Run(job, folder, metric, known);
    });
}

void Library_Reading::Give_Up() {
    Forget_Ended();
    if (job_) {
        job_->is_given_up = true;
        given_up_.push_back(std::move(job_));
    }
}

void Library_Reading::Forget_Ended() {
    std::erase_if(given_up_, [](const std::unique_ptr<Job>& job) {
        if (job->is_done) {
            job->thread.join();
            return true;
        }
        return false;
    });
}

Library_Reading::Result Library_Reading::Take() {
    job_->thread.join();
    Result result = std::move(job_->result);
    job_.reset();
    return result;
}

void Library_Reading::Run(Job& job, const std::string& folder, bool metric, const Entries& known) {
    const auto begin = std::chrono::steady_clock::now();
    const auto goes_on = [&job] { return !job.is_given_up; };
    try {
        Folder_Walk walk = Tests_Below(folder, goes_on);
        job.all = walk.tests.size();
        job.result.is_there = walk.is_there;
        job.result.problems = std::move(walk.problems);
        job.result.entries = Read_Library({.folder = folder,
                                           .metric = metric,
                                           .jobs = Usual_Jobs(),
                                           .goes_on =
                                               [&job, &goes_on](std::size_t read) {
                                                   job.read = read;
                                                   return goes_on();
                                               },
                                           .known = *known},
                                          std::move(walk.tests));
        job.result.is_as_known = Found_The_Same(job.result.entries, *known);
    } catch (const std::exception& failure) { // a thread must not end the program
        job.result.problems.emplace_back(failure.what());
    }
    job.result.time = std::chrono::steady_clock::now() - begin;
    job.is_done = true;
}

} // namespace kestrum::desktop
