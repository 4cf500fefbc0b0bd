#pragma once

#include <string>

namespace kestrum {

class Screen;

/// A picture of a screen as it stands on the display.
struct Screen_Shot {
    const Screen& screen;
    /// Size of the screen in pixels.
    int width = 0;
    int height = 0;
    int quality = 0; // 0 to 100
    bool with_cursor = false;
    /// Where it will be kept.
    std::string path{};
};

/// Takes pictures of the screens.
struct Screen_Camera {
    Screen_Camera() = default;
    Screen_Camera(const Screen_Camera&) = delete;
    Screen_Camera& operator=(const Screen_Camera&) = delete;
    virtual ~Screen_Camera() = default;

    /// The bytes of a JPEG file. Raises a run-time error when there is no picture.
    [[nodiscard]] virtual std::string Picture_Of(const Screen_Shot& shot) = 0;

    /// The picture lies in its file now.
    virtual void Was_Kept(const Screen_Shot& /*shot*/) {}

    /// Whether the program goes on after a failure that no routine handles.
    [[nodiscard]] virtual bool Outlives_Failures() const { return false; }
};

} // namespace kestrum
