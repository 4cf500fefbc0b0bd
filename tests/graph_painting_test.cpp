#include "graph/graph_state.h"
#include "painting/png_writer.h"
#include "painting/polyline.h"
#include "painting/replay.h"
#include "tests/graph_painting_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace kestrum::painting {

namespace {

TEST_F(Painting, Writes_Each_Format_In_Its_Size) {
    Graph_Bench bench;
    bench.Draw(0);
    drawing_ = Graph_Of(bench.session).canvas;
    const std::string png = Bytes(Picture_Format::Png);
    EXPECT_TRUE(png.starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_LT(png.size(), 120000U);
    EXPECT_EQ(Image_Of(png).size(), QSize(1232, 1266)) << "twice 616 by 633";
    const std::string bmp = Bytes(Picture_Format::Bmp);
    EXPECT_TRUE(bmp.starts_with("BM"));
    EXPECT_EQ(Image_Of(bmp).size(), QSize(616, 633));
    const std::string svg = Bytes(Picture_Format::Svg);
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\""));
    EXPECT_NE(svg.find(R"(width="616" height="633" viewBox="-8 -8 616 633")"), std::string::npos);
    const std::string pdf = Bytes(Picture_Format::Pdf);
    EXPECT_TRUE(pdf.starts_with("%PDF-1."));
    EXPECT_TRUE(pdf.ends_with("%%EOF\n"));
}

TEST_F(Painting, A_Picture_Tells_Its_Density) {
    drawing_.Line(0, 0, 600, 0, 0, 1);
    constexpr std::string_view dots_144("pHYs\x00\x00\x16\x25\x00\x00\x16\x25\x01", 13);
    constexpr std::string_view dots_300("pHYs\x00\x00\x2E\x23\x00\x00\x2E\x23\x01", 13);
    const std::string usual = Bytes(Picture_Format::Png);
    EXPECT_LT(usual.find(dots_144), usual.find("IDAT")) << "5669 dots in a metre";
    EXPECT_EQ(Image_Of(Bytes(Picture_Format::Bmp)).dotsPerMeterX(), 2835);
    painter_.Use({.dots_per_inch = 300});
    const std::string fine = Bytes(Picture_Format::Png);
    EXPECT_NE(fine.find(dots_300), std::string::npos) << "11811 dots in a metre";
    EXPECT_EQ(Image_Of(fine).width(), 2567) << "616 points";
}

TEST_F(Painting, A_Pdf_Comes_On_Paper) {
    drawing_.Line(0, 0, 600, 0, 0, 1);
    const auto box = [&] {
        const std::string pdf = Bytes(Picture_Format::Pdf);
        const std::size_t at = pdf.find("/MediaBox [");
        return pdf.substr(at, pdf.find('.', at) - at);
    };
    EXPECT_EQ(box(), "/MediaBox [0 0 595");
    painter_.Use({.paper = Paper_Size::Letter});
    EXPECT_EQ(box(), "/MediaBox [0 0 612");
    painter_.Use({.paper = Paper_Size::A4});
    EXPECT_EQ(box(), "/MediaBox [0 0 595");
}

TEST_F(Painting, A_Picture_Ends_Below_What_Stands_In_It) {
    const auto height = [&] { return Area_Of(drawing_).height(); };
    EXPECT_EQ(height(), 616) << "600 and a border of 8 on both sides";
    drawing_.Text(5, 602, " 0", 12, 0);
    EXPECT_EQ(height(), 633) << "602 and 14.4";
    drawing_.Text(100, 601, "Port job", 24, 0);
    EXPECT_EQ(height(), 646) << "601 and 28.8";
    drawing_.Line(300, 0, 300, 5000, 0, 4); // a curve that leaves the frame
    EXPECT_EQ(height(), 646);
    drawing_.Line_By_Hand(10, 600, 10, 632, 0, 4);
    EXPECT_EQ(height(), 650);
    drawing_.Text(100, 620, "Bench 2", 24, 0);
    EXPECT_EQ(height(), 664);
    EXPECT_EQ(Area_Of(drawing_).top(), -8);
    drawing_.Stretch(1.5, 1.25);
    EXPECT_EQ(Area_Of(drawing_).width(), 916);
    EXPECT_EQ(height(), 827) << "620 * 1.25, a line of 36, and the borders";
}

