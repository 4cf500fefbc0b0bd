#include "tests/graph_painting_bench.h"

#include <QGuiApplication>

#include <array>

namespace kestrum::painting {

Painting::Painting() {
    static std::array<char, 6> name{"tests"};
    static std::array<char, 10> option{"-platform"};
    static std::array<char, 21> platform{"minimal:enable_fonts"};
    static std::array<char*, 4> arguments{name.data(), option.data(), platform.data(), nullptr};
    static int count = 3;
    static const QGuiApplication application(count, arguments.data());
}

QImage Painting::Image_Of(const std::string& bytes) {
    return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                            static_cast<int>(bytes.size()));
}

QRgb Painting::At(const QImage& picture, double x, double y) {
    const double scale = picture.width() / double(picture_area::width);
    return picture.pixel(static_cast<int>((x - picture_area::left) * scale),
                         static_cast<int>((y - picture_area::top) * scale)) &
           0xFFFFFFU;
}

QRectF Painting::Inked(const QImage& picture) {
    QRect inked;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if ((picture.pixel(x, y) & 0xFFFFFFU) != 0xFFFFFFU) {
                inked |= QRect(x, y, 1, 1);
            }
        }
    }
    const double scale = picture.width() / double(picture_area::width);
    return {inked.left() / scale + picture_area::left, inked.top() / scale + picture_area::top,
            inked.width() / scale, inked.height() / scale};
}

Text_Layout Painting::Laid_Out() const {
    std::vector<const Draw_Operation*> texts;
    for (const Draw_Operation& step : drawing_.Operations()) {
        if (step.kind == Draw_Kind::Text) {
            texts.push_back(&step);
        }
    }
    return Lay_Out_Texts(texts, 600);
}

} // namespace kestrum::painting
