#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Asks for a file with the look of the screens and takes it over: the fonts of the boxes, their
/// alignment and the colour of the letters on the graph. Tells how many lines were read.
void Read_GUI(Session& session);

/// Asks for a name and saves the look of the screens there.
void Write_GUI(Session& session);

/// Takes over the look in the file at `File_Path`. A line that is no part of a look asks the user
/// whether to go on; a failure and a stop there are told in a box, and what was taken until then
/// stays.
void Read_GUI_File(Session& session);

/// The same of bytes. False when a box has told of a failure or a stop.
[[nodiscard]] bool Take_GUI(Session& session, std::string_view bytes);

/// The lines of such a file. Sizes of fonts are those before the screens were stretched.
[[nodiscard]] std::string GUI_Text(Session& session);

} // namespace kestrum
