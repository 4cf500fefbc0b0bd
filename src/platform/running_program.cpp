#include "platform/running_program.h"

#include "base/byte_digest.h"
#include "platform/file_moves.h"
#include "platform/file_path.h"
#include "platform/file_store.h"
#include "platform/folder_entries.h"
#include "platform/meeting_socket.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <thread>

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

    ~Socket() { Close_Socket(handle_); }

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

/// All that the other end says until it has finished; nothing when that cannot be had.
std::optional<std::string> Everything_From(int connection, Deadline end) {
    std::string all;
    std::array<char, 4096> piece{};
    while (all.size() <= most_bytes && Waits_For(connection, Socket_Way::Read, end)) {
        const int count = Receive_From(connection, piece);
        if (count == 0) {
            return all;
        }
        if (count == no_more) {
            break;
        }
        all.append(piece.data(), static_cast<std::size_t>(std::max(count, 0)));
    }
    return std::nullopt;
}

bool Say_All(int connection, std::string_view text, Deadline end) {
    while (!text.empty() && Waits_For(connection, Socket_Way::Write, end)) {
        const int count = Send_To(connection, text);
        if (count == no_more) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(std::max(count, 0)));
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

/// One attempt; nothing when nobody listens there yet, else whether it was heard.
std::optional<bool> Tell_Once(const std::string& place, std::string_view text, Deadline end) {
    const Socket connection(Call_Place(place, end));
    if (connection.Handle() == nothing_yet) {
        return std::nullopt;
    }
    if (connection.Handle() == no_more || !Say_All(connection.Handle(), text, end)) {
        return false;
    }
    End_Of_Speech(connection.Handle());
    const std::optional<std::string> answer = Everything_From(connection.Handle(), end);
    return answer && *answer == std::string(1, heard);
}

} // namespace

std::string Meeting_Place(std::string_view meeting_folder, std::string_view program_folder,
                          std::string_view display) {
    std::error_code fault;
    // However it was written.
    const fs::path folder = fs::canonical(File_Path(program_folder), fault);
    const std::string one = fault ? std::string(program_folder) : Text_Of(folder);
    return std::string(meeting_folder) + "/" +
           Hexadecimal(Digest_Of(one + '\0' + std::string(display)));
}

Running_Program::~Running_Program() {
    Leave();
}

bool Running_Program::Take(const std::string& place) {
    Leave();
    const std::string lock = place + ".lock";
    const std::string folder = Folder_Of(place);
    // Who leaves last takes the folder away, maybe after this one has made sure of it.
    if (!lock_.Take(lock) &&
        (Is_Folder(folder) || !Make_Private_Folder(folder) || !lock_.Take(lock))) {
        return false;
    }
    place_ = place;
    Forget_Place(place); // of a program that has crashed: nobody holds the lock but we
    listening_ = Listen_At(place);
    if (listening_ < 0) {
        Leave();
        return false;
    }
    return true;
}

std::optional<Words> Running_Program::Hear() {
    constexpr std::chrono::milliseconds patience{500}; // the windows stand still meanwhile
    const Deadline end = Clock_Of_Waiting::now() + patience;
    const Socket caller(Next_Caller(listening_, end));
    if (caller.Handle() < 0) {
        return std::nullopt;
    }
    const std::optional<std::string> said = Everything_From(caller.Handle(), end);
    std::optional<Words> words = said ? Words_In(*said) : std::nullopt;
    if (words) {
        static_cast<void>(Say_All(caller.Handle(), std::string(1, heard), end));
    }
    return words;
}

void Running_Program::Leave() {
    Close_Socket(listening_);
    listening_ = -1;
    const bool is_met = lock_.Is_Held() && !place_.empty();
    if (is_met) {
        Forget_Place(place_);
        Remove_File(place_ + ".lock"); // while it is held, or another would lose its own
    }
    lock_.Release();
    if (is_met) {
        Remove_Empty_Folder(Folder_Of(place_)); // others may meet there
    }
    place_.clear();
}

bool Tell_Running_Program(const std::string& place, std::span<const std::string> words,
                          std::chrono::milliseconds patience) {
    std::string text = std::string(greeting) + '\0';
    for (const std::string& word : words) {
        text += word + '\0';
    }
    if (text.size() > most_bytes) {
        return false;
    }
    const auto now = Clock_Of_Waiting::now();
    const auto end = now + patience;
    constexpr std::chrono::milliseconds to_begin{1000}; // it may hold the place and not listen yet
    while (Clock_Of_Waiting::now() < std::min(end, now + to_begin)) {
        if (const std::optional<bool> is_heard = Tell_Once(place, text, end)) {
            return *is_heard;
        }
        constexpr std::chrono::milliseconds pause{20};
        std::this_thread::sleep_for(pause);
    }
    return false;
}

} // namespace kestrum
