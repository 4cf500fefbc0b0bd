#pragma once

#include "exchange/test_formats.h"

#include <functional>
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
/// A walk that is asked whether it `goes_on` and does not has seen a part alone.
[[nodiscard]] Folder_Walk Tests_Below(const std::string& folder,
                                      const std::function<bool()>& goes_on = {});

} // namespace kestrum
