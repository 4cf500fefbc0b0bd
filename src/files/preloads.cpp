#include "files/preloads.h"

#include "base/text.h"
#include "files/flow_data_file.h"
#include "platform/file_store.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

constexpr std::string_view preload_filter = "Flow Data Files (*.dat)|*.dat";
constexpr std::size_t shortest_name = 5;

} // namespace

void Choose_Preload(Session& session, int index) {
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Open, preload_filter, 1);
    } catch (const Run_Time_Error&) {
        return;
    }
    // The bare name of a file that lies elsewhere is not found later; that is known and stays.
    session.Main().Text1(index).Set_Text(
        Name_In_Folder(session.surroundings.folder, session.file.path));
}

void Load_Preloads(Session& session) {
    for (int index = 0; index < sheet_count; ++index) {
        const std::string name = session.Main().Text1(index).Text();
        if (Length(name) >= shortest_name) {
            Load_Flow_File(session, session.Sheet(index + 1), name);
        }
    }
}

} // namespace kestrum
