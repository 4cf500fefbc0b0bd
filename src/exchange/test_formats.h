#pragma once

#include "core/session.h"
#include "sheet/flow_calculation.h"

#include <optional>
#include <string_view>

namespace kestrum {

/// The files that hold a flow test.
enum class Test_Format { Ptpfa, Flw, Dfw, Dyn, Dym, Csv, Dat };

/// The format that goes with a file's ending in any case, nothing for an unknown one.
[[nodiscard]] std::optional<Test_Format> Format_Of_Ending(std::string_view path);

/// "ptpfa" and back.
[[nodiscard]] std::string_view Name_Of_Format(Test_Format format);
[[nodiscard]] std::optional<Test_Format> Format_Named(std::string_view name);

/// The ending of a format: "pti".
[[nodiscard]] std::string_view Ending_Of_Format(Test_Format format);

[[nodiscard]] bool Can_Be_Written(Test_Format format);

/// Reads a file's bytes into a sheet and calculates it, by the reader of its format; the session's
/// `file.path` names the file. Gives whether it was read to its end.
bool Read_Test(Session& session, Flow_Sheet& sheet, Test_Format format, std::string_view bytes,
               Flow_Calculation calculate = Calc_Flow_Test);

} // namespace kestrum
