#pragma once

#include "core/session.h"
#include "desktop/gate.h"
#include "library/library.h"

#include <string>

namespace kestrum::desktop {

/// A file of the library that is to be read into a sheet.
struct Library_Test {
    std::string path;
    std::string name;
    Test_Format format = Test_Format::Dat;
    bool metric = false; // the numbers of the folder's `.dat` files
};

/// Whether a sheet shows, or holds a test though it does not.
[[nodiscard]] bool Is_Open_Sheet(Session& session, int number);

/// The first sheet that is not open, else the first that does not show, or 0 when all show.
[[nodiscard]] int Next_Free_Sheet(Session& session);

/// Reads a test into a sheet and shows it, as one step that undo takes back. Asks before it takes
/// the place of what an open sheet holds. Metric numbers are not put among US ones, nor the other
/// way: a box says so.
void Open_In_Sheet(Session& session, Gate& gate, const Library_Test& test, int number);

} // namespace kestrum::desktop
