#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace kestrum {

/// A failure of the running system, with the number and the description that its messages show.
/// A routine that has a handler catches it; one that has none lets it pass to its caller.
class Run_Time_Error : public std::runtime_error {
public:
    /// Takes one of the numbers below; the description belongs to the number.
    explicit Run_Time_Error(int number);
    Run_Time_Error(int number, const std::string& description);

    [[nodiscard]] int Number() const noexcept { return number_; }

    [[nodiscard]] std::string Description() const { return what(); }

    /// Address of the field whose text was being read; empty when no reading failed.
    [[nodiscard]] const std::string& Field() const noexcept { return field_; }

    void Note_Field(std::string address) { field_ = std::move(address); }

private:
    int number_;
    std::string field_;
};

namespace error {
inline constexpr int invalid_call = 5;
inline constexpr int overflow = 6;
inline constexpr int subscript_out_of_range = 9;
inline constexpr int division_by_zero = 11;
inline constexpr int type_mismatch = 13;
inline constexpr int file_not_found = 53;
inline constexpr int disk_full = 61;
inline constexpr int input_past_end = 62;
inline constexpr int permission_denied = 70;
inline constexpr int path_or_file_access = 75;
inline constexpr int path_not_found = 76;
inline constexpr int no_array_element = 340;
inline constexpr int invalid_property_value = 380;
inline constexpr int invalid_picture = 481;
inline constexpr int printer_error = 482;
} // namespace error

/// Raises a run-time error by its number.
[[noreturn]] void Fail(int number);

/// Raises error 340 for an index that a control array does not hold.
[[noreturn]] void Fail_No_Element(int index);

} // namespace kestrum
