#include "library/library_columns.h"

#include "base/numeric_text.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace kestrum {

namespace {

using Entry = Library_Entry;

Library_Value Number(std::optional<double> number) {
    return number ? Library_Value(*number) : Library_Value();
}

/// "2 in, 1 ex", as far as it is named.
Library_Value Valves(const Library_Figures& figures) {
    std::string words;
    const auto add = [&words](std::optional<double> count, std::string_view side) {
        if (count) {
            words += (words.empty() ? "" : ", ") + Numeric_Text{}.Plain(*count);
            words += side;
        }
    };
    add(figures.intake_valves, " in");
    add(figures.exhaust_valves, " ex");
    return words.empty() ? Library_Value() : Library_Value(words);
}

constexpr auto columns = std::to_array<Library_Column>({
    {"file", "File", [](const Entry& e) { return Library_Value(e.file); }, true},
    {"format", "Format",
     [](const Entry& e) { return Library_Value(std::string(Name_Of_Format(e.format))); }, true},
    {"name", "Name", [](const Entry& e) { return Library_Value(e.figures.name); }},
    {"intake_valve", "In. valve", [](const Entry& e) { return Number(e.figures.intake_valve); }},
    {"exhaust_valve", "Ex. valve", [](const Entry& e) { return Number(e.figures.exhaust_valve); }},
    {"port_volume", "Port cc", [](const Entry& e) { return Number(e.figures.port_volume); }},
    {"pressure", "Pressure", [](const Entry& e) { return Number(e.figures.pressure); }},
    {"points", "Points",
     [](const Entry& e) { return Library_Value(static_cast<double>(e.figures.points)); }},
    {"intake_peak", "In. peak", [](const Entry& e) { return Number(e.figures.intake_peak.flow); }},
    {"intake_peak_lift", "at lift",
     [](const Entry& e) { return Number(e.figures.intake_peak.lift); }},
    {"exhaust_peak", "Ex. peak",
     [](const Entry& e) { return Number(e.figures.exhaust_peak.flow); }},
    {"exhaust_peak_lift", "at lift",
     [](const Entry& e) { return Number(e.figures.exhaust_peak.lift); }},
    {"intake_mean", "In. mean", [](const Entry& e) { return Number(e.figures.intake_mean); }},
    {"exhaust_mean", "Ex. mean", [](const Entry& e) { return Number(e.figures.exhaust_mean); }},
    {"ratio", "Ratio", [](const Entry& e) { return Number(e.figures.ratio); }},
    {"date", "Date",
     [](const Entry& e) {
         return e.figures.date.empty() ? Library_Value() : Library_Value(e.figures.date);
     }},
    {"part_number", "Part number",
     [](const Entry& e) { return Library_Value(e.figures.part_number); }},
    {"valves", "Valves", [](const Entry& e) { return Valves(e.figures); }},
    {"curve", "Curve", [](const Entry&) { return Library_Value(); }},
});
constexpr std::size_t window_alone = 3;

constexpr auto window_names = std::to_array<std::string_view>(
    {"name", "part_number", "curve", "intake_valve", "exhaust_valve", "valves", "port_volume",
     "pressure", "points", "intake_peak", "intake_peak_lift", "exhaust_peak", "exhaust_peak_lift",
     "intake_mean", "exhaust_mean", "ratio", "date", "format", "file"});

constexpr auto window_columns = [] {
    std::array<const Library_Column*, window_names.size()> found{};
    for (std::size_t at = 0; at < found.size(); ++at) {
        found.at(at) = std::ranges::find(columns, window_names.at(at), &Library_Column::name);
    }
    return found;
}();

/// What entries are ordered by: unreadable last, no value before them, then the value.
int Rank_Of(const Entry& entry, const Library_Value& value) {
    constexpr int unreadable = 2;
    return entry.problem ? unreadable : std::holds_alternative<std::monostate>(value) ? 1 : 0;
}

/// The letters above ASCII whose small forms lie at a fixed distance.
char32_t Lowered(char32_t letter) {
    struct Block {
        char32_t first;
        char32_t last;
        char32_t to_lower;
    };

    constexpr std::array blocks{Block{U'A', U'Z', 32},   Block{0xC0, 0xD6, 32},
                                Block{0xD8, 0xDE, 32},   Block{0x391, 0x3A9, 32},
                                Block{0x410, 0x42F, 32}, Block{0x400, 0x40F, 80}};
    for (const Block& block : blocks) {
        if (letter >= block.first && letter <= block.last) {
            return letter + block.to_lower;
        }
    }
    const bool is_pair = letter >= 0x100 && letter <= 0x17F;
    // Latin letters with marks stand in pairs, the capital at the even place but for two stretches.
    const bool odd_first =
        (letter >= 0x139 && letter <= 0x148) || (letter >= 0x179 && letter <= 0x17E);
    return is_pair && letter != 0x130 && letter != 0x138 && letter != 0x178 && letter != 0x17F &&
                   letter != 0x149 && (letter % 2 == 1) == odd_first
               ? letter + 1
               : letter;
}

} // namespace

