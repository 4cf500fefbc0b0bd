// Feeds bytes to the reader of flow data files: whatever a file holds, the reader ends with its
// boxes, and the sheet is a sheet still.

#include "core/session.h"
#include "core/text.h"
#include "files/flow_data_file.h"

#include <cstdint>
#include <cstdlib>
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

/// One session for all inputs. After each, the controls that changed get their stored texts back,
/// which is much faster than a new session.
class Bench {
public:
    explicit Bench(bool comma_mode) {
        session_.number.comma_mode = comma_mode ? 1 : 0;
        for (const Control& control : sheet_.Controls()) {
            stored_.push_back(control.Text());
        }
    }

    void Load(unsigned answers, std::string_view bytes) {
        platform_.Answer_By(answers);
        const bool read_to_end = Read_Flow_Records(session_, sheet_, bytes);
        Require(read_to_end || platform_.Boxes() >= 2);
        Require(session_.records_read >= 0 && session_.records_read <= 32767);
        const auto controls = sheet_.Controls();
        Require(controls.size() == stored_.size());
        for (Control* const control : sheet_.Take_Changes()) {
            Require(control->Is_Text_Box()); // the reader reaches nothing else
            Require(Is_Utf8(control->Text()));
            control->Set_Text(stored_[static_cast<std::size_t>(control - controls.data())]);
        }
        static_cast<void>(sheet_.Take_Changes());
    }

private:
    Fuzz_Platform platform_;
    Session session_{platform_, platform_, {}};
    Flow_Sheet& sheet_ = session_.Sheet(1);
    std::vector<std::string> stored_;
};

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    static Bench dots(false);
    static Bench commas(true);
    if (size == 0) {
        return 0;
    }
    constexpr unsigned comma_bit = 0x80;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1); // NOLINT
    ((data[0] & comma_bit) != 0 ? commas : dots).Load(data[0], bytes);
    return 0;
}
