#pragma once

#include "platform/open_file.h"

#include <string>

namespace kestrum {

// The steps of a save that each system takes in its own way; for the file store.

/// Where a save goes, and what is there.
struct Save_Target {
    std::string path;
    std::string folder;
    std::string name;
    bool exists = false;
    /// One that is there bears several names.
    bool has_other_names = false;
    /// What the system keeps with a file, in its own numbers; for the save to hand on.
    unsigned attributes = 0;
    unsigned owner = 0;
    unsigned group = 0;
};

/// The file behind all links. Raises 75 for what is no file or may bear no such name, 70 for one
/// that may not be written, 76 where there is no folder.
[[nodiscard]] Save_Target Target_Of(const std::string& path);

/// Gives a new file the owner and the rights of the one whose place it takes, as far as the system
/// does not do so by itself. What others could do with the old file because of its owner or group,
/// they must not do in the name of this user.
void Take_Over_Rights(const Open_File& made, const Save_Target& target);

/// Gives a file the name of the target in one step. Raises 61, 70 or 75.
void Put_In_Place(const std::string& path, const Save_Target& target);

/// Without this a power cut may bring the old name list of the folder back; some file systems
/// refuse it, which costs nothing else.
void Flush_Folder(const std::string& folder);

/// The handle of the target's file, to be written over. Raises 70 or 75.
[[nodiscard]] int Handle_To_Change(const Save_Target& target);

/// One program at a time, as far as all are this one. A lock that somebody does not let go must not
/// stop the save for ever.
void Wait_For_Turn(const Open_File& file);

/// Writing begins at the front again.
void Go_To_Front(const Open_File& file);

/// What stands behind the last byte written is gone.
void Cut_Here(const Open_File& file);

} // namespace kestrum
