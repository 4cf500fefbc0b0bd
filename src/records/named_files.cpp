#include "records/named_files.h"

#include "base/text.h"
#include "platform/file_store.h"

namespace kestrum {

Chosen_Path Choice_Of_File(Session& session, Chooser_Mode mode, std::string_view filter,
                           int filter_index) {
    auto choice = session.dialogs.Choose_File({.mode = mode,
                                               .filter = std::string(filter),
                                               .filter_index = filter_index,
                                               .folder = session.surroundings.folder});
    if (!choice) {
        Fail(error::path_or_file_access);
    }
    return std::move(*choice);
}

std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                        int filter_index) {
    return Choice_Of_File(session, mode, filter, filter_index).path;
}

std::string Path_Of_Named_File(const Session& session, std::string_view name) {
    const std::string_view bare = Without_Outer_Blanks(name);
    const auto found = [&session](std::string_view wanted) {
        // Never in the working directory, where a foreign file of that name may lie.
        return Find_Case_Blind(Join_Path(session.surroundings.folder, wanted));
    };
    std::string path = found(bare);
    const std::size_t comma = bare.rfind(',');
    if (session.numbers.comma_mode == 0 || File_Exists(path) || comma == std::string_view::npos) {
        return path;
    }
    // The decimal switch may have made "a.dat" "a,dat" in the field that the name comes from.
    std::string dotted(bare);
    dotted[comma] = '.';
    dotted = found(dotted);
    return File_Exists(dotted) ? dotted : path;
}

void Keep_File(Session& session, const std::string& path, std::string_view bytes) {
    Write_Whole_File(path, bytes);
    session.file.kept = path;
}

std::string Bytes_Of_File(Session& session, std::string_view name, std::string_view filter) {
    constexpr int own_files = 3; // in the filters of both kinds
    session.file.path = name.empty() ? Chosen_File(session, Chooser_Mode::Open, filter, own_files)
                                     : Path_Of_Named_File(session, name);
    return Read_Whole_File(session.file.path);
}

} // namespace kestrum
