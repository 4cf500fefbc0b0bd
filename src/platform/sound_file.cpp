#include "platform/sound_file.h"

#include "base/run_time_error.h"
#include "platform/open_file.h"

namespace kestrum {

bool Is_Sound_File(const std::string& path) {
    constexpr std::string_view family = "RIFF"; // then four bytes of length
    constexpr std::string_view kind = "WAVE";
    constexpr std::size_t head_size = 12;
    try {
        const std::string head = Open_To_Read(path).Piece(0, head_size);
        return head.size() == head_size && head.starts_with(family) && head.ends_with(kind);
    } catch (const Run_Time_Error&) {
        return false;
    }
}

} // namespace kestrum
