#include "base/run_time_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace kestrum {

namespace {

struct Known_Error {
    int number;
    std::string_view description;
};

constexpr std::array<Known_Error, 14> known_errors{{
    {error::invalid_call, "Invalid procedure call or argument"},
    {error::overflow, "Overflow"},
    {error::subscript_out_of_range, "Subscript out of range"},
    {error::division_by_zero, "Division by zero"},
    {error::type_mismatch, "Type mismatch"},
    {error::file_not_found, "File not found"},
    {error::disk_full, "Disk full"},
    {error::input_past_end, "Input past end of file"},
    {error::permission_denied, "Permission denied"},
    {error::path_or_file_access, "Path/File access error"},
    {error::path_not_found, "Path not found"},
    {error::invalid_property_value, "Invalid property value"},
    {error::invalid_picture, "Invalid picture"},
    {error::printer_error, "Printer error"},
}};

std::string Description_Of(int number) {
    const auto* const found = std::ranges::find(known_errors, number, &Known_Error::number);
    return found == known_errors.end() ? "Application-defined error"
                                       : std::string(found->description);
}

} // namespace

Run_Time_Error::Run_Time_Error(int number) : Run_Time_Error(number, Description_Of(number)) {}

Run_Time_Error::Run_Time_Error(int number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

void Fail(int number) {
    throw Run_Time_Error(number);
}

void Fail_No_Element(int index) {
    std::array<char, 12> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), index).ptr;
    throw Run_Time_Error(error::no_array_element, "Control array element '" +
                                                      std::string(digits.data(), end) +
                                                      "' doesn't exist");
}

} // namespace kestrum
