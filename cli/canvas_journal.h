#pragma once

#include "cli/event_printer.h"
#include "drawing/drawing.h"

#include <cstdio>
#include <memory>

namespace kestrum::cli {

/// What was drawn since a script last asked. What a drawing has noted beyond a bound goes, ready
/// for printing, into a nameless file: a session that may ask late, or never, takes no more memory.
class Canvas_Journal {
public:
    /// Takes over what the drawing has noted when that is much.
    void Collect(Drawing& canvas);

    /// Prints all as a list, and forgets it. Raises `Stream_Error` when it could not be kept.
    void Print(Event_Printer& printer, Drawing& canvas);

    void Clear();

private:
    struct File_Closer {
        void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
    };

    void Keep(const std::string& text);

    std::unique_ptr<std::FILE, File_Closer> file_;
    bool has_operations_ = false;
    bool has_failed_ = false;
};

} // namespace kestrum::cli
