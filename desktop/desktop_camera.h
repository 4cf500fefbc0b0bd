#pragma once

#include "drawing/screen_camera.h"

#include <QWidget>

#include <functional>

namespace kestrum::desktop {

/// Takes pictures of windows as they stand on the screen, with what lies over them. Where the
/// platform lets nobody look at its screen, the window is painted anew.
class Desktop_Camera : public Screen_Camera {
public:
    explicit Desktop_Camera(std::function<QWidget*(const Screen& screen)> window_of)
        : window_of_(std::move(window_of)) {}

    [[nodiscard]] std::string Picture_Of(const Screen_Shot& shot) override;

    [[nodiscard]] bool Outlives_Failures() const override { return true; }

private:
    std::function<QWidget*(const Screen& screen)> window_of_;
};

} // namespace kestrum::desktop
