#include "presentation/field_help.h"

#include "presentation/field_help_table.h"
#include "screens/compare_screen.h"
#include "screens/engine_screen.h"
#include "screens/flow_sheet.h"

#include <algorithm>

namespace kestrum {

namespace {

bool Is_Of(const Field_Help& help, const Control& cell) {
    const Control_Entry& entry = cell.Entry();
    if (help.screen != cell.Owner().Kind()) {
        return false;
    }
    if (help.role != Cell_Role::None) {
        return help.role == entry.role;
    }
    return help.array == entry.array && help.first <= cell.Index() && cell.Index() <= help.last;
}

/// Units are those of the first cell that a line is of.
Unit_Names Units_Of(const Field_Help& help, const Control* cell) {
    if (!help.unit.us.empty() || cell == nullptr) {
        return help.unit;
    }
    return Unit_Of(cell->Entry().quantity);
}

void Append_Row(std::string& text, const Field_Help& help, const Control* cell) {
    const Unit_Names units = Units_Of(help, cell);
    text.append("| ").append(help.name).append(" | ").append(help.words).append(" | ");
    text += units.us;
    if (units.us != units.metric) {
        text.append(" / ").append(units.metric);
    }
    text += " |\n";
}

void Append_Screen(std::string& text, Screen& screen, std::string_view heading) {
    text.append("\n## ").append(heading).append("\n\n| Cell | What it is | Unit, US / metric |\n");
    text += "|---|---|---|\n";
    for (const Field_Help& help : All_Field_Help()) {
        const auto cell = std::ranges::find_if(
            screen.Controls(), [&help](const Control& one) { return Is_Of(help, one); });
        if (help.screen == screen.Kind()) {
            Append_Row(text, help, cell == screen.Controls().end() ? nullptr : &*cell);
        }
    }
}

} // namespace

std::span<const Field_Help> All_Field_Help() {
    return field_help::table;
}

const Field_Help* Help_Of(const Control& cell) {
    const Cell_Use use = cell.Entry().use;
    const bool is_figure = use == Cell_Use::Input || use == Cell_Use::Result;
    const auto* const found = std::ranges::find_if(
        field_help::table, [&](const Field_Help& help) { return is_figure && Is_Of(help, cell); });
    return found == field_help::table.end() ? nullptr : found;
}

std::string Help_Words(const Control& cell, bool metric) {
    const Field_Help* const help = Help_Of(cell);
    if (help == nullptr) {
        return {};
    }
    const Unit_Names units = Units_Of(*help, &cell);
    const std::string_view unit = metric ? units.metric : units.us;
    std::string text = std::string(help->name) + ": " + std::string(help->words);
    if (!unit.empty()) {
        text.append(" [").append(unit).append("]");
    }
    return text;
}

std::string Help_Chapter() {
    std::string text =
        "# Every cell\n\nWhat each input and each result is, where it is measured or how it is "
        "worked out. The same sentence\nshows in the program when the mouse rests on the cell. "
        "Formulas are in US units; in metric mode the same\nfigures are brought there and back. "
        "The drawing shows where the dimensions of a flow test are taken.\n\n"
        "![Where each dimension is measured](pictures/dimensions.svg)\n";
    Engine_Screen main;
    Flow_Sheet sheet(1);
    Compare_Screen compare;
    Append_Screen(text, main, "Main");
    Append_Screen(text, sheet, "A flow test");
    Append_Screen(text, compare, "The comparison");
    return text;
}

} // namespace kestrum
