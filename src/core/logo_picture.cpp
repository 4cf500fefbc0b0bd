#include "core/logo_picture.h"

#include "drawing/painter.h"
#include "drawing/picture_file.h"

namespace kestrum {

void Take_Logo(Session& session, const std::string& file) {
    const auto size = Size_Of_Picture_File(file);
    if (!size) {
        Fail(error::invalid_picture);
    }
    if (session.painter != nullptr) {
        session.painter->Take_Logo(file);
    }
    session.settings.logo.size = {.width = double(size->width), .height = double(size->height)};
}

} // namespace kestrum
