#include "graph/table_age.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace kestrum {

namespace {

/// What the table showed and what its tests held when it was filled, as digests, the latest behind.
/// Undo brings an earlier table back, and then its own tests count.
struct Filled_Tables {
    struct Filled {
        std::size_t table = 0;
        std::size_t tests = 0;

        bool operator==(const Filled&) const = default;
    };

    std::deque<Filled> latest;
    /// It has been filled since the last look.
    bool is_new = false;
};

constexpr std::size_t most_tables = 200; // as many steps can be taken back

/// Results, lifts and swirl: all of a test that a row of the table can show.
bool Is_Compared(const Control& control) {
    const std::string_view array = control.Entry().array;
    return control.Entry().use == Cell_Use::Result || array == "Text101" || array == "Text207";
}

void Add_Compared(std::string& texts, const Flow_Sheet& sheet) {
    for (const Control& control : sheet.Controls()) {
        if (control.Is_Text_Box() && Is_Compared(control)) {
            texts += control.Text() + '\0';
        }
    }
}

std::size_t Digest_Of_Tests(Session& session) {
    std::string texts;
    for (const Control_Array* const chosen :
         {&session.Form50().Option1, &session.Form50().Option2}) {
        const int number = Compare_Screen::Chosen(*chosen) + 1;
        // A sheet that was closed holds the sample when it comes back, and is not made for this.
        texts += static_cast<char>('0' + number);
        if (session.Is_Loaded({Screen_Kind::Sheet, number})) {
            Add_Compared(texts, session.Sheet(number));
        }
    }
    return std::hash<std::string>{}(texts);
}

std::size_t Digest_Of_Table(const Compare_Screen& table) {
    std::string texts;
    for (const Control& control : table.Controls()) {
        if (control.Entry().use == Cell_Use::Result) {
            texts += control.Text() + '\0';
        }
    }
    return std::hash<std::string>{}(texts);
}

} // namespace

void Note_Filled_Table(Session& session) {
    session.wings.Of<Filled_Tables>().is_new = true;
}

void Note_Age_Of_Table(Session& session) {
    auto& filled = session.wings.Of<Filled_Tables>();
    if (filled.latest.empty() && !filled.is_new) {
        return;
    }
    const Filled_Tables::Filled present{.table = Digest_Of_Table(session.Form50()),
                                        .tests = Digest_Of_Tests(session)};
    if (std::exchange(filled.is_new, false)) {
        filled.latest.push_back(present);
        if (filled.latest.size() > most_tables) {
            filled.latest.pop_front();
        }
    }
    const bool is_known = std::ranges::find(filled.latest, present.table,
                                            &Filled_Tables::Filled::table) != filled.latest.end();
    const bool is_present = std::ranges::find(filled.latest, present) != filled.latest.end();
    session.Form50().Set_Sources_Changed(is_known && !is_present);
}

} // namespace kestrum
