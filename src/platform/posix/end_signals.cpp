#include "platform/end_signals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace kestrum {

namespace {

constexpr std::array ending_signals{SIGTERM, SIGHUP, SIGINT};

/// A handler can find its way to nothing but this.
std::atomic<int> writing_end = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void Pass_On(int number) {
    const int before = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const auto written = ::write(writing_end, &byte, 1);
    errno = before;
}

void Set_Handler(int number, void (*handler)(int), int flags) {
    struct sigaction action {};

    action.sa_handler = handler; // NOLINT(*-union-access)
    action.sa_flags = flags;
    ::sigaction(number, &action, nullptr);
}

bool Is_Switched_Off(int number) {
    struct sigaction present {};

    return ::sigaction(number, nullptr, &present) == 0 && present.sa_handler == SIG_IGN; // NOLINT
}

} // namespace

End_Signals::End_Signals() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // then a signal does what it always does
    }
    reading_end_ = ends[0];
    writing_end = ends[1];
    for (const int number : ending_signals) {
        if (!Is_Switched_Off(number)) {
            Set_Handler(number, Pass_On, static_cast<int>(SA_RESETHAND) | SA_RESTART);
        }
    }
}

End_Signals::~End_Signals() {
    if (reading_end_ < 0) {
        return;
    }
    for (const int number : ending_signals) {
        if (!Is_Switched_Off(number)) {
            Set_Handler(number, SIG_DFL, 0);
        }
    }
    ::close(reading_end_);
    ::close(writing_end.exchange(-1));
}

std::optional<int> End_Signals::Heard() const {
    unsigned char number = 0;
    return ::read(reading_end_, &number, 1) == 1 ? std::optional<int>(number) : std::nullopt;
}

void End_Signals::Obey(int signal) {
    Set_Handler(signal, SIG_DFL, 0);
    ::raise(signal);
}

} // namespace kestrum
