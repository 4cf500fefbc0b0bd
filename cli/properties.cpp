#include "cli/properties.h"

#include "screens/geometry.h"

#include <nlohmann/json.hpp>

namespace kestrum::cli {

namespace {

std::optional<Event> Place_Property(const Twips& place, std::string_view name) {
    if (name == "Left") {
        return place.left;
    }
    if (name == "Top") {
        return place.top;
    }
    if (name == "Width") {
        return place.width;
    }
    if (name == "Height") {
        return place.height;
    }
    return std::nullopt;
}

std::optional<Event> Font_Property(const Font& font, std::string_view name) {
    if (name == "FontName") {
        return font.name;
    }
    if (name == "FontSize") {
        return font.size;
    }
    if (name == "FontBold") {
        return font.bold;
    }
    if (name == "FontItalic") {
        return font.italic;
    }
    return std::nullopt;
}

std::optional<Event> Look_Property(const Look& look, std::string_view name) {
    if (name == "Visible") {
        return look.visible;
    }
    if (name == "Enabled") {
        return look.enabled;
    }
    if (name == "Locked") {
        return look.locked;
    }
    if (name == "TabStop") {
        return look.tab_stop;
    }
    if (name == "BackColor") {
        return look.back_colour;
    }
    if (name == "ForeColor") {
        return look.text_colour;
    }
    if (name == "Alignment") {
        return static_cast<int>(look.alignment);
    }
    return Font_Property(look.font, name);
}

/// Screens with a help line show the texts there; the others have them as tool tips.
std::string_view Tool_Tip(const Control& control) {
    const bool has_help_line = control.Owner().Find("Label7", std::nullopt) != nullptr;
    return has_help_line ? std::string_view() : control.Entry().tip;
}

} // namespace

std::optional<Event> Property_Of(const Control& control, std::string_view name) {
    if (name == "Text" || name == "Caption") {
        return control.Text();
    }
    if (name == "Value") {
        return control.Entry().kind == Control_Kind::Option_Button ? Event(control.Value() != 0)
                                                                   : Event(control.Value());
    }
    if (name == "ToolTip") {
        return Tool_Tip(control);
    }
    if (auto place = Place_Property(Place_In_Twips(control), name)) {
        return place;
    }
    return Look_Property(control.Present_Look(), name);
}

std::optional<Event> Property_Of(const Screen& screen, std::string_view name) {
    if (name == "Caption") {
        return screen.caption;
    }
    if (name == "Visible") {
        return screen.visible;
    }
    return Place_Property(Place_In_Twips(screen), name);
}

} // namespace kestrum::cli