TEST_F(Painting, Puts_Lines_Where_The_Drawing_Has_Them) {
    drawing_.Line(100, 200, 400, 200, 0x0000FF, 4);
    drawing_.Circle(300, 400, 50, 0x006400, 4);
    drawing_.Line(500, 500, 500, 500, 0xFF00FF, 6); // a dot of the mouse
    for (const Picture_Format format : {Picture_Format::Png, Picture_Format::Bmp}) {
        const QImage picture = Picture(format);
        EXPECT_EQ(At(picture, 250, 200), 0x0000FFU);
        EXPECT_EQ(At(picture, 350, 400), 0x006400U);
        EXPECT_EQ(At(picture, 300, 400), 0xFFFFFFU) << "circles are not filled";
        EXPECT_EQ(At(picture, 500, 500), 0xFF00FFU);
        EXPECT_EQ(At(picture, -7, -7), 0xFFFFFFU);
    }
}

TEST_F(Painting, A_Line_Of_One_Dot_Is_Sharp_In_A_Bitmap) {
    drawing_.Line(100, 0, 100, 600, 0x909090, 1);
    const QImage picture = Picture(Picture_Format::Bmp);
    EXPECT_EQ(At(picture, 100, 300), 0x909090U);
    EXPECT_EQ(At(picture, 99, 300), 0xFFFFFFU);
    EXPECT_EQ(At(picture, 101, 300), 0xFFFFFFU);
}

TEST_F(Painting, Joins_Lines_Of_One_Pen_Alone) {
    drawing_.Clear();
    drawing_.Line(0, 0, 1, 1, 0, 1);
    drawing_.Line(1, 1, 2, 0, 0, 1);
    drawing_.Line(2, 0, 3, 1, 0xFF, 1); // another colour
    drawing_.Line(3, 1, 4, 0, 0xFF, 2); // another pen
    drawing_.Line(5, 0, 6, 0, 0xFF, 2); // another place
    drawing_.Line(6, 0, 7, 0, 0xFF, 2, Line_Style::Dot);
    drawing_.Line(7, 0, 8, 0, 0xFF, 2, Line_Style::Dot, Draw_Role::Curve);
    const auto steps = drawing_.Operations();
    EXPECT_EQ(Joined_Lines(steps), 0U) << "begins with a clearing";
    EXPECT_EQ(Joined_Lines(steps.subspan(1)), 2U);
    for (std::size_t at = 3; at < steps.size(); ++at) {
        EXPECT_EQ(Joined_Lines(steps.subspan(at)), 1U) << at;
    }
    EXPECT_EQ(Joined_Lines({}), 0U);
}

double Distance(QPointF point, QPointF from, QPointF to) {
    const QPointF way = to - from;
    const double length = QPointF::dotProduct(way, way);
    const double share =
        length == 0 ? 0 : std::clamp(QPointF::dotProduct(point - from, way) / length, 0.0, 1.0);
    const QPointF off = point - (from + way * share);
    return std::hypot(off.x(), off.y());
}

TEST_F(Painting, Leaves_Out_No_Point_That_Could_Be_Seen) {
    QPointF last(0, 300);
    for (int at = 1; at <= 1500; ++at) { // a curve that also turns back on itself
        const double turn = at / 150.0;
        const QPointF next(at * 0.2 + 60 * std::sin(turn), 300 - 100 * std::sin(turn * 1.7));
        drawing_.Line(last.x(), last.y(), next.x(), next.y(), 0, 1);
        last = next;
    }
    const QPolygonF points = Points_Of(drawing_.Operations());
    EXPECT_LT(points.size(), 500);
    EXPECT_EQ(points.front(), QPointF(0, 300));
    EXPECT_EQ(points.back(), last);
    for (const Draw_Operation& step : drawing_.Operations()) {
        double nearest = 1000;
        for (qsizetype at = 1; at < points.size(); ++at) {
            nearest = std::min(nearest, Distance({step.x2, step.y2}, points[at - 1], points[at]));
        }
        ASSERT_LE(nearest, 0.0401);
    }
}

