#include "platform/new_file.h"

#include "base/run_time_error.h"
#include "platform/open_file.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kestrum {

bool Write_New_File(const std::string& path, std::string_view content) {
    constexpr mode_t usual = 0666;
    const int handle = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, // NOLINT
                              usual);
    if (handle < 0 && errno == EEXIST) {
        return false;
    }
    if (handle < 0 && errno == ENOENT) {
        Fail(error::path_not_found); // the folder, for the file is to be made
    }
    Open_File file(handle);
    try {
        file.Write_All(content);
        file.Close();
    } catch (const Run_Time_Error&) {
        ::unlink(path.c_str()); // ours: it was not there before
        throw;
    }
    return true;
}

void Flush_Disk_Of(const std::string& folder) {
#ifdef __linux__
    const Open_File opened(::open(folder.empty() ? "." : folder.c_str(), // NOLINT(*-vararg)
                                  O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (::syncfs(opened.Handle()) != 0) {
        Fail_With_System_Error(errno);
    }
#else
    static_cast<void>(folder);
    ::sync();
#endif
}

} // namespace kestrum