std::span<const Library_Column> Library_Columns() {
    return std::span(columns).first(columns.size() - window_alone);
}

std::span<const Library_Column* const> Window_Columns() {
    return window_columns;
}

const Library_Column* Library_Column_Named(std::string_view name) {
    const auto shown = Library_Columns();
    const auto found = std::ranges::find(shown, name, &Library_Column::name);
    return found == shown.end() ? nullptr : &*found;
}

Library_Value Value_In(const Library_Column& column, const Library_Entry& entry) {
    return entry.problem && !column.of_every_file ? Library_Value() : column.value(entry);
}

void Sort_Library(std::vector<Library_Entry>& entries, const Library_Column& column) {
    struct Key {
        int rank;
        Library_Value value;
        std::size_t place;
    };

    std::vector<Key> keys;
    keys.reserve(entries.size());
    for (const Library_Entry& entry : entries) {
        Library_Value value = Value_In(column, entry);
        const int rank = Rank_Of(entry, value);
        keys.push_back({.rank = rank, .value = std::move(value), .place = keys.size()});
    }
    std::ranges::sort(keys, [&](const Key& a, const Key& b) {
        return std::tie(a.rank, a.value, entries[a.place].file) <
               std::tie(b.rank, b.value, entries[b.place].file);
    });
    std::vector<Library_Entry> sorted;
    sorted.reserve(entries.size());
    for (const Key& key : keys) {
        sorted.push_back(std::move(entries[key.place]));
    }
    entries = std::move(sorted);
}

std::string Lower_Words(std::string_view text) {
    const bool is_plain = std::ranges::all_of(
        text, [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
    if (is_plain) {
        return Lower_Copy(text);
    }
    // A name that is no UTF-8 is looked at as what it may have been meant to be.
    std::u32string letters = Characters_Of(Decoded(text));
    std::ranges::transform(letters, letters.begin(), Lowered);
    return Text_Of(letters);
}

bool Holds_Words(const Library_Entry& entry, std::string_view lower_text) {
    const auto holds = [&](std::string_view text) {
        return Lower_Words(text).find(lower_text) != std::string::npos;
    };
    return holds(entry.file) || holds(Name_Of_Format(entry.format)) || holds(entry.figures.name);
}

bool Shows_Words(const Library_Entry& entry, std::string_view lower_words) {
    const Library_Figures& figures = entry.figures;
    std::string texts = entry.problem.value_or("");
    for (const std::string_view text :
         {std::string_view(entry.file), Name_Of_Format(entry.format),
          std::string_view(figures.name), std::string_view(figures.part_number),
          std::string_view(figures.date)}) {
        texts.append("\n").append(text);
    }
    texts = Lower_Words(texts);
    while (!lower_words.empty()) {
        const std::size_t end = std::min(lower_words.find(' '), lower_words.size());
        if (texts.find(lower_words.substr(0, end)) == std::string::npos) {
            return false;
        }
        lower_words.remove_prefix(std::min(end + 1, lower_words.size()));
    }
    return true;
}

} // namespace kestrum
