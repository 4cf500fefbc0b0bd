#pragma once

#include "cli/headless_printers.h"
#include "tests/test_bench.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// A session with two printers, at 9:05:03 on a Monday.
class Print_Bench : public Test_Bench {
public:
    explicit Print_Bench(std::vector<std::string> devices = {"Laser", "Ink"});

    cli::Headless_Printers printers;

    /// Puts a picture of 64 by 48 dots into the folder and shows it as the logo.
    void Take_Logo();
};

/// A step of a page as "x y size bold text", a line as "line x1 y1 x2 y2 width", a picture as
/// "picture x y w h".
[[nodiscard]] std::string In_Words(const Draw_Operation& step);
[[nodiscard]] std::vector<std::string> In_Words(const Drawing& page);

/// The texts of a page that stand at a height, as "x size bold text".
[[nodiscard]] std::vector<std::string> Row_At(const Drawing& page, double y);
/// Where a text stands, as `In_Words` tells it; "none" where there is no such text.
[[nodiscard]] std::string Place_Of_Text(const Drawing& page, std::string_view text);

} // namespace kestrum
