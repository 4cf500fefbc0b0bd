// Feeds bytes to the reader of main data files: whatever a file holds, the reader ends with its
// boxes, the session goes on, and the graph can be drawn by what the file set.

#include "files/main_data_file.h"
#include "fuzz/fuzz_platform.h"
#include "fuzz/graph_drawing.h"
#include "fuzz/stored_screens.h"

#include <cstdint>
#include <string_view>

namespace kestrum {

namespace {

using namespace fuzz;

/// One session for all inputs; what an input changed goes back to its stored state.
class Engine_Bench {
public:
    explicit Engine_Bench(bool comma_mode) : stored_(Start(session_, comma_mode)) {}

    void Load(unsigned answers, std::string_view bytes) {
        platform_.Answer_By(answers);
        const bool read_to_end = Read_Main_Records(session_, bytes);
        Require(read_to_end || platform_.Boxes() >= 2);
        Require(session_.file.records_read >= 0 && session_.file.records_read <= 32767);
        Draw_Some(session_, bytes);
        session_.settings.logo.file.clear();
        session_.settings.logo.on = false;
        session_.settings.grid.on = true;
        session_.settings.grid.colour = 0x909090;
        session_.settings.grid.style = Line_Style::Solid;
        stored_.Put_Back();
    }

private:
    static Session& Start(Session& session, bool comma_mode) {
        session.numbers.comma_mode = comma_mode ? 1 : 0;
        return session;
    }

    Fuzz_Platform platform_;
    // No flow file lies in a folder that is not there.
    Session session_{platform_, platform_, {.folder = "no such folder", .command_line = {}}};
    Stored_Screens stored_;
};

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kestrum::fuzz::Load_In_Either_Mode<kestrum::Engine_Bench>(data, size);
}
