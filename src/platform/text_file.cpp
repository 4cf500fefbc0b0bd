#include "base/run_time_error.h"
#include "platform/file_store.h"
#include "platform/open_file.h"

#include <algorithm>

namespace kestrum {

std::string Read_Whole_File(const std::string& path) {
    const Open_File file = Open_To_Read(path);
    const std::uint64_t told_size = file.Size();
    if (told_size > most_text_bytes) {
        Fail(error::path_or_file_access);
    }
    // Most files come in one piece, which is not much larger than they are.
    const auto piece =
        static_cast<std::size_t>(std::clamp<std::uint64_t>(told_size + 1, 4096, 65536));
    std::string content;
    for (;;) {
        const std::string more = file.Piece(content.size(), piece);
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

void Write_Whole_File(const std::string& path, std::string_view content) {
    if (content.size() > most_text_bytes) {
        Fail(error::path_or_file_access);
    }
    Replace_File(path, content);
}

} // namespace kestrum
