#include "cli/canvas_journal.h"

#include "cli/drawing_events.h"
#include "cli/standard_streams.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string>

namespace kestrum::cli {

void Canvas_Journal::Collect(Drawing& canvas) {
    constexpr std::size_t much = 20000; // some graphs
    if (canvas.Journal_Size() < much) {
        return;
    }
    std::string text;
    for (const Draw_Operation& operation : canvas.Take_Journal()) {
        text += has_operations_ ? "," : "";
        text += Json_Of(Operation_Event(operation));
        has_operations_ = true;
    }
    Keep(text);
}

void Canvas_Journal::Keep(const std::string& text) {
    if (!file_) {
        file_.reset(std::tmpfile());
    }
    has_failed_ = has_failed_ || !file_ ||
                  std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size();
}

void Canvas_Journal::Print(Event_Printer& printer, Drawing& canvas) {
    if (has_failed_ || (file_ && std::fflush(file_.get()) != 0)) {
        throw Stream_Error("what was drawn on the canvas could not be kept");
    }
    printer.Write("{\"canvas\":[");
    if (file_) {
        std::rewind(file_.get());
        std::array<char, 65536> piece{};
        while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), file_.get())) {
            printer.Write({piece.data(), size});
        }
    }
    for (const Draw_Operation& operation : canvas.Take_Journal()) {
        printer.Write(has_operations_ ? "," : "");
        printer.Write(Json_Of(Operation_Event(operation)));
        has_operations_ = true;
    }
    printer.Write("]}\n");
    Clear();
}

void Canvas_Journal::Clear() {
    file_.reset();
    has_operations_ = false;
    has_failed_ = false;
}

} // namespace kestrum::cli
