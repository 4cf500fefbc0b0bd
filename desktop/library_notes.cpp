#include "desktop/library_notes.h"

#include "base/run_time_error.h"
#include "platform/file_store.h"

#include <string_view>

namespace kestrum::desktop {

namespace {

std::string Path_Of_Notes(const std::string& program_folder) {
    return Join_Path(program_folder, "library.txt");
}

/// One line: a word, a blank and a text.
void Take_Line(Library_Notes& notes, std::string_view line) {
    const std::size_t blank = line.find(' ');
    const std::string_view word = line.substr(0, blank);
    const std::string text(blank == std::string_view::npos ? "" : line.substr(blank + 1));
    if (word == "folder") {
        notes.folder = text;
    } else if (word == "metric") {
        notes.metric_folders.insert(text);
    } else if (word == "hidden") {
        notes.hidden_columns.insert(text);
    } else if (word == "column") {
        notes.column_order.push_back(text);
    } else if (word == "groups") {
        notes.by_port_volume = true;
    }
}

} // namespace

Library_Notes Read_Library_Notes(const std::string& program_folder) {
    try {
        const std::string text = Read_Whole_File(Path_Of_Notes(program_folder));
        Library_Notes notes;
        notes.hidden_columns.clear();
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = std::min(text.find('\n', at), text.size());
            Take_Line(notes, std::string_view(text).substr(at, end - at));
            at = end + 1;
        }
        return notes;
    } catch (const Run_Time_Error&) {
        return {};
    }
}

void Write_Library_Notes(const std::string& program_folder, const Library_Notes& notes) {
    std::string text = "folder " + notes.folder + "\n";
    for (const std::string& folder : notes.metric_folders) {
        text += "metric " + folder + "\n";
    }
    for (const std::string& column : notes.hidden_columns) {
        text += "hidden " + column + "\n";
    }
    for (const std::string& column : notes.column_order) {
        text += "column " + column + "\n";
    }
    text += notes.by_port_volume ? "groups\n" : "";
    try {
        Write_Whole_File(Path_Of_Notes(program_folder), text);
    } catch (const Run_Time_Error&) {
        return;
    }
}

} // namespace kestrum::desktop
