#include "output/graph_saving.h"

#include "base/text.h"
#include "graph/graph_state.h"
#include "platform/file_store.h"
#include "records/named_files.h"

#include <array>

namespace kestrum {

namespace {

struct Ending {
    std::string_view text;
    Picture_Format format;
};

constexpr std::array<Ending, 3> endings{
    {{".png", Picture_Format::Png}, {".svg", Picture_Format::Svg}, {".pdf", Picture_Format::Pdf}}};

/// A test's label without its number.
std::string_view Part_Number_Of(std::string_view label) {
    constexpr std::string_view between = " - ";
    const std::size_t found = label.find(between);
    return found == std::string_view::npos ? label : label.substr(found + between.size());
}

} // namespace

std::string Proposal_For_Compared(const Session& session, std::string_view ending) {
    const Graph_State& graph = Graph_Of(session);
    return Proposal_For_Tests(Part_Number_Of(graph.from_label), Part_Number_Of(graph.to_label),
                              ending);
}

std::optional<Placed_Logo> Shown_Logo(Session& session) {
    const Control& picture = session.Form60().Picture2;
    if (!session.settings.logo.on || session.settings.logo.file.empty() ||
        !picture.Present_Look().visible) {
        return std::nullopt;
    }
    const Position& place = picture.Moved_To();
    return Placed_Logo{.file = Path_Of_Named_File(session, session.settings.logo.file),
                       .left = place.left,
                       .top = place.top};
}

Picture_Format Format_For(std::string_view path) {
    const std::string name = Lower_Copy(path);
    for (const Ending& ending : endings) {
        if (name.ends_with(ending.text)) {
            return ending.format;
        }
    }
    return Picture_Format::Bmp;
}

void Write_Graph(Session& session, const std::string& path) {
    if (session.painter == nullptr) {
        Fail(error::invalid_picture);
    }
    Replace_File(path, session.painter->Picture_Of(Graph_Of(session).canvas, Format_For(path),
                                                   Shown_Logo(session)));
}

void Save_Graph(Session& session) {
    constexpr std::string_view filter = "All Files (*.*)|*.*|Graphics Files (*.bmp)|*.bmp";
    constexpr int bitmaps = 2;
    constexpr const char* by_name = "PNG Pictures (*.png)|*.png|SVG Drawings (*.svg)|*.svg|"
                                    "PDF Documents (*.pdf)|*.pdf|BMP Pictures (*.bmp)|*.bmp";
    try {
        const std::string path = Chosen_File(
            session, Chooser_Mode::Save, filter, bitmaps,
            {.proposal = Proposal_For_Compared(session, ".bmp"), .more_entries = by_name});
        Write_Graph(session, path);
        Tell_Saved(session, path);
    } catch (const Run_Time_Error&) {
        session.Message("Graph has Not been Saved", Box_Icon::Exclamation);
    }
}

} // namespace kestrum
