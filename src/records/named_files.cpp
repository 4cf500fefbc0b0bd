#include "records/named_files.h"

#include "base/text.h"
#include "platform/file_store.h"

#include <algorithm>

namespace kestrum {

namespace {

/// Where the last name of a path has its ending, or the end of the path.
std::size_t Start_Of_Ending(std::string_view path) {
    const std::size_t name = path.size() - Bare_Name(path).size();
    const std::size_t point = path.rfind('.');
    return point == std::string_view::npos || point <= name ? path.size() : point;
}

bool Is_Unfit_For_A_Name(char character) {
    constexpr std::string_view unfit = "/\\:*?\"<>|";
    return static_cast<unsigned char>(character) < ' ' ||
           unfit.find(character) != std::string_view::npos;
}

/// A part number as a part of a file's name.
std::string Fit_For_A_Name(std::string_view part_number) {
    std::string name(Without_Outer_Blanks(part_number));
    std::ranges::replace_if(name, Is_Unfit_For_A_Name, '-');
    return name;
}

} // namespace

Chosen_Path Choice_Of_File(Session& session, Chooser_Mode mode, std::string_view filter,
                           int filter_index, const Name_Help& help) {
    auto choice = session.dialogs.Choose_File({.mode = mode,
                                               .filter = std::string(filter),
                                               .filter_index = filter_index,
                                               .folder = session.surroundings.folder,
                                               .proposal = help.proposal,
                                               .completes = help.completes,
                                               .more_entries = help.more_entries});
    if (!choice) {
        Fail(error::path_or_file_access);
    }
    return std::move(*choice);
}

std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                        int filter_index, const Name_Help& help) {
    return Choice_Of_File(session, mode, filter, filter_index, help).path;
}

std::string Proposal_For(const Session& session, const Flow_Sheet& sheet, std::string_view ending) {
    const std::string& shown = sheet.Text39.Text();
    if (!shown.empty()) {
        const std::string path = Path_Of_Named_File(session, shown);
        return path.substr(0, Start_Of_Ending(path)) + std::string(ending);
    }
    return Proposal_For_Tests(sheet.Text102(0).Text(), {}, ending);
}

std::string Proposal_For_Tests(std::string_view one, std::string_view other,
                               std::string_view ending) {
    std::string name = Fit_For_A_Name(one);
    const std::string second = Fit_For_A_Name(other);
    if (!second.empty() && second != name) {
        name += (name.empty() ? "" : " and ") + second;
    }
    return name.empty() ? name : name + std::string(ending);
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

void Tell_Saved(Session& session, const std::string& path) {
    session.file.news = "Saved to " + path;
}

void Keep_File(Session& session, const std::string& path, std::string_view bytes) {
    Write_Whole_File(path, bytes);
    Tell_Saved(session, path);
}

std::string Bytes_Of_File(Session& session, std::string_view name, std::string_view filter) {
    constexpr int own_files = 3; // in the filters of both kinds
    session.file.path = name.empty() ? Chosen_File(session, Chooser_Mode::Open, filter, own_files)
                                     : Path_Of_Named_File(session, name);
    return Read_Whole_File(session.file.path);
}

} // namespace kestrum
