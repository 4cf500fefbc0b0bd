// Feeds bytes to the reader of flow data files: whatever a file holds, the reader ends with its
// boxes, and the sheet is a sheet still.

#include "files/flow_data_file.h"
#include "fuzz/fuzz_platform.h"

#include <cstdint>
#include <vector>

namespace kestrum {

namespace {

using namespace fuzz;

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
