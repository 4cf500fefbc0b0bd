#include "platform/meeting_socket.h"

#include "base/run_time_error.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "platform/running_program.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <random>
#include <winsock2.h>

namespace kestrum {

namespace {

constexpr int base = 16;

/// The place is a file that only this user can read. It names the port of a socket that takes calls
/// of this machine alone, and a token: who shows it has read the file, and so is this user.
struct Address {
    unsigned short port = 0;
    std::string token;
};

constexpr std::size_t token_size = 32;

bool Is_Network_There() {
    static const bool there = [] {
        WSADATA facts{};
        constexpr WORD version = 0x0202;
        return ::WSAStartup(version, &facts) == 0;
    }();
    return there;
}

int New_Socket() {
    if (!Is_Network_There()) {
        return -1;
    }
    const SOCKET made =
        ::WSASocketW(AF_INET, SOCK_STREAM, IPPROTO_TCP, nullptr, 0, WSA_FLAG_NO_HANDLE_INHERIT);
    return made == INVALID_SOCKET ? -1 : static_cast<int>(made); // of 24 bits
}

SOCKET Of_System(int socket) {
    return static_cast<SOCKET>(socket);
}

sockaddr_in Here(unsigned short port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = ::htons(port);
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    return address;
}

bool Never_Waits(int socket) {
    u_long on = 1;
    return ::ioctlsocket(Of_System(socket), static_cast<long>(FIONBIO), &on) == 0;
}

/// No other user can listen at the same port, and hear tokens.
bool Is_Alone_At_Port(int socket) {
    constexpr int on = 1;
    return ::setsockopt(Of_System(socket), SOL_SOCKET, SO_EXCLUSIVEADDRUSE,
                        reinterpret_cast<const char*>(&on), sizeof on) == 0;
}

bool Connects(int socket, unsigned short port, Deadline end) {
    const sockaddr_in address = Here(port);
    return ::connect(Of_System(socket), reinterpret_cast<const sockaddr*>(&address),
                     sizeof address) == 0 ||
           (::WSAGetLastError() == WSAEWOULDBLOCK && Waits_For(socket, Socket_Way::Write, end));
}

int Kept_If(bool went_well, int socket) {
    if (went_well) {
        return socket;
    }
    Close_Socket(socket);
    return -1;
}

int Count_Of(int result) {
    if (result >= 0) {
        return result;
    }
    return ::WSAGetLastError() == WSAEWOULDBLOCK ? nothing_yet : no_more;
}

std::string New_Token() {
    std::random_device chance; // the system's own
    std::string token;
    while (token.size() < token_size) {
        token += static_cast<char>('g' + chance() % base); // no digit of the port before it
    }
    return token;
}

std::optional<Address> Address_At(const std::string& place) {
    try {
        const std::string text = Read_Whole_File(place);
        Address address;
        const auto read =
            std::from_chars(text.data(), text.data() + text.size(), address.port, base);
        address.token.assign(read.ptr, text.data() + text.size());
        return address.token.size() == token_size ? std::optional(address) : std::nullopt;
    } catch (const Run_Time_Error&) {
        return std::nullopt;
    }
}

bool Write_Address(const std::string& place, const Address& address) {
    std::array<char, base> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), address.port, base).ptr;
    try {
        Write_Whole_File(place, std::string(digits.data(), end) + address.token);
        return true;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

/// The token that callers of this program's own place must show.
const std::string& Own_Token() {
    static const std::string token = New_Token();
    return token;
}

bool Shows_Token(int caller, Deadline end) {
    std::string shown;
    std::array<char, token_size> room{};
    while (shown.size() < token_size && Waits_For(caller, Socket_Way::Read, end)) {
        const int count = Receive_From(caller, std::span(room).first(token_size - shown.size()));
        if (count == 0 || count == no_more) {
            return false;
        }
        shown.append(room.data(), static_cast<std::size_t>(std::max(count, 0)));
    }
    return shown == Own_Token();
}

} // namespace

std::string Meeting_Folder(std::string_view /*runtime_folder*/, std::string_view temporary_folder) {
    const std::string own = Join_Path(temporary_folder, "kestrum-meeting");
    return !temporary_folder.empty() && Make_Private_Folder(own) ? own : std::string();
}

int Listen_At(const std::string& place) {
    const int listening = New_Socket();
    sockaddr_in address = Here(0);
    int size = sizeof address;
    constexpr int callers = 16;
    const bool went_well =
        listening >= 0 && Never_Waits(listening) && Is_Alone_At_Port(listening) &&
        ::bind(Of_System(listening), reinterpret_cast<sockaddr*>(&address), size) == 0 &&
        ::listen(Of_System(listening), callers) == 0 &&
        ::getsockname(Of_System(listening), reinterpret_cast<sockaddr*>(&address), &size) == 0 &&
        Write_Address(place, {.port = ::ntohs(address.sin_port), .token = Own_Token()});
    return Kept_If(went_well, listening);
}

void Forget_Place(const std::string& place) {
    Remove_File(place);
}

int Next_Caller(int listening, Deadline end) {
    const SOCKET accepted = ::accept(Of_System(listening), nullptr, nullptr);
    if (accepted == INVALID_SOCKET) {
        return -1;
    }
    const int caller = static_cast<int>(accepted);
    // It would tell of its events where the listening one does.
    ::WSAEventSelect(accepted, nullptr, 0);
    return Kept_If(Never_Waits(caller) && Shows_Token(caller, end), caller);
}

int Call_Place(const std::string& place, Deadline end) {
    const std::optional<Address> known = Address_At(place);
    const int connection = known ? New_Socket() : -1;
    if (connection < 0) {
        return nothing_yet;
    }
    const bool went_well =
        Never_Waits(connection) && Connects(connection, known->port, end) &&
        Send_To(connection, known->token) == static_cast<int>(token_size); // a new one has room
    return Kept_If(went_well, connection);
}

bool Waits_For(int socket, Socket_Way way, Deadline end) {
    const auto most = Left_Until(end);
    if (most.count() <= 0) {
        return false;
    }
    fd_set wanted{};
    wanted.fd_count = 1;
    wanted.fd_array[0] = Of_System(socket);
    constexpr long in_second = 1000;
    timeval limit{.tv_sec = static_cast<long>(most.count()) / in_second,
                  .tv_usec = static_cast<long>(most.count()) % in_second * in_second};
    if (way == Socket_Way::Read) {
        return ::select(0, &wanted, nullptr, nullptr, &limit) > 0;
    }
    fd_set failed = wanted; // a call that nobody takes can never be written to
    return ::select(0, nullptr, &wanted, &failed, &limit) > 0;
}

int Receive_From(int socket, std::span<char> room) {
    return Count_Of(::recv(Of_System(socket), room.data(), static_cast<int>(room.size()), 0));
}

int Send_To(int socket, std::string_view bytes) {
    return Count_Of(::send(Of_System(socket), bytes.data(), static_cast<int>(bytes.size()), 0));
}

void End_Of_Speech(int socket) {
    ::shutdown(Of_System(socket), SD_SEND);
}

void Close_Socket(int socket) {
    if (socket >= 0) {
        ::closesocket(Of_System(socket));
    }
}

} // namespace kestrum
