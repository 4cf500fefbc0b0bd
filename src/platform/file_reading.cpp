#include "base/run_time_error.h"
#include "platform/file_store.h"
#include "platform/open_file.h"

namespace kestrum {

std::string Read_Whole_File(const std::string& path) {
    const Open_File file = Open_To_Read(path);
    if (file.Facts().st_size > static_cast<off_t>(most_text_bytes)) {
        Fail(error::path_or_file_access);
    }
    constexpr std::size_t piece = 65536;
    std::string content;
    for (;;) {
        const std::string more = file.Piece(static_cast<off_t>(content.size()), piece);
        content += more;
        // Some systems tell no size, and a file may grow while it is read.
        if (content.size() > most_text_bytes) {
            Fail(error::path_or_file_access);
        }
        if (more.size() < piece) {
            return content;
        }
    }
}

} // namespace kestrum
