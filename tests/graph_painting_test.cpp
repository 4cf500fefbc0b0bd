#include "painting/fitted_text.h"
#include "painting/picture_area.h"
#include "painting/png_writer.h"
#include "painting/polyline.h"
#include "painting/qt_painter.h"
#include "painting/replay.h"
#include "painting/text_layout.h"
#include "tests/graph_test_bench.h"

#include <QGuiApplication>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace kestrum::painting {

namespace {

/// The part of Qt that sets texts, once for all tests.
void Start_Qt() {
    static std::array<char, 6> name{"tests"};
    static std::array<char, 10> option{"-platform"};
    static std::array<char, 21> platform{"minimal:enable_fonts"};
    static std::array<char*, 4> arguments{name.data(), option.data(), platform.data(), nullptr};
    static int count = 3;
    static const QGuiApplication application(count, arguments.data());
}

class Painting : public ::testing::Test {
protected:
    Painting() { Start_Qt(); }

    [[nodiscard]] std::string Bytes(Picture_Format format) {
        return painter_.Picture_Of(drawing_, format, logo_);
    }

    [[nodiscard]] QImage Picture(Picture_Format format) { return Image_Of(Bytes(format)); }

    static QImage Image_Of(const std::string& bytes) {
        return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                static_cast<int>(bytes.size()));
    }

    /// Colour at a place of the canvas.
    static QRgb At(const QImage& picture, double x, double y) {
        const double scale = picture.width() / double(picture_area::width);
        return picture.pixel(static_cast<int>((x - picture_area::left) * scale),
                             static_cast<int>((y - picture_area::top) * scale)) &
               0xFFFFFFU;
    }

