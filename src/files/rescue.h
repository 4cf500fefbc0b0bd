#pragma once

#include "core/session.h"
#include "platform/lock_file.h"

#include <map>
#include <string>
#include <vector>

namespace kestrum {

/// Copies of `Main` and the sheets, in the system's own formats, for the case that the program ends
/// without its exit: by a failure, a crash or a kill. They lie in the folder "rescue" below the
/// program's folder; a program that runs beside another takes "rescue-2" and so on. Nothing here
/// raises: a disk that takes no copy must not disturb the work.
class Rescue {
public:
    /// Finds a folder that no running program holds, and takes it.
    explicit Rescue(Session& session);
    Rescue(const Rescue&) = delete;
    Rescue& operator=(const Rescue&) = delete;
    ~Rescue() = default;

    /// Behind the start: asks once whether to load what an earlier run left. What is declined is
    /// put aside into "rescue-declined".
    void Offer();

    /// Writes the copies of the loaded screens whose inputs have changed since the last call.
    void Keep();

    /// The normal exit needs no copy.
    void Remove();

private:
    /// Copies that were found, by the name of their screen.
    struct Found_Copy {
        std::string screen;
        std::string path;
    };

    [[nodiscard]] std::vector<Found_Copy> Found() const;
    [[nodiscard]] std::string Path_Of(const std::string& screen) const;
    [[nodiscard]] std::string Inputs_Of(Screen& screen);
    void Note_Present_Inputs();
    void Load(const std::vector<Found_Copy>& copies);
    void Put_Aside(const std::vector<Found_Copy>& copies);
    void Write_Copy(const std::string& screen, const std::string& inputs);

    Session& session_;
    Lock_File lock_;
    /// Empty when no folder could be had.
    std::string folder_;
    bool point_noted_ = false;
    /// What is known to be safe of each loaded screen: its copy, or the state that a start gives.
    std::map<std::string, std::string> safe_inputs_;
};

} // namespace kestrum
