#include "core/logo_picture.h"

#include "platform/painter.h"
#include "platform/picture_file.h"

namespace kestrum {

void Take_Logo(Session& session, const std::string& file) {
    if (!Is_Picture_File(file)) {
        Fail(error::invalid_picture);
    }
    if (session.painter != nullptr) {
        session.painter->Take_Logo(file);
    }
}

} // namespace kestrum
