#include "platform/meeting_socket.h"

#include "platform/running_program.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace kestrum {

namespace {

std::string User_Text() {
    constexpr int base = 16;
    std::array<char, base> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), ::geteuid(), base);
    return {digits.data(), end.ptr};
}

/// A folder of this user's, and no link, that nobody else may enter.
bool Is_Private(const std::string& folder) {
    struct stat found {};

    constexpr mode_t others = 077;
    return ::lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid() && (found.st_mode & others) == 0;
}

std::optional<sockaddr_un> Address_Of(const std::string& place) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (place.size() >= sizeof address.sun_path) {
        return std::nullopt;
    }
    std::memcpy(&address.sun_path, place.data(), place.size());
    return address;
}

const sockaddr* General(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address); // NOLINT(*-reinterpret-cast)
}

bool Is_Own_User(int connection) {
    ucred other{};
    socklen_t size = sizeof other;
    return ::getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 &&
           other.uid == ::geteuid();
}

/// The socket, if all went well with it; else it is closed.
int Kept_If(bool went_well, int socket) {
    if (went_well) {
        return socket;
    }
    Close_Socket(socket);
    return -1;
}

int Count_Of(ssize_t result) {
    if (result >= 0) {
        return static_cast<int>(result);
    }
    return errno == EAGAIN || errno == EINTR ? nothing_yet : no_more;
}

} // namespace

bool Make_Private_Folder(const std::string& path) {
    constexpr mode_t own = 0700;
    return (::mkdir(path.c_str(), own) == 0 || errno == EEXIST) && Is_Private(path);
}

std::string Meeting_Folder(std::string_view runtime_folder, std::string_view temporary_folder) {
    const std::string runtime(runtime_folder);
    if (runtime.starts_with('/') && Is_Private(runtime) &&
        Make_Private_Folder(runtime + "/kestrum")) {
        return runtime + "/kestrum";
    }
    const std::string own = std::string(temporary_folder) + "/kestrum-" + User_Text();
    return own.starts_with('/') && Make_Private_Folder(own) ? own : std::string();
}

int Listen_At(const std::string& place) {
    const std::optional<sockaddr_un> address = Address_Of(place);
    if (!address) {
        return -1;
    }
    constexpr int callers = 16;
    const int listening = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    return Kept_If(::bind(listening, General(*address), sizeof *address) == 0 &&
                       ::listen(listening, callers) == 0,
                   listening);
}

void Forget_Place(const std::string& place) {
    ::unlink(place.c_str());
}

int Next_Caller(int listening, Deadline /*end*/) {
    const int caller = ::accept4(listening, nullptr, nullptr, SOCK_CLOEXEC);
    return Kept_If(caller >= 0 && Is_Own_User(caller), caller);
}

int Call_Place(const std::string& place, Deadline /*end*/) {
    const std::optional<sockaddr_un> address = Address_Of(place);
    if (!address) {
        return no_more;
    }
    const int connection = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(connection, General(*address), sizeof *address) != 0) {
        Close_Socket(connection);
        return nothing_yet;
    }
    if (!Is_Own_User(connection)) {
        Close_Socket(connection);
        return no_more;
    }
    return connection;
}

bool Waits_For(int socket, Socket_Way way, Deadline end) {
    const auto most = Left_Until(end);
    const short event = way == Socket_Way::Read ? POLLIN : POLLOUT;
    pollfd waiting{.fd = socket, .events = event, .revents = 0};
    return most.count() > 0 && ::poll(&waiting, 1, static_cast<int>(most.count())) == 1;
}

int Receive_From(int socket, std::span<char> room) {
    return Count_Of(::recv(socket, room.data(), room.size(), MSG_DONTWAIT));
}

int Send_To(int socket, std::string_view bytes) {
    return Count_Of(::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT));
}

void End_Of_Speech(int socket) {
    ::shutdown(socket, SHUT_WR);
}

void Close_Socket(int socket) {
    if (socket >= 0) {
        ::close(socket);
    }
}

} // namespace kestrum
