#pragma once

#include <string>
#include <vector>

namespace kestrum {

// What the system hands a program of the shell when it starts.

/// The arguments of `main` behind the program's name, as UTF-8.
[[nodiscard]] std::vector<std::string> Program_Arguments(int count, const char* const* values);

/// Makes the standard streams ready: bytes go through them as they are, and those that are closed
/// get their places filled. Otherwise the next file that is opened gets the number of the output,
/// and what is printed goes into it.
void Prepare_Standard_Streams();

/// A program with windows, which the system may give no streams, prints where it was started from.
void Borrow_Terminal();

/// Whether what is printed goes to a terminal, which obeys the control characters in it.
[[nodiscard]] bool Prints_To_Terminal();

} // namespace kestrum
