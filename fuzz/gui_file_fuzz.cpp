// Feeds bytes to the reader of the look of the screens: whatever a file holds, the reader ends with
// its boxes, every box still has a font that can be shown, and a save brings all of it back.

#include "files/gui_file.h"
#include "fuzz/fuzz_platform.h"

#include <cstdint>
#include <string>

namespace kestrum {

namespace {

using namespace fuzz;

class Gui_Bench {
public:
    explicit Gui_Bench(bool comma_mode) {
        session_.numbers.comma_mode = comma_mode ? 1 : 0;
        stored_ = GUI_Text(session_);
    }

    void Load(unsigned answers, std::string_view bytes) {
        platform_.Answer_By(answers);
        const bool read_to_end = Take_GUI(session_, bytes);
        Require(read_to_end || platform_.Boxes() >= 1);
        Require(session_.file.records_read >= 0 && session_.file.records_read <= 32767);
        for (const Screen_Id id : {Screen_Id{Screen_Kind::Engine}, Screen_Id{Screen_Kind::Sheet, 1},
                                   Screen_Id{Screen_Kind::Compare}}) {
            for (const Control& control : session_.The(id).Controls()) {
                const Font& font = control.Present_Look().font;
                Require(Is_Font_Size(font.size) && !font.name.empty());
            }
        }
        const std::string saved = GUI_Text(session_);
        Require(session_.file.records_written == 19);
        Require(Take_GUI(session_, saved) || Has_Size_Of_Zero(saved));
        Require(Take_GUI(session_, stored_));
        session_.For_Each_Loaded([](Screen& screen) { static_cast<void>(screen.Take_Changes()); });
    }

private:
    /// Less than half a point is written as none.
    static bool Has_Size_Of_Zero(std::string_view saved) {
        return saved.find("Size = 0\r") != std::string_view::npos;
    }

    Fuzz_Platform platform_;
    Session session_{platform_, platform_, {}};
    std::string stored_;
};

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kestrum::fuzz::Load_In_Either_Mode<kestrum::Gui_Bench>(data, size);
}
