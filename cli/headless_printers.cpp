#include "cli/headless_printers.h"

#include <utility>

namespace kestrum::cli {

void Headless_Printers::Print_Screen(const std::string& device, const Screen_Picture& picture) {
    documents_.push_back(
        {.device = device,
         .pages = {{{.kind = Draw_Kind::Picture, .x2 = picture.width, .y2 = picture.height}}}});
}

std::vector<Printed_Document> Headless_Printers::Take_Documents() {
    return std::exchange(documents_, {});
}

} // namespace kestrum::cli