    /// What is not white, in units of the canvas.
    static QRectF Inked(const QImage& picture) {
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

    Qt_Painter painter_;
    Drawing drawing_;
    std::optional<Placed_Logo> logo_;
    Temp_Folder folder_;
};

TEST_F(Painting, Writes_Each_Format_In_Its_Size) {
    Graph_Bench bench;
    bench.Draw(0);
    drawing_ = bench.session.graph.canvas;
    const std::string png = Bytes(Picture_Format::Png);
    EXPECT_TRUE(png.starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_LT(png.size(), 120000U);
    EXPECT_EQ(Image_Of(png).size(), QSize(1232, 1328)) << "twice 616 by 664";
    const std::string bmp = Bytes(Picture_Format::Bmp);
    EXPECT_TRUE(bmp.starts_with("BM"));
    EXPECT_EQ(Image_Of(bmp).size(), QSize(616, 664));
    const std::string svg = Bytes(Picture_Format::Svg);
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\""));
    EXPECT_NE(svg.find(R"(width="616" height="664" viewBox="-8 -8 616 664")"), std::string::npos);
    const std::string pdf = Bytes(Picture_Format::Pdf);
    EXPECT_TRUE(pdf.starts_with("%PDF-1."));
    EXPECT_NE(pdf.find("/MediaBox [0 0 616.000000 664.000000]"), std::string::npos);
    EXPECT_TRUE(pdf.ends_with("%%EOF\n"));
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

struct Text_Case {
    const char* name;
    const char* text;
};

TEST_F(Painting, Texts_Fill_Their_Measure_And_Never_Exceed_It) {
    const Text_Case cases[] = {
        {"wide letters", "WWWWWWWWMMMMMMMM"},
        {"narrow letters", "iiiiiiiillllllll"},
        {"digits", "1234567890"},
        {"a legend", "Thin Graph Lines Test 1 - Stock"},
        {"other letters", "Ж Ü 30°"},
        {"one letter", "0"},
    };
    for (const Text_Case& one : cases) {
        SCOPED_TRACE(one.name);
        drawing_.Clear();
        drawing_.Text(50, 100, one.text, 24, 0);
        const QRectF inked = Inked(Picture(Picture_Format::Png));
        const double width = Canvas_Text_Width(one.text, 24);
        EXPECT_GE(inked.left(), 49);
        EXPECT_LE(inked.right(), 50 + width + 1);
        EXPECT_GT(inked.width(), width - 12) << "but for the room around the outer letters";
        EXPECT_GE(inked.top(), 100);
        EXPECT_LE(inked.bottom(), 100 + 28.8);
    }
}

TEST_F(Painting, The_Two_Captions_Do_Not_Touch) {
    // Their rows are 19 apart, and their measure is 28.8 high.
    drawing_.Text(50, 601, "gjpqy gjpqy", 24, 0);
    const double first_ends = Inked(Picture(Picture_Format::Png)).bottom();
    drawing_.Clear();
    drawing_.Text(50, 620, "bdfhl BDFHL", 24, 0);
    const QRectF second = Inked(Picture(Picture_Format::Png));
    EXPECT_LE(first_ends, second.top() + 0.5);
    EXPECT_LE(second.bottom(), picture_area::top + picture_area::height);
}

TEST_F(Painting, No_Text_Lies_Over_Another_Or_Leaves_The_Frame) {
    drawing_.Text(5, 300, " -12.5", 12, 0);                     // a number of the Y axis
    drawing_.Text(5, 296, "0.0 - Zero Line ", 12, 0);           // close to it
    drawing_.Text(62, 300, "Thick Graph Lines Test 1", 12, 0);  // where that one moved to
    drawing_.Text(62, 400, std::string(150, 'M'), 12, 0);       // a long name
    drawing_.Text(62, 450, std::string(1000000, 'M'), 12, 0);   // of a damaged file
    drawing_.Text(5, 602, " 0", 12, 0);                         // the lowest number
    drawing_.Text(2, 601, std::string(64, 'x'), 24 / 1.331, 0); // a caption as wide as the graph
    drawing_.Text(0, 584, "0", 12, 0);                          // at the side of the frame
    const std::vector<Fitted_Text> texts = Laid_Out_Texts(drawing_.Operations());
    ASSERT_EQ(texts.size(), 8U);
    for (const Fitted_Text& text : texts) {
        SCOPED_TRACE(text.text.toStdString());
        EXPECT_GE(text.Box().left(), 3);
        EXPECT_LE(text.Box().right(), 597);
        for (const Fitted_Text& other : texts) {
            EXPECT_TRUE(&text == &other || !text.Box().intersects(other.Box()))
                << other.text.toStdString();
        }
    }
    EXPECT_EQ(texts[0].left, 5) << "the first one stays";
    EXPECT_LE(texts[4].text.size(), 201);
    EXPECT_LT(texts[3].scale, texts[2].scale) << "rather smaller than without any width";
}

TEST_F(Painting, Captions_Keep_Their_Places) {
    drawing_.Text(5, 602, " 0", 12, 0);
    drawing_.Text(220, 601, "Port job 12", 24, 0);
    drawing_.Text(250, 620, "Bench 2", 24, 0);
    drawing_.Text(62, 50, "Intake = Blue / Exhaust = Red", 12, 0);
    drawing_.Text(62, 69, "Thin Graph Lines Test 1 - (gj)", 12, 0);
    const std::vector<Fitted_Text> texts = Laid_Out_Texts(drawing_.Operations());
    EXPECT_EQ(texts[1].left, 220);
    EXPECT_EQ(texts[2].left, 250) << "below the other, not beside it";
    EXPECT_EQ(texts[4].left, 62);
    drawing_.Clear();
    drawing_.Text(5, 602, " 0", 12, 0);
    drawing_.Text(2, 601, std::string(300, 'x'), 24 / 1.331, 0); // wider than the picture
    EXPECT_GT(Laid_Out_Texts(drawing_.Operations())[1].left, texts[0].left + texts[0].width);
}

TEST_F(Painting, Curves_Run_Under_Texts_And_The_Users_Lines_Over_Them) {
    drawing_.Text(100, 100, "MMMM", 24, 0);
    drawing_.Line(100, 115, 148, 115, 0x0000FF, 40); // all over the text
    EXPECT_EQ(At(Picture(Picture_Format::Png), 98, 115), 0x0000FFU) << "beside the text";
    const auto letters = [&] {
        const QImage picture = Picture(Picture_Format::Png);
        int black = 0;
        for (double x = 100; x < 148; x += 0.5) {
            black += At(picture, x, 115) == 0 ? 1 : 0;
        }
        return black;
    };
    EXPECT_GT(letters(), 10);
    drawing_.Line_By_Hand(100, 115, 148, 115, 0xFF0000, 40);
    EXPECT_EQ(letters(), 0);
}

TEST_F(Painting, Joins_Lines_Of_One_Pen_Alone) {
    drawing_.Clear();
    drawing_.Line(0, 0, 1, 1, 0, 1);
    drawing_.Line(1, 1, 2, 0, 0, 1);
    drawing_.Line(2, 0, 3, 1, 0xFF, 1); // another colour
    drawing_.Line(3, 1, 4, 0, 0xFF, 2); // another pen
    drawing_.Line(5, 0, 6, 0, 0xFF, 2); // another place
    drawing_.Line(6, 0, 7, 0, 0xFF, 2, Line_Style::Dot);
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
        ASSERT_LE(nearest, 0.0201);
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
    logo_ = Placed_Logo{.file = path};
    ASSERT_EQ(std::remove(path.c_str()), 0);
    EXPECT_LT(At(Picture(Picture_Format::Bmp), 20, 20) & 0xFFU, 9U) << "it outlives its file";
    for (const std::string& bad :
         {folder_.Write("words.bmp", "BM and nothing else"), folder_.File("none.png")}) {
        logo_ = Placed_Logo{.file = bad};
        EXPECT_EQ(Error_Of([&] { static_cast<void>(Bytes(Picture_Format::Png)); }), 481) << bad;
        EXPECT_EQ(Error_Of([&] { painter_.Take_Logo(bad); }), 481) << bad;
    }
}

TEST_F(Painting, An_Svg_Is_Well_Formed_And_Tells_The_Width_Of_Its_Texts) {
    const std::string caption = "Müller & Sons <\"28\"\"> \x01\xFF";
    drawing_.Text(10, 601, caption, 20, 0x123456);
    drawing_.Line(0, 0, 600, 0, 0x909090, 1, Line_Style::Dash);
    const std::string svg = Bytes(Picture_Format::Svg);
    QXmlStreamReader reader(QString::fromStdString(svg));
    QString texts;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("text")) {
            const bool is_halo = reader.attributes().hasAttribute(QLatin1String("stroke"));
            EXPECT_EQ(reader.attributes().value(QLatin1String(is_halo ? "stroke" : "fill")),
                      QLatin1String(is_halo ? "#ffffff" : "#123456"));
            EXPECT_FALSE(reader.attributes().value(QLatin1String("textLength")).isEmpty());
            const QString text = reader.readElementText();
            texts += is_halo ? QString() : text; // the white around the letters
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(texts.toStdString(), "Müller & Sons <\"28\"\"> \xEF\xBF\xBD");
    EXPECT_NE(svg.find(R"(stroke-dasharray="4 2" points="0,0 600,0")"), std::string::npos);
}

} // namespace

} // namespace kestrum::painting
