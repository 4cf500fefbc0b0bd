#pragma once

#include "exchange/test_formats.h"

#include <string>
#include <vector>

namespace kestrum {

struct Found_Test {
    std::string file; // below the folder, with "/"
    Test_Format format = Test_Format::Dat;
};

struct Folder_Walk {
    /// By the bytes of their names.
    std::vector<Found_Test> tests;
    /// Folders that could not be looked through, each with its reason.
    std::vector<std::string> problems;
    bool is_there = false;
};

/// The files below a folder whose endings are those of flow tests. Links to folders are not
/// followed, so no circle of them has an end to look for; links to files are, also to none.
[[nodiscard]] Folder_Walk Tests_Below(const std::string& folder);

} // namespace kestrum
