#include "platform/running_program.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;
using Clock_Of_Waiting = std::chrono::steady_clock;

constexpr std::string_view greeting = "kestrum 1";
constexpr char heard = 'y';
constexpr std::size_t most_bytes = std::size_t{1} << 20U;

/// A socket that is closed when it goes.
class Socket {
public:
    explicit Socket(int handle) : handle_(handle) {}

    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    ~Socket() {
        if (handle_ >= 0) {
            ::close(handle_);
        }
    }

    [[nodiscard]] int Handle() const { return handle_; }

private:
    int handle_;
};

std::string Hexadecimal(std::uint64_t number) {
    constexpr int base = 16;
    std::array<char, base> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base);
    return {digits.data(), end.ptr};
}

/// A short name for a long one, the same in every run.
std::uint64_t Digest(std::string_view text) {
    constexpr std::uint64_t prime = 1099511628211U;
    std::uint64_t digest = 14695981039346656037U;
    for (const char letter : text) {
        digest = (digest ^ static_cast<unsigned char>(letter)) * prime;
    }
    return digest;
}

/// A folder of this user's, and no link, that nobody else may enter.
bool Is_Private(const std::string& folder) {
    struct stat found {};

    constexpr mode_t others = 077;
    return ::lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid() && (found.st_mode & others) == 0;
}

bool Make_Private(const std::string& folder) {
    constexpr mode_t own = 0700;
    return (::mkdir(folder.c_str(), own) == 0 || errno == EEXIST) && Is_Private(folder);
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

/// Waits until something can be read, or written.
bool Is_Ready(int connection, short event, Clock_Of_Waiting::time_point end) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock_Of_Waiting::now());
    pollfd waiting{.fd = connection, .events = event, .revents = 0};
    return left.count() > 0 && ::poll(&waiting, 1, static_cast<int>(left.count())) == 1;
}

/// All that the other end says until it has finished; nothing when that cannot be had.
std::optional<std::string> Everything_From(int connection, Clock_Of_Waiting::time_point end) {
    std::string all;
    std::array<char, 4096> piece{};
    while (all.size() <= most_bytes && Is_Ready(connection, POLLIN, end)) {
        const ssize_t count = ::recv(connection, piece.data(), piece.size(), MSG_DONTWAIT);
        if (count == 0) {
            return all;
        }
        if (count < 0 && errno != EAGAIN && errno != EINTR) {
            break;
        }
        all.append(piece.data(), count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

bool Say_All(int connection, std::string_view text, Clock_Of_Waiting::time_point end) {
    while (!text.empty() && Is_Ready(connection, POLLOUT, end)) {
        const ssize_t count =
            ::send(connection, text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count < 0 && errno != EAGAIN && errno != EINTR) {
            return false;
        }
        text.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    return text.empty();
}

/// Words each with a NUL behind it, the first of which is the greeting.
std::optional<Words> Words_In(std::string_view text) {
    Words words;
    while (!text.empty()) {
        const std::size_t end = text.find('\0');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    if (words.empty() || words.front() != greeting) {
        return std::nullopt;
    }
    words.erase(words.begin());
    return words;
}

/// One attempt; nothing when nobody listens there, else whether it was heard.
std::optional<bool> Tell_Once(const sockaddr_un& address, std::string_view text,
                              Clock_Of_Waiting::time_point end) {
    const Socket connection(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (::connect(connection.Handle(), General(address), sizeof address) != 0) {
        return std::nullopt;
    }
    if (!Is_Own_User(connection.Handle()) || !Say_All(connection.Handle(), text, end)) {
        return false;
    }
    ::shutdown(connection.Handle(), SHUT_WR);
    const std::optional<std::string> answer = Everything_From(connection.Handle(), end);
    return answer && *answer == std::string(1, heard);
}

} // namespace

std::string Meeting_Folder(std::string_view runtime_folder, std::string_view temporary_folder) {
    const std::string runtime(runtime_folder);
    if (runtime.starts_with('/') && Is_Private(runtime) && Make_Private(runtime + "/kestrum")) {
        return runtime + "/kestrum";
    }
    const std::string own = std::string(temporary_folder) + "/kestrum-" + Hexadecimal(::geteuid());
    return own.starts_with('/') && Make_Private(own) ? own : std::string();
}

std::string Meeting_Place(std::string_view meeting_folder, std::string_view program_folder,
                          std::string_view display) {
    std::error_code fault;
    const fs::path folder = fs::canonical(program_folder, fault); // however it was written
    const std::string one = fault ? std::string(program_folder) : folder.string();
    return std::string(meeting_folder) + "/" +
           Hexadecimal(Digest(one + '\0' + std::string(display)));
}

Running_Program::~Running_Program() {
    Leave();
}

bool Running_Program::Take(const std::string& place) {
    Leave();
    const std::optional<sockaddr_un> address = Address_Of(place);
    if (!address || !lock_.Take(place + ".lock")) {
        return false;
    }
    ::unlink(place.c_str()); // of a program that has crashed: nobody holds the lock but we
    listening_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    constexpr int callers = 16;
    if (::bind(listening_, General(*address), sizeof *address) != 0 ||
        ::listen(listening_, callers) != 0) {
        Leave();
        return false;
    }
    place_ = place;
    return true;
}

std::optional<Words> Running_Program::Hear() {
    constexpr std::chrono::milliseconds patience{500}; // the windows stand still meanwhile
    const Socket caller(::accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC));
    if (caller.Handle() < 0 || !Is_Own_User(caller.Handle())) {
        return std::nullopt;
    }
    const auto end = Clock_Of_Waiting::now() + patience;
    const std::optional<std::string> said = Everything_From(caller.Handle(), end);
    std::optional<Words> words = said ? Words_In(*said) : std::nullopt;
    if (words) {
        static_cast<void>(Say_All(caller.Handle(), std::string(1, heard), end));
    }
    return words;
}

void Running_Program::Leave() {
    if (listening_ >= 0) {
        ::close(listening_);
        listening_ = -1;
    }
    if (lock_.Is_Held() && !place_.empty()) {
        ::unlink(place_.c_str());
        ::unlink((place_ + ".lock").c_str()); // while it is held, or another would lose its own
    }
    place_.clear();
    lock_.Release();
}

bool Tell_Running_Program(const std::string& place, std::span<const std::string> words,
                          std::chrono::milliseconds patience) {
    const std::optional<sockaddr_un> address = Address_Of(place);
    std::string text = std::string(greeting) + '\0';
    for (const std::string& word : words) {
        text += word + '\0';
    }
    if (!address || text.size() > most_bytes) {
        return false;
    }
    const auto now = Clock_Of_Waiting::now();
    const auto end = now + patience;
    constexpr std::chrono::milliseconds to_begin{1000}; // it may hold the place and not listen yet
    while (Clock_Of_Waiting::now() < std::min(end, now + to_begin)) {
        if (const std::optional<bool> is_heard = Tell_Once(*address, text, end)) {
            return *is_heard;
        }
        constexpr std::chrono::milliseconds pause{20};
        std::this_thread::sleep_for(pause);
    }
    return false;
}

} // namespace kestrum
