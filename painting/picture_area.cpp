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

QRectF Area_Of(const Drawing& drawing) {
    QRectF area = picture_area::Whole(drawing);
    double bottom = frame_bottom * drawing.Factor_Y();
    for (const Draw_Operation& step : drawing.Operations()) {
        bottom = std::max(bottom, Bottom_Of(step));
    }
    area.setBottom(std::min(std::ceil(bottom - area.top()), area.bottom()));
    return area;
}

} // namespace kestrum::painting
