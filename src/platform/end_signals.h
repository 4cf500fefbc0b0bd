#pragma once

#include <optional>

namespace kestrum {

/// Hears the signals by which the system ends a program: SIGTERM, SIGHUP and SIGINT where there are
/// such. A signal that the caller of the program has switched off stays off, and one that comes a
/// second time ends the program at once. There may be one at a time.
class End_Signals {
public:
    End_Signals();
    End_Signals(const End_Signals&) = delete;
    End_Signals& operator=(const End_Signals&) = delete;
    ~End_Signals();

    /// Becomes readable when a signal has come; -1 when none can be heard.
    [[nodiscard]] int Handle() const { return reading_end_; }

    /// The signal that has come.
    [[nodiscard]] std::optional<int> Heard() const;

    /// Lets a signal take its usual course, after the last act of the program.
    static void Obey(int signal);

private:
    int reading_end_ = -1;
};

} // namespace kestrum
