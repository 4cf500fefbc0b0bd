#include "tests/print_test_bench.h"

#include "core/logo_picture.h"

#include <algorithm>

namespace kestrum {

namespace {

std::string Plain(double number) {
    return Numeric_Text{}.Plain(number);
}

std::string Look_Of(const Draw_Operation& step) {
    return Plain(step.size) + (step.bold ? " bold " : " plain ") + step.text;
}

/// A header that tells a size, and the dots that it promises.
std::string Bitmap_Of_64_By_48() {
    constexpr std::size_t header = 54;
    std::string bytes(header + 64 * 3 * 48, '\0');
    bytes.replace(0, 2, "BM");
    bytes[10] = static_cast<char>(header);
    bytes[14] = 40;
    bytes[18] = 64;
    bytes[22] = 48;
    bytes[26] = 1;
    bytes[28] = 24;
    return bytes;
}

} // namespace

Print_Bench::Print_Bench(std::vector<std::string> devices)
    : Test_Bench({.now = "2026-11-16T09:05:03"}), printers(std::move(devices)) {
    session.printers = &printers;
}

void Print_Bench::Take_Logo() {
    session.settings.logo.file = folder.Write("logo.bmp", Bitmap_Of_64_By_48());
    session.settings.logo.on = true;
    kestrum::Take_Logo(session, session.settings.logo.file);
}

std::string In_Words(const Draw_Operation& step) {
    if (step.kind == Draw_Kind::Text) {
        return Plain(step.x1) + " " + Plain(step.y1) + " " + Look_Of(step);
    }
    const std::string corners =
        Plain(step.x1) + " " + Plain(step.y1) + " " + Plain(step.x2) + " " + Plain(step.y2);
    return step.kind == Draw_Kind::Line ? "line " + corners + " " + Plain(step.width)
                                        : "picture " + corners;
}

std::vector<std::string> In_Words(const Drawing& page) {
    std::vector<std::string> words;
    for (const Draw_Operation& step : page.Operations()) {
        words.push_back(In_Words(step));
    }
    return words;
}

std::vector<std::string> Row_At(const Drawing& page, double y) {
    std::vector<std::string> row;
    for (const Draw_Operation& step : page.Operations()) {
        if (step.kind == Draw_Kind::Text && step.y1 == y) {
            row.push_back(Plain(step.x1) + " " + Look_Of(step));
        }
    }
    return row;
}

std::string Place_Of_Text(const Drawing& page, std::string_view text) {
    const auto found = std::ranges::find(page.Operations(), text, &Draw_Operation::text);
    return found == page.Operations().end() ? "none" : In_Words(*found);
}

} // namespace kestrum
