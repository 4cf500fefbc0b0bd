#include "cli/headless_camera.h"

#include "cli/plain_jpeg.h"
#include "screens/screen.h"

#include <nlohmann/json.hpp>

namespace kestrum::cli {

std::string Headless_Camera::Picture_Of(const Screen_Shot& shot) {
    constexpr int ground = 0xF0F0F0; // of every form
    return Plain_Jpeg(shot.width, shot.height, ground);
}

void Headless_Camera::Was_Kept(const Screen_Shot& shot) {
    printer_.Print({{"capture",
                     {{"path", shot.path},
                      {"screen", shot.screen.Name()},
                      {"quality", shot.quality},
                      {"cursor", shot.with_cursor}}}});
}

} // namespace kestrum::cli
