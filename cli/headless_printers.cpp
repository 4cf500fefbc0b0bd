#include "cli/headless_printers.h"

#include <utility>

namespace kestrum::cli {

void Headless_Printers::Print(const std::string& device, const Document& document) {
    documents_.push_back({.device = device, .pages = document.lay_out(Paper{})});
}

void Headless_Printers::Print_Screen(const std::string& device, const Screen_Picture& picture) {
    Printed_Document document{.device = device, .pages = Pages(1)};
    document.pages.front().Add(
        {.kind = Draw_Kind::Picture, .x2 = picture.width, .y2 = picture.height});
    documents_.push_back(std::move(document));
}

std::vector<Printed_Document> Headless_Printers::Take_Documents() {
    return std::exchange(documents_, {});
}

} // namespace kestrum::cli
