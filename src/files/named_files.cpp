#include "files/named_files.h"

#include "core/chosen_file.h"
#include "core/text.h"
#include "platform/file_store.h"

namespace kestrum {

std::string Path_Of_Named_File(const Session& session, std::string_view name) {
    const std::string_view bare = Without_Outer_Blanks(name);
    std::string path = Find_Case_Blind(
        Holds_Separator(bare) ? std::string(bare) : Join_Path(session.surroundings.folder, bare));
    const std::size_t comma = path.rfind(',');
    if (session.number.comma_mode == 0 || File_Exists(path) || comma == std::string::npos) {
        return path;
    }
    // The decimal switch may have made "a.dat" "a,dat" in the field that the name comes from.
    std::string dotted = path;
    dotted[comma] = '.';
    dotted = Find_Case_Blind(dotted);
    return File_Exists(dotted) ? dotted : path;
}

std::string Bytes_Of_File(Session& session, std::string_view name, std::string_view filter) {
    constexpr int own_files = 3; // in the filters of both kinds
    const std::string path = name.empty()
                                 ? Chosen_File(session, Chooser_Mode::Open, filter, own_files)
                                 : Path_Of_Named_File(session, name);
    std::string bytes = Read_Whole_File(path);
    session.file_path = path;
    return bytes;
}

} // namespace kestrum
