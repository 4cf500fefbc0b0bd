#include "platform/new_file.h"
#include "platform/open_file.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kestrum {

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
