#pragma once

#include "cli/usage_error.h"

#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace kestrum::cli {

/// Takes the arguments behind a verb one after the other: options with and without a value, files,
/// and "--", behind which all are files.
class Argument_Reader {
public:
    /// `verb` stands before the messages of wrong calls and `usage` behind them.
    Argument_Reader(std::string_view verb, std::string_view usage,
                    std::span<const char* const> arguments)
        : verb_(verb), usage_(usage), rest_(arguments) {}

    /// Goes on to the next argument; false behind the last one.
    [[nodiscard]] bool Next();

    /// A lone dash counts as a file.
    [[nodiscard]] bool Is_Option() const { return is_option_; }

    [[nodiscard]] bool Is(std::string_view option) const {
        return is_option_ && argument_ == option;
    }

    [[nodiscard]] std::string_view Text() const { return argument_; }

    /// The argument as the name of a file, which is neither empty nor, before "--", a dash. Raises
    /// `Usage_Error`.
    [[nodiscard]] std::string File() const;

    /// The value of the option that was read; the next one of an option with several. Raises
    /// `Usage_Error` when there is none.
    [[nodiscard]] std::string_view Value();

    static constexpr int no_limit = std::numeric_limits<int>::max();

    /// The value as a whole number within two limits; with `no_limit` a larger one counts as that.
    /// Raises `Usage_Error` for any other.
    [[nodiscard]] int Whole_Value(int least, int most);

    /// The value as a finite number above 0. Raises `Usage_Error` for any other.
    [[nodiscard]] double Positive_Value();

    /// The place of the value in a list of names. Raises `Usage_Error` for any other.
    [[nodiscard]] int Choice(std::initializer_list<std::string_view> names);

    [[nodiscard]] Usage_Error Wrong_Call(const std::string& what) const;
    [[nodiscard]] Usage_Error Unknown_Option() const;

private:
    [[nodiscard]] std::string_view Take();

    std::string_view verb_;
    std::string_view usage_;
    std::span<const char* const> rest_;
    std::string_view argument_;
    bool is_option_ = false;
    bool only_files_ = false;
};

} // namespace kestrum::cli
