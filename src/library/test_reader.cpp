#include "library/test_reader.h"

#include "platform/file_store.h"

namespace kestrum {

Zeroed_Sheet& Test_Reader::Sheet_For(Test_Format format) {
    const bool metric = metric_ && format == Test_Format::Dat;
    std::unique_ptr<Zeroed_Sheet>& sheet = metric ? metric_sheet_ : us_sheet_;
    if (!sheet) {
        sheet = std::make_unique<Zeroed_Sheet>(metric);
    }
    return *sheet;
}

Test_Reading Test_Reader::Read(const std::string& path, Test_Format format) {
    std::string bytes;
    try {
        bytes = Read_Whole_File(path);
    } catch (const Run_Time_Error& failure) {
        return {.figures = {}, .problem = failure.Description()};
    }
    Zeroed_Sheet& sheet = Sheet_For(format);
    Test_Reading reading{.figures = sheet.Read(path, format, bytes), .problem = {}};
    if (!reading.figures) {
        reading.problem = sheet.Problem();
    }
    return reading;
}

Test_Reading Test_Reader::Read(const std::string& path) {
    const std::optional<Test_Format> format = Format_Of_Ending(path);
    if (!format) {
        return {.figures = {}, .problem = "Its ending is that of no flow test"};
    }
    return Read(path, *format);
}

} // namespace kestrum
