#include "base/run_time_error.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "platform/open_file.h"
#include "platform/passing_file.h"
#include "platform/saving_steps.h"

#include <functional>

namespace kestrum {

namespace {

/// A file of a name that nothing bore, which goes again unless it is kept.
class Fresh_File {
public:
    using Naming = std::function<std::string(std::string_view name, int number)>;

    Fresh_File(const Save_Target& target, const Naming& naming, bool secret)
        : file_(Opened(target, naming, secret)) {}

    Fresh_File(const Fresh_File&) = delete;
    Fresh_File& operator=(const Fresh_File&) = delete;

    ~Fresh_File() {
        if (!kept_) {
            Remove_File(path_);
        }
    }

    [[nodiscard]] Open_File& File() { return file_; }

    [[nodiscard]] const std::string& Path() const { return path_; }

    void Keep() { kept_ = true; }

private:
    int Opened(const Save_Target& target, const Naming& naming, bool secret) {
        // Only this program makes files of these names, and hardly two at a time.
        constexpr int most_tries = 1000;
        int handle = -1;
        for (int number = 0; number < most_tries && handle < 0; ++number) {
            path_ = Join_Path(target.folder, naming(target.name, number));
            handle = Handle_Of_New_File(path_, secret);
        }
        return handle;
    }

    std::string path_;
    bool kept_ = false;
    Open_File file_;
};

void Replace_In_One_Step(const Save_Target& target, std::string_view content) {
    // Nobody else looks into it before it has the rights of the old file. A new one has those that
    // the system gives at once.
    Fresh_File fresh(target, Passing_Name, target.exists);
    fresh.File().Write_All(content);
    if (target.exists) {
        Take_Over_Rights(fresh.File(), target);
    }
    fresh.File().Flush();
    fresh.File().Close();
    Put_In_Place(fresh.Path(), target);
    fresh.Keep(); // under the target's name
    Flush_Folder(target.folder);
}

void Copy_Content(const Open_File& from, const Open_File& to) {
    constexpr std::size_t piece = 65536;
    std::uint64_t offset = 0;
    for (std::string bytes = from.Piece(offset, piece); !bytes.empty();
         bytes = from.Piece(offset, piece)) {
        to.Write_All(bytes);
        offset += bytes.size();
    }
}

/// Writes over what a file holds from its beginning, and cuts it there.
void Write_Over(const Open_File& file, const std::function<void()>& write) {
    Go_To_Front(file);
    write();
    Cut_Here(file);
    file.Flush();
}

/// A file of several names must stay one file, so a new one cannot take its place: the other names
/// would keep the old content without a word. It is written where it is. A copy of the old content
/// lies beside it meanwhile, to be put back after a failure; a program that is killed in the middle
/// leaves that copy for the user.
void Replace_In_Place(const Save_Target& target, std::string_view content) {
    const Open_File file(Handle_To_Change(target));
    Wait_For_Turn(file);
    Fresh_File copy(target, Safety_Copy_Name, true);
    Copy_Content(file, copy.File());
    copy.File().Flush();
    Flush_Folder(target.folder);
    copy.Keep(); // until the file itself is whole again
    try {
        Write_Over(file, [&] { file.Write_All(content); });
    } catch (const Run_Time_Error&) {
        const Open_File old = Open_To_Read(copy.Path());
        Write_Over(file, [&] { Copy_Content(old, file); });
        Remove_File(copy.Path());
        throw;
    }
    Remove_File(copy.Path());
}

} // namespace

void Replace_File(const std::string& path, std::string_view content) {
    const Save_Target target = Target_Of(path);
    Remove_Left_Overs(target.folder);
    if (target.exists && target.has_other_names) {
        Replace_In_Place(target, content);
    } else {
        Replace_In_One_Step(target, content);
    }
}

} // namespace kestrum
