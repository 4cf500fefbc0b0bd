#include "graph/table_age.h"

#include "base/byte_digest.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace kestrum {

namespace {

/// What the table showed and what its tests held when it was filled, as digests, the latest behind.
/// Undo brings an earlier table back, and then its own tests count.
struct Filled_Tables {
    struct Filled {
        std::uint64_t table = 0;
        std::uint64_t tests = 0;

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

void Add_Text(Byte_Digest& digest, const Control& control) {
    digest.Add(control.Text());
    digest.Add('\0');
}

std::uint64_t Digest_Of_Tests(Session& session) {
    Byte_Digest digest;
    for (const Control_Array* const chosen :
         {&session.Form50().Option1, &session.Form50().Option2}) {
        const int number = Compare_Screen::Chosen(*chosen) + 1;
        digest.Add(static_cast<char>(number));
        // A sheet that was closed holds the sample when it comes back, and is not made for this.
        if (!session.Is_Loaded({Screen_Kind::Sheet, number})) {
            continue;
        }
        for (const Control& control : session.Sheet(number).Controls()) {
            if (control.Is_Text_Box() && Is_Compared(control)) {
                Add_Text(digest, control);
            }
        }
    }
    return digest.Value();
}

std::uint64_t Digest_Of_Table(const Compare_Screen& table) {
    Byte_Digest digest;
    for (const Control& control : table.Controls()) {
        if (control.Entry().use == Cell_Use::Result) {
            Add_Text(digest, control);
        }
    }
    return digest.Value();
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
