// Feeds bytes to the reader of flow data files: whatever a file holds, the reader ends with its
// boxes, and the sheet is a sheet still.

#include "core/session.h"
#include "core/text.h"
#include "files/flow_data_file.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace kestrum {

namespace {

/// Presses Cancel or OK by the bits of the input's first byte, the lowest for the first box.
class Fuzz_Platform : public Dialogs, public Windows {
public:
    void Answer_By(unsigned bits) {
        bits_ = bits;
        boxes_ = 0;
    }

    [[nodiscard]] int Boxes() const { return boxes_; }

    Box_Answer Show_Box(const Box& box) override {
        ++boxes_;
        const bool cancels = (bits_ & 1U) != 0;
        bits_ >>= 1U;
        return cancels && box.buttons == Box_Buttons::Ok_Cancel ? Box_Answer::Cancel
                                                                : Box_Answer::Ok;
    }

    std::optional<std::string> Choose_File(const Chooser& /*chooser*/) override {
        return std::nullopt;
    }

    void Beep() override {}

    void Show(Screen& /*screen*/) override {}

    void Hide(Screen& /*screen*/) override {}

    void Unload(Screen& /*screen*/) override {}

    void Focus(Control& /*control*/) override {}

private:
    unsigned bits_ = 0;
    int boxes_ = 0;
};

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A text that is no UTF-8 would be taken for Windows-1252 and come out longer.
bool Is_Utf8(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) || Decoded(text) == text;
}

/// One session for all inputs; a sheet's stored texts come back much faster than a new session.
struct Bench {
    Fuzz_Platform platform;
    Session session{platform, platform, {}};
    Flow_Sheet& sheet = session.Sheet(1);
    std::vector<std::string> stored;

    Bench() {
        for (const Control& control : sheet.Controls()) {
            stored.push_back(control.Text());
        }
    }

    void Renew(bool comma_mode) {
        session.number.comma_mode = comma_mode ? 1 : 0;
        std::size_t at = 0;
        for (Control& control : sheet.Controls()) {
            control.Set_Text(stored[at]);
            ++at;
        }
        if (comma_mode) {
            All_Dots_To_Commas(sheet);
        }
        static_cast<void>(sheet.Take_Changes());
    }
};

void Check_Sheet(const Bench& bench) {
    const auto controls = bench.sheet.Controls();
    Require(controls.size() == bench.stored.size());
    for (std::size_t at = 0; at < controls.size(); ++at) {
        const Control& control = controls[at];
        Require(Is_Utf8(control.Text()));
        // The reader reaches text boxes alone.
        Require(control.Is_Text_Box() || control.Text() == bench.stored[at]);
    }
    Require(bench.session.records_read >= 0 && bench.session.records_read <= 32767);
    Require(!bench.session.mouse_down);
}

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    static Bench bench;
    if (size == 0) {
        return 0;
    }
    constexpr unsigned comma_bit = 0x80;
    bench.platform.Answer_By(data[0]);
    bench.Renew((data[0] & comma_bit) != 0);
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1); // NOLINT
    const bool read_to_end = Read_Flow_Records(bench.session, bench.sheet, bytes);
    Require(read_to_end || bench.platform.Boxes() >= 2);
    Check_Sheet(bench);
    return 0;
}