TEST_F(Painting, Keeps_The_Corners_Of_A_Line_That_Turns_Back) {
    drawing_.Line(0, 0, 100, 0, 0, 1);
    drawing_.Line(100, 0, 50, 0, 0, 1);
    drawing_.Line(50, 0, 50, 80, 0, 1);
    EXPECT_EQ(Points_Of(drawing_.Operations()),
              (QPolygonF{QPointF(0, 0), QPointF(100, 0), QPointF(50, 0), QPointF(50, 80)}));
}

TEST_F(Painting, A_Png_Keeps_The_Colours_Of_A_Photograph) {
    QImage photograph(256, 256, QImage::Format_RGB32);
    QImage drawing(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x) {
            photograph.setPixel(x, y, qRgb(x, y, x ^ y));
            drawing.setPixel(x, y, x < y ? qRgb(0, 100, 0) : qRgb(255, 0, x));
        }
    }
    EXPECT_EQ(Image_Of(Png_Bytes(photograph)).convertToFormat(QImage::Format_RGB32), photograph);
    // 257 colours: one more than a palette holds, so the rarest takes the one next to it.
    const QImage read = Image_Of(Png_Bytes(drawing)).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(read.pixel(0, 255), qRgb(0, 100, 0));
    for (int x = 0; x < 256; ++x) {
        EXPECT_LE(std::abs(qBlue(read.pixel(x, 0)) - x), 1) << x;
        EXPECT_EQ(qRed(read.pixel(x, 0)), 255);
    }
}

TEST_F(Painting, Lays_The_Logo_Over_The_Graph) {
    QImage shop(40, 20, QImage::Format_RGB32);
    shop.fill(qRgb(255, 128, 0));
    const std::string path = folder_.File("shop.png");
    ASSERT_TRUE(shop.save(QString::fromStdString(path)));
    drawing_.Line(0, 110, 600, 110, 0, 4);
    logo_ = Placed_Logo{.file = path, .left = 300, .top = 100};
    const QImage picture = Picture(Picture_Format::Png);
    EXPECT_EQ(At(picture, 320, 110), 0xFF8000U);
    EXPECT_EQ(At(picture, 338, 118), 0xFF8000U) << "a dot is a unit";
    EXPECT_EQ(At(picture, 342, 110), 0U);
    EXPECT_NE(Bytes(Picture_Format::Svg).find(R"(<image x="300" y="100" width="40" height="20")"),
              std::string::npos);
}

TEST_F(Painting, A_Large_Logo_Is_Taken_Smaller_And_A_Bad_One_Refused) {
    QImage large(3000, 1500, QImage::Format_RGB32);
    large.fill(qRgb(255, 128, 0));
    const std::string path = folder_.File("large.jpg");
    ASSERT_TRUE(large.save(QString::fromStdString(path)));
    const Logo_Picture logo = Load_Logo({.file = path, .left = 1, .top = 2});
    EXPECT_EQ(logo.image.size(), QSize(600, 300));
    EXPECT_EQ(logo.top, 2);
    painter_.Take_Logo(path);
    logo_ = Placed_Logo{.file = path, .left = 50, .top = 200};
    ASSERT_EQ(std::remove(path.c_str()), 0);
    const QImage picture = Picture(Picture_Format::Bmp);
    EXPECT_LT(At(picture, 60, 210) & 0xFFU, 9U) << "it outlives its file";
    EXPECT_EQ(At(picture, 210, 60), 0xFFFFFFU) << "and stands where it was put";
    for (const std::string& bad :
         {folder_.Write("words.bmp", "BM and nothing else"), folder_.File("none.png")}) {
        logo_ = Placed_Logo{.file = bad};
        EXPECT_EQ(Error_Of([&] { static_cast<void>(Bytes(Picture_Format::Png)); }), 481) << bad;
        EXPECT_EQ(Error_Of([&] { painter_.Take_Logo(bad); }), 481) << bad;
    }
}

} // namespace

} // namespace kestrum::painting
