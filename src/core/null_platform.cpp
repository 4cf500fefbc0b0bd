#include "core/null_platform.h"

namespace kestrum {

Box_Answer Batch_Dialogs::Show_Box(const Box& box) {
    Note(box.text);
    switch (box.buttons) {
    case Box_Buttons::Ok:
        return Box_Answer::Ok;
    case Box_Buttons::Ok_Cancel:
        return Box_Answer::Cancel;
    case Box_Buttons::Yes_No:
        return Box_Answer::No;
    }
    return Box_Answer::Ok;
}

std::optional<Chosen_Path> Batch_Dialogs::Choose_File(const Chooser& /*chooser*/) {
    return std::nullopt;
}

} // namespace kestrum
