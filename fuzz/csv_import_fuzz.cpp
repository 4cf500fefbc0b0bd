// Feeds bytes to the reader of CSV tables, for a sheet in either unit system.

#include "exchange/csv_import.h"
#include "fuzz/import_bench.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    return fuzz::Import_Input(
        data, size, [](Session& session, Flow_Sheet& sheet, unsigned bits, std::string_view bytes) {
            // Not by a click: the texts would be converted, and all inputs begin with the same
            // ones.
            session.Main().Check2.Set_Value(static_cast<int>(bits & 1U));
            const bool done = Read_CSV_Rows(session, sheet, bytes);
            session.Main().Check2.Set_Value(0);
            static_cast<void>(session.Main().Take_Changes());
            return done;
        });
}
