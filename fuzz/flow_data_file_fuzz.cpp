// Feeds bytes to the reader of flow data files: whatever a file holds, the reader ends with its
// boxes, the sheet is a sheet still, and its graph can be drawn.

#include "files/flow_data_file.h"
#include "fuzz/fuzz_platform.h"
#include "fuzz/graph_drawing.h"
#include "fuzz/stored_screens.h"

#include <cstdint>
#include <string_view>

namespace kestrum {

namespace {

using namespace fuzz;

/// One session for all inputs; what an input changed goes back to its stored state.
class Bench {
public:
    explicit Bench(bool comma_mode) : stored_(Start(session_, comma_mode)) {}

    void Load(unsigned answers, std::string_view bytes) {
        platform_.Answer_By(answers);
        Flow_Sheet& sheet = session_.Sheet(1);
        const bool read_to_end = Read_Flow_Records(session_, sheet, bytes);
        Require(read_to_end || platform_.Boxes() >= 2);
        Require(session_.file.records_read >= 0 && session_.file.records_read <= 32767);
        for (const Control& control : sheet.Controls()) {
            // The reader reaches nothing else.
            Require(control.Is_Text_Box() || control.Text() == control.Entry().text);
        }
        Draw_Some(session_, bytes);
        stored_.Put_Back();
    }

private:
    static Session& Start(Session& session, bool comma_mode) {
        session.numbers.comma_mode = comma_mode ? 1 : 0;
        return session;
    }

    Fuzz_Platform platform_;
    Session session_{platform_, platform_, {}};
    Stored_Screens stored_;
};

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kestrum::fuzz::Load_In_Either_Mode<kestrum::Bench>(data, size);
}
