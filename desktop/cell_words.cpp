#include "desktop/cell_words.h"

#include "desktop/cell_map.h"
#include "desktop/text_bridge.h"

#include <algorithm>

namespace kestrum::desktop {

std::string Words_Of_Field(Session& session, std::string_view address) {
    const std::string_view name = address.substr(0, address.find('.'));
    const auto id = Screen_Id_Of(name);
    if (!id || !session.Is_Loaded(*id)) {
        return std::string(address);
    }
    const Screen& screen = session.The(*id);
    const auto controls = screen.Controls();
    const auto field = std::ranges::find(controls, address, &Control::Address);
    if (field == controls.end() || !field->Is_Text_Box()) {
        return std::string(address);
    }
    const Cell_Map map(screen, field->Entry().parent);
    return Title_Of(*id) + ", " + From_Qt(map.Words_With_Lift(*field));
}

} // namespace kestrum::desktop
