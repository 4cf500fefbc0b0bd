#pragma once

#include "core/session.h"

#include <vector>

namespace kestrum {

/// Finds the inputs that the file of a screen does not name. They keep what stood there, and are
/// marked until they are edited or calculated.
class Unnamed_Inputs {
public:
    /// Reading begins. Inputs of panels belong to other files.
    explicit Unnamed_Inputs(Screen& screen);
    Unnamed_Inputs(const Unnamed_Inputs&) = delete;
    Unnamed_Inputs& operator=(const Unnamed_Inputs&) = delete;

    /// Takes whether a line was known, and gives it back.
    bool Saw(bool known) {
        any_known_ = any_known_ || known;
        return known;
    }

    /// The lines have been read, or some of them; what follows may set texts that no file holds.
    void Note(bool is_whole);
    /// Marks what has been found, and tells it beside the boxes.
    void Tell(Session& session) const;

private:
    Screen& screen_;
    bool any_known_ = false;
    std::vector<Control*> unnamed_;
};

/// What a face tells when the command has ended, beside the boxes.
void Tell_News(Session& session, std::string_view words);

} // namespace kestrum
