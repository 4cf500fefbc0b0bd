#pragma once

#include "core/session.h"
#include "records/records.h"

#include <functional>
#include <string_view>

namespace kestrum {

/// How a kind of file speaks of lines that no key fits.
struct Reading_Words {
    std::string_view not_handled_title;
    /// Shown when the user stops there.
    std::string_view stopped;
    Box_Icon stopped_icon = Box_Icon::None;
};

/// Asks whether to go on behind a line that no key fits; false when the user stops there, which a
/// second box confirms.
bool Goes_On_After(Session& session, std::string_view line, const Reading_Words& words);

/// Goes through the lines of a file and counts them. From the line "Comments =" on all go to the
/// comment field; any other is handed to `put`, which tells whether it handled it. Gives false
/// when the user stopped at a line that was not. Raises what `put` raises.
bool Read_Records(Session& session, Line_Reader& lines, Control& comment,
                  const Reading_Words& words, const std::function<bool(const Record&)>& put);

/// The same for a rescued copy: nothing is asked, and the comment comes back as it stood, without
/// the blank that the reading of a user's file adds.
void Restore_Records(Session& session, std::string_view bytes, Control& comment,
                     const std::function<bool(const Record&)>& put);

/// Gives a routine its own count and path back when one that it called has read another file.
class Own_File_State {
public:
    explicit Own_File_State(Session& session)
        : session_(session),
          records_read_(session.file.records_read),
          file_path_(session.file.path) {}

    Own_File_State(const Own_File_State&) = delete;
    Own_File_State& operator=(const Own_File_State&) = delete;

    ~Own_File_State() {
        session_.file.records_read = records_read_;
        session_.file.path = file_path_;
    }

private:
    Session& session_;
    int records_read_;
    std::string file_path_;
};

} // namespace kestrum
