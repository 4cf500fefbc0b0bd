// Feeds bytes to the reader of main data files: whatever a file holds, the reader ends with its
// boxes, and the session goes on.

#include "files/main_data_file.h"
#include "fuzz/fuzz_platform.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kestrum {

namespace {

using namespace fuzz;

/// One session for all inputs; what an input changed goes back to its stored state.
class Engine_Bench {
public:
    explicit Engine_Bench(bool comma_mode) {
        session_.number.comma_mode = comma_mode ? 1 : 0;
        static_cast<void>(session_.Main());
        static_cast<void>(session_.Form50());
        static_cast<void>(session_.Form60());
        for (int number = 1; number <= sheet_count; ++number) {
            static_cast<void>(session_.Sheet(number));
        }
        session_.For_Each_Loaded([this](Screen& screen) {
            static_cast<void>(screen.Take_Changes());
            for (const Control& control : screen.Controls()) {
                stored_.push_back({control.Text(), control.Value(), control.Present_Look()});
            }
        });
    }

    void Load(unsigned answers, std::string_view bytes) {
        platform_.Answer_By(answers);
        const bool read_to_end = Read_Main_Records(session_, bytes);
        Require(read_to_end || platform_.Boxes() >= 2);
        Require(session_.records_read >= 0 && session_.records_read <= 32767);
        session_.logo_file.clear();
        session_.logo_on = 0;
        std::size_t first = 0;
        session_.For_Each_Loaded([&](Screen& screen) {
            for (Control* const control : screen.Take_Changes()) {
                Require(Is_Utf8(control->Text()));
                const auto at = static_cast<std::size_t>(control - screen.Controls().data());
                const State& state = stored_[first + at];
                control->Set_Text(state.text);
                control->Set_Value(state.value);
                control->Set_Look(state.look);
            }
            static_cast<void>(screen.Take_Changes());
            first += screen.Controls().size();
        });
    }

private:
    struct State {
        std::string text;
        int value;
        Look look;
    };

    Fuzz_Platform platform_;
    // No flow file lies in a folder that is not there.
    Session session_{platform_, platform_, {.folder = "no such folder", .command_line = {}}};
    std::vector<State> stored_;
};

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    static Engine_Bench dots(false);
    static Engine_Bench commas(true);
    if (size == 0) {
        return 0;
    }
    constexpr unsigned comma_bit = 0x80;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1); // NOLINT
    ((data[0] & comma_bit) != 0 ? commas : dots).Load(data[0], bytes);
    return 0;
}
