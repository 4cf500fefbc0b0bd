// Feeds bytes to the reader of PTPFA files, in both layouts.

#include "exchange/ptpfa_import.h"
#include "fuzz/import_bench.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    return fuzz::Import_Input(
        data, size, [](Session& session, Flow_Sheet& sheet, unsigned bits, std::string_view bytes) {
            session.file.path = (bits & 1U) != 0 ? "a.pti" : "a.ptf";
            return Read_PTPFA_Lines(session, sheet, bytes);
        });
}
