#include "screens/screen_id.h"

namespace kestrum {

namespace {

std::string With_Number(std::string_view words, int number) {
    return std::string(words) + static_cast<char>('0' + number);
}

} // namespace

std::string Name_Of(Screen_Id id) {
    switch (id.kind) {
    case Screen_Kind::Engine:
        return "Main";
    case Screen_Kind::Sheet:
        return With_Number("Form", id.number);
    case Screen_Kind::Compare:
        return "Form50";
    case Screen_Kind::Graph:
        return "Form60";
    case Screen_Kind::Report:
        return "Form70";
    }
    return {};
}

std::optional<Screen_Id> Screen_Id_Of(std::string_view name) {
    for (const Screen_Id id : all_screens) {
        if (Name_Of(id) == name) {
            return id;
        }
    }
    return std::nullopt;
}

std::string Title_Of(Screen_Id id) {
    switch (id.kind) {
    case Screen_Kind::Engine:
        return "Main";
    case Screen_Kind::Sheet:
        return With_Number("Flow Test ", id.number);
    case Screen_Kind::Compare:
        return "Compare 2 Flow Tests";
    case Screen_Kind::Graph:
        return "Graph and Annotate";
    case Screen_Kind::Report:
        return "Text Report";
    }
    return {};
}

} // namespace kestrum
