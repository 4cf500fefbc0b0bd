#include "platform/new_file.h"

#include "base/run_time_error.h"
#include "platform/file_moves.h"
#include "platform/open_file.h"

namespace kestrum {

bool Write_New_File(const std::string& path, std::string_view content) {
    const int handle = Handle_Of_New_File(path);
    if (handle < 0) {
        return false;
    }
    try {
        Open_File file(handle);
        file.Write_All(content);
        file.Close();
    } catch (const Run_Time_Error&) {
        Remove_File(path); // ours: it was not there before
        throw;
    }
    return true;
}

} // namespace kestrum
