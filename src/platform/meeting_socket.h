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

/// Listens at a place in a folder that only this user can enter.
[[nodiscard]] int Listen_At(const std::string& place);

/// The place is nobody's any more.
void Forget_Place(const std::string& place);

/// The next who has called there; -1 when there is none, or one of another user.
[[nodiscard]] int Next_Caller(int listening);

/// Calls who listens at a place; -1 when nobody does, or another user.
[[nodiscard]] int Call_Place(const std::string& place);

/// Waits until something can be read, or written.
[[nodiscard]] bool Waits_For(int socket, Socket_Way way, std::chrono::milliseconds most);

/// Bytes taken; 0 when the other end has said all.
[[nodiscard]] int Receive_From(int socket, std::span<char> room);

/// Bytes sent.
[[nodiscard]] int Send_To(int socket, std::string_view bytes);

/// Nothing more is said; the other end may go on.
void End_Of_Speech(int socket);

void Close_Socket(int socket);

} // namespace kestrum
