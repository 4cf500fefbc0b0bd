#include "base/run_time_error.h"
#include "platform/file_store.h"
#include "platform/open_file.h"

#include <algorithm>

namespace kestrum {

std::string Read_Whole_File(const std::string& path) {
    const Open_File file = Open_To_Read(path);
    const auto told_size = static_cast<std::size_t>(file.Facts().st_size);
    if (told_size > most_text_bytes) {
        Fail(error::path_or_file_access);
    }
    // Most files come in one piece, which is not much larger than they are.
    const std::size_t piece = std::clamp<std::size_t>(told_size + 1, 4096, 65536);
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
