#pragma once

#include <stdexcept>

namespace kestrum::cli {

/// A call of the program that cannot be carried out; it ends with status 2.
class Usage_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A line of a script that cannot be run as it stands; the program ends with status 2.
class Script_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace kestrum::cli
