#include "platform/program_start.h"

#include "platform/windows/system_path.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Behind the header that it hangs on.
#include <shellapi.h>

namespace kestrum {

std::vector<std::string> Program_Arguments(int /*count*/, const char* const* /*values*/) {
    // Those of `main` have lost what the user's old code page does not hold.
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int word = 1; words != nullptr && word < count; ++word) {
        arguments.push_back(Narrow_Text(words[word]));
    }
    ::LocalFree(static_cast<HLOCAL>(words));
    return arguments;
}

void Prepare_Standard_Streams() {
    constexpr int streams = 3;
    for (int number = 0; number < streams; ++number) {
        if (::_get_osfhandle(number) < 0) {
            // Opened the wrong way round, so that its use fails. It gets the lowest free number.
            static_cast<void>(::_open("NUL", number == 0 ? _O_WRONLY : _O_RDONLY));
        }
        ::_setmode(number, _O_BINARY);
    }
    ::SetConsoleOutputCP(CP_UTF8);
}

void Borrow_Terminal() {
    // One of them may lead to a file or a pipe, and does so still.
    std::vector<std::FILE*> lost;
    for (std::FILE* const stream : {stdout, stderr}) {
        if (::_get_osfhandle(::_fileno(stream)) < 0) {
            lost.push_back(stream);
        }
    }
    if (!lost.empty() && ::AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        for (std::FILE* const stream : lost) {
            static_cast<void>(std::freopen("CONOUT$", "w", stream));
        }
        ::SetConsoleOutputCP(CP_UTF8);
    }
}

bool Prints_To_Terminal() {
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0;
}

} // namespace kestrum
