#include "painting/picture_area.h"

#include <algorithm>
#include <cmath>

namespace kestrum::painting {

namespace {

constexpr double frame_bottom = 600;

double Bottom_Of(const Draw_Operation& step) {
    if (step.kind == Draw_Kind::Text) {
        return step.y1 + Canvas_Text_Height(step.size);
    }
    return step.by_hand ? std::max(step.y1, step.y2) + step.width / 2 : 0;
}

} // namespace

QRectF Whole_Area_Of(const Drawing& drawing) {
    using namespace picture_area;
    const Stretch_Factors& by = drawing.Stretched_By();
    return {left, top, (width + 2 * left) * by.x - 2 * left, (height + top) * by.y - top};
}

QRectF Area_Of(const Drawing& drawing) {
    constexpr double border = -picture_area::top;
    double bottom = frame_bottom * drawing.Stretched_By().y;
    for (const Draw_Operation& step : drawing.Operations()) {
        bottom = std::max(bottom, Bottom_Of(step));
    }
    QRectF area = Whole_Area_Of(drawing);
    area.setBottom(std::min(std::ceil(bottom + border), area.bottom()));
    return area;
}

} // namespace kestrum::painting
