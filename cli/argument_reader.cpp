#include "cli/argument_reader.h"

#include "base/numeric_text.h"
#include "cli/line_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kestrum::cli {

std::string_view Argument_Reader::Take() {
    const std::string_view next = rest_.front();
    rest_ = rest_.subspan(1);
    return next;
}

bool Argument_Reader::Next() {
    if (!only_files_ && !rest_.empty() && std::string_view(rest_.front()) == "--") {
        only_files_ = true;
        rest_ = rest_.subspan(1);
    }
    if (rest_.empty()) {
        return false;
    }
    argument_ = Take();
    is_option_ = !only_files_ && argument_.size() > 1 && argument_.starts_with('-');
    return true;
}

std::string Argument_Reader::File() const {
    if (argument_.empty()) {
        throw Wrong_Call("a file name is empty");
    }
    if (argument_ == "-" && !only_files_) {
        throw Unknown_Option();
    }
    return std::string(argument_);
}

std::string_view Argument_Reader::Value() {
    if (rest_.empty()) {
        throw Wrong_Call(Quoted(argument_) + " wants a value");
    }
    return Take();
}

int Argument_Reader::Whole_Value(int least, int most) {
    const std::string option(argument_);
    const std::string_view text = Value();
    const char* const last = text.data() + text.size();
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), last, number);
    if (failure == std::errc::result_out_of_range && end == last && most == no_limit &&
        !text.starts_with('-')) {
        return no_limit;
    }
    if (failure != std::errc() || end != last || number < least || number > most) {
        throw Wrong_Call(option + " wants a number from " + Numeric_Text{}.Plain(least) + " to " +
                         Numeric_Text{}.Plain(most));
    }
    return number;
}

double Argument_Reader::Positive_Value() {
    const std::string option(argument_);
    const std::string_view text = Value();
    const char* const last = text.data() + text.size();
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), last, number);
    if (failure != std::errc() || end != last || !std::isfinite(number) || !(number > 0)) {
        throw Wrong_Call(option + " wants a number above 0");
    }
    return number;
}

int Argument_Reader::Choice(std::initializer_list<std::string_view> names) {
    const std::string option(argument_);
    const auto* const found = std::ranges::find(names, Value());
    if (found != names.end()) {
        return static_cast<int>(found - names.begin());
    }
    std::string words;
    for (const std::string_view& name : names) {
        const bool is_last = &name == names.end() - 1;
        words += words.empty() ? "" : is_last ? " or " : ", ";
        words += name;
    }
    throw Wrong_Call(option + " wants " + words);
}

Usage_Error Argument_Reader::Wrong_Call(const std::string& what) const {
    return Usage_Error((verb_.empty() ? "" : std::string(verb_) + ": ") + what +
                       (usage_.empty() ? "" : "\nusage: " + std::string(usage_)));
}

Usage_Error Argument_Reader::Unknown_Option() const {
    return Wrong_Call("unknown option " + Quoted(argument_));
}

} // namespace kestrum::cli
