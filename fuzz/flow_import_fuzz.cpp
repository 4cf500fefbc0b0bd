// Feeds bytes to the reader of other programs' flow files, in all four layouts.

#include "exchange/flow_import.h"
#include "fuzz/import_bench.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    return fuzz::Import_Input(
        data, size, [](Session& session, Flow_Sheet& sheet, unsigned bits, std::string_view bytes) {
            return Read_Flow_Lines(session, sheet, static_cast<Flow_Layout>(bits % 4), bytes);
        });
}
