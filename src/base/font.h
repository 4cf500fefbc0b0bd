#pragma once

#include <string>

namespace kestrum {

struct Font {
    std::string name = "Arial";
    double size = 8.25; // points
    bool bold = false;
    bool italic = false;

    bool operator==(const Font&) const = default;
};

} // namespace kestrum
