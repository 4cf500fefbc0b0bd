#pragma once

#include "cli/graph_options.h"
#include "core/null_platform.h"
#include "core/session.h"

#include <array>
#include <ostream>
#include <string>
#include <vector>

namespace kestrum::cli {

/// A session without windows, whose first two sheets are compared.
class Graph_Session {
public:
    /// What its boxes say goes to `errors`, a line each.
    Graph_Session(const Graph_Options& options, std::ostream& errors, const Clock& clock = {});
    Graph_Session(const Graph_Session&) = delete;
    Graph_Session& operator=(const Graph_Session&) = delete;
    ~Graph_Session() = default;

    /// Loads the From test into sheet 1 and the To test into sheet 2. False when one is not there
    /// or could not be read to its end.
    [[nodiscard]] bool Load(const File_Pair& pair);

    /// Clicks a button of the compare screen. False after a failure that no routine handles.
    [[nodiscard]] bool Press(std::string_view button);

    /// Writes the graph. False when it cannot be written.
    [[nodiscard]] bool Save(Painter& painter, const std::string& path);

    [[nodiscard]] const Compare_Screen& Table() { return session_.Form50(); }

    [[nodiscard]] Session& Its_Session() { return session_; }

    /// Loads a test into a sheet. False when it is not there or could not be read to its end.
    [[nodiscard]] bool Load_Sheet(int number, const std::string& path);
    /// Shows a logo; a file that is no picture is told of and changes nothing.
    void Take_Logo(const std::string& path);
    /// Says what the boxes said, under the name of what they speak of.
    void Pass_On_Boxes(const std::string& source);
    void Tell(const std::string& source, const std::string& what);

private:
    void Set_Extras(const Graph_Extras& extras);
    void Start_Over(Flow_Sheet& sheet) const;

    std::ostream& errors_;
    Null_Platform platform_;
    Session session_;
    /// The texts of a sheet after a start.
    std::vector<std::string> start_texts_;
};

} // namespace kestrum::cli
