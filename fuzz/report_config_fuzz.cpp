// Feeds bytes to the reader of report configurations: whatever a file holds, the reader ends with
// its boxes, and every box and button of the screen still has a state that a save brings back.

#include "files/report_config.h"
#include "fuzz/fuzz_platform.h"

#include <cstdint>
#include <string>

namespace kestrum {

namespace {

using namespace fuzz;

class Config_Bench {
public:
    explicit Config_Bench(bool comma_mode) {
        session_.numbers.comma_mode = comma_mode ? 1 : 0;
        stored_ = Report_Config_Text(session_, session_.Form70());
    }

    void Load(unsigned answers, std::string_view bytes) {
        Report_Screen& screen = session_.Form70();
        platform_.Answer_By(answers);
        const bool read_to_end = Read_Report_Config(session_, screen, bytes);
        Require(read_to_end || platform_.Boxes() >= 1);
        Require(session_.file.records_read >= 0 && session_.file.records_read <= 32767);
        const std::string saved = Report_Config_Text(session_, screen);
        Require(session_.file.records_written == 38);
        Require(Read_Report_Config(session_, screen, stored_));
        Require(Read_Report_Config(session_, screen, saved));
        Require(Report_Config_Text(session_, screen) == saved);
        Require(Read_Report_Config(session_, screen, stored_));
        static_cast<void>(screen.Take_Changes());
    }

private:
    Fuzz_Platform platform_;
    Session session_{platform_, platform_, {}};
    std::string stored_;
};

} // namespace

} // namespace kestrum

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return kestrum::fuzz::Load_In_Either_Mode<kestrum::Config_Bench>(data, size);
}
