#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>

namespace kestrum {

// How programs of one user on this machine talk to each other, in each system's own way; for the
// place where they meet. Sockets are numbers, -1 where there is none. Nothing here raises.

/// What a socket gives and takes instead of a count of bytes.
constexpr int nothing_yet = -1;
constexpr int no_more = -2;

enum class Socket_Way { Read, Write };

/// When somebody gives up who waits.
using Deadline = std::chrono::steady_clock::time_point;

[[nodiscard]] inline std::chrono::milliseconds Left_Until(Deadline end) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(end -
                                                                 std::chrono::steady_clock::now());
}

/// Makes a folder that nobody but this user and the system may enter, or makes sure of one that is
/// there: of this user's, and no link. Gives whether it is one now.
[[nodiscard]] bool Make_Private_Folder(const std::string& path);

/// Listens at a place in a folder that only this user can enter.
[[nodiscard]] int Listen_At(const std::string& place);

/// The place is nobody's any more.
void Forget_Place(const std::string& place);

/// The next who has called there; -1 when there is none, or one who is not known in time to be this
/// user.
[[nodiscard]] int Next_Caller(int listening, Deadline end);

/// Calls who listens at a place; `nothing_yet` when nobody does, `no_more` when nobody can or
/// another user does.
[[nodiscard]] int Call_Place(const std::string& place, Deadline end);

/// Waits until something can be read, or written, or is known to fail; false when time is up.
[[nodiscard]] bool Waits_For(int socket, Socket_Way way, Deadline end);

/// Bytes taken; 0 when the other end has said all.
[[nodiscard]] int Receive_From(int socket, std::span<char> room);

/// Bytes sent.
[[nodiscard]] int Send_To(int socket, std::string_view bytes);

/// Nothing more is said; the other end may go on.
void End_Of_Speech(int socket);

void Close_Socket(int socket);

} // namespace kestrum
