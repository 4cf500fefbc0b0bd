#include "core/chosen_file.h"

namespace kestrum {

std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                        int filter_index) {
    const auto path = session.dialogs.Choose_File({.mode = mode,
                                                   .filter = std::string(filter),
                                                   .filter_index = filter_index,
                                                   .folder = session.surroundings.folder});
    if (!path) {
        Fail(error::path_or_file_access);
    }
    return *path;
}

} // namespace kestrum
