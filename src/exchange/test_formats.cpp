#include "exchange/test_formats.h"

#include "base/text.h"
#include "exchange/csv_import.h"
#include "exchange/flow_import.h"
#include "exchange/ptpfa_import.h"
#include "files/flow_data_file.h"
#include "platform/file_store.h"

#include <algorithm>
#include <array>

namespace kestrum {

namespace {

struct Format_Entry {
    Test_Format format;
    std::string_view name;
    std::string_view ending;
    bool can_be_written = false;
};

constexpr auto formats = std::to_array<Format_Entry>({
    {Test_Format::Ptpfa, "ptpfa", "pti"},
    {Test_Format::Flw, "flw", "flw"},
    {Test_Format::Dfw, "dfw", "dfw", true},
    {Test_Format::Dyn, "dyn", "dyn"},
    {Test_Format::Dym, "dym", "dym"},
    {Test_Format::Csv, "csv", "csv", true},
    {Test_Format::Dat, "dat", "dat", true},
});

const Format_Entry& Entry_Of(Test_Format format) {
    return *std::ranges::find(formats, format, &Format_Entry::format);
}

std::optional<Test_Format> Format_With(std::string_view Format_Entry::*word,
                                       std::string_view text) {
    const auto* const found = std::ranges::find(formats, text, word);
    return found == formats.end() ? std::nullopt : std::optional(found->format);
}

Flow_Layout Layout_Of(Test_Format format) {
    switch (format) {
    case Test_Format::Dfw:
        return Flow_Layout::Dfw;
    case Test_Format::Dyn:
        return Flow_Layout::Dyn;
    case Test_Format::Dym:
        return Flow_Layout::Dym;
    default:
        return Flow_Layout::Flw;
    }
}

} // namespace

std::optional<Test_Format> Format_Of_Ending(std::string_view path) {
    const std::string name = Bare_Name(path);
    const std::size_t point = name.rfind('.');
    if (point == std::string_view::npos) {
        return std::nullopt;
    }
    return Format_With(&Format_Entry::ending, Lower_Copy(name.substr(point + 1)));
}

std::string_view Name_Of_Format(Test_Format format) {
    return Entry_Of(format).name;
}

std::optional<Test_Format> Format_Named(std::string_view name) {
    return Format_With(&Format_Entry::name, name);
}

std::string_view Ending_Of_Format(Test_Format format) {
    return Entry_Of(format).ending;
}

bool Can_Be_Written(Test_Format format) {
    return Entry_Of(format).can_be_written;
}

bool Read_Test(Session& session, Flow_Sheet& sheet, Test_Format format, std::string_view bytes,
               Flow_Calculation calculate) {
    switch (format) {
    case Test_Format::Ptpfa:
        return Read_PTPFA_Lines(session, sheet, bytes, calculate);
    case Test_Format::Csv:
        return Read_CSV_Rows(session, sheet, bytes, calculate);
    case Test_Format::Dat:
        return Read_Flow_Records(session, sheet, bytes, calculate);
    default:
        return Read_Flow_Lines(session, sheet, Layout_Of(format), bytes, calculate);
    }
}

} // namespace kestrum
