#include "graph/graph_state.h"
#include "tests/graph_painting_bench.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrum::painting {

namespace {

class Letters_Of_The_Graph : public Painting {
protected:
    void Text_At(double left, double right, Text_Anchor anchor, std::string_view text) {
        drawing_.Add({.kind = Draw_Kind::Text,
                      .x1 = left,
                      .y1 = 100,
                      .x2 = right,
                      .size = 24,
                      .anchor = anchor,
                      .cell = left,
                      .text = std::string(text)});
    }

    /// A graph of the bench with three overlays.
    void Draw_Graph_With_Overlays(int type, int x_column = 0) {
        bench_.Draw(type, x_column);
        for (int overlay = 0; overlay < 3; ++overlay) {
            bench_.Click("Form50.Graph_Plus");
        }
        drawing_ = Graph_Of(bench_.session).canvas;
    }

    Graph_Bench bench_;
};

TEST_F(Letters_Of_The_Graph, Have_Their_Natural_Width) {
    const auto width = [&](std::string_view text) {
        drawing_.Clear();
        drawing_.Text(50, 100, text, 24, 0);
        const Set_Text set = Laid_Out().texts.front();
        EXPECT_EQ(set.left, 50);
        EXPECT_EQ(set.squeeze, 1);
        EXPECT_NEAR(set.Height(), 19.2, 0.1);
        const QRectF inked = Inked(Picture(Picture_Format::Png));
        EXPECT_NEAR(inked.left(), 50, 3);
        EXPECT_NEAR(inked.right(), 50 + set.width, 3);
        EXPECT_GE(inked.top(), 100);
        EXPECT_LE(inked.bottom(), 100 + 28.8);
        return set.width;
    };
    const double wide = width("WWWWWWWW");
    const double narrow = width("iiiiiiii");
    EXPECT_GT(wide, 3 * narrow) << "one measure for both would stretch the narrow ones";
    EXPECT_NEAR(width("iiiiiiiiiiiiiiii"), 2 * narrow, 0.1);
}

TEST_F(Letters_Of_The_Graph, Hold_To_Their_Anchors) {
    Text_At(100, 400, Text_Anchor::Left, "ill");
    Text_At(100, 400, Text_Anchor::Centre, "ill");
    Text_At(100, 400, Text_Anchor::Right, "ill");
    const std::vector<Set_Text> texts = Laid_Out().texts;
    EXPECT_EQ(texts[0].left, 100);
    EXPECT_NEAR(texts[1].left + texts[1].width / 2, 250, 0.01);
    EXPECT_NEAR(texts[2].left + texts[2].width, 400, 0.01);
    const std::string svg = Bytes(Picture_Format::Svg);
    EXPECT_NE(svg.find(R"(text-anchor="start" x="100")"), std::string::npos);
    EXPECT_NE(svg.find(R"(text-anchor="middle" x="250")"), std::string::npos);
    EXPECT_NE(svg.find(R"(text-anchor="end" x="400")"), std::string::npos);
}

TEST_F(Letters_Of_The_Graph, Become_Smaller_Only_When_Too_Wide) {
    drawing_.Text(62, 50, std::string(50, 'n'), 12, 0);
    drawing_.Text(62, 150, std::string(100, 'n'), 12, 0);
    const std::vector<Set_Text> texts = Laid_Out().texts;
    EXPECT_NEAR(texts[0].Height(), 10.08, 0.1);
    EXPECT_LT(texts[1].Height(), 10);
    EXPECT_EQ(texts[1].squeeze, 1) << "not narrower";
    EXPECT_LE(texts[1].Box().right(), 596);
}

TEST_F(Letters_Of_The_Graph, Of_The_Two_Captions_Do_Not_Touch) {
    // Their rows are 19 apart, and their measure is 28.8 high.
    drawing_.Text(50, 601, "gjpqy gjpqy", 24, 0);
    const double first_ends = Inked(Picture(Picture_Format::Png)).bottom();
    drawing_.Clear();
    drawing_.Text(50, 620, "bdfhl BDFHL", 24, 0);
    const QRectF second = Inked(Picture(Picture_Format::Png));
    EXPECT_LE(first_ends, second.top() + 0.5);
    EXPECT_LE(second.bottom(), picture_area::top + picture_area::height);
}

TEST_F(Letters_Of_The_Graph, Lie_Over_No_Other_Text_Or_Leaves_The_Frame) {
    drawing_.Text(5, 300, " -12.5", 12, 0);                     // a number of the Y axis
    drawing_.Text(5, 296, "0.0 - Zero Line ", 12, 0);           // close to it
    drawing_.Text(62, 300, "Thick Graph Lines Test 1", 12, 0);  // where that one moved to
    drawing_.Text(62, 400, std::string(150, 'M'), 12, 0);       // a long name
    drawing_.Text(62, 450, std::string(1000000, 'M'), 12, 0);   // of a damaged file
    drawing_.Text(5, 602, " 0", 12, 0);                         // the lowest number
    drawing_.Text(2, 601, std::string(64, 'x'), 24 / 1.331, 0); // a caption as wide as the graph
    drawing_.Text(0, 584, "0", 12, 0);                          // at the side of the frame
    const std::vector<Set_Text> texts = Laid_Out().texts;
    ASSERT_EQ(texts.size(), 8U);
    for (const Set_Text& text : texts) {
        SCOPED_TRACE(text.text.toStdString());
        EXPECT_GE(text.Box().left(), 3);
        EXPECT_LE(text.Box().right(), 597);
        for (const Set_Text& other : texts) {
            EXPECT_TRUE(&text == &other || !text.Box().intersects(other.Box()))
                << other.text.toStdString();
        }
    }
    EXPECT_EQ(texts[0].left, 5) << "the first one stays";
    EXPECT_LE(texts[4].text.size(), 201);
    EXPECT_LT(texts[3].Height(), texts[2].Height()) << "set smaller";
}

TEST_F(Letters_Of_The_Graph, Of_Captions_Keep_Their_Places) {
    drawing_.Text(5, 602, " 0", 12, 0);
    drawing_.Text(220, 601, "Port job 12", 24, 0);
    drawing_.Text(250, 620, "Bench 2", 24, 0);
    drawing_.Text(62, 50, "Intake = Blue / Exhaust = Red", 12, 0);
    drawing_.Text(62, 69, "Thin Graph Lines Test 1 - (gj)", 12, 0);
    const std::vector<Set_Text> texts = Laid_Out().texts;
    EXPECT_EQ(texts[1].left, 220);
    EXPECT_EQ(texts[2].left, 250) << "below the other, not beside it";
    EXPECT_EQ(texts[4].left, 62);
    drawing_.Clear();
    drawing_.Text(5, 602, " 0", 12, 0);
    drawing_.Text(2, 601, std::string(300, 'x'), 24 / 1.331, 0); // wider than the picture
    EXPECT_GT(Laid_Out().texts[1].left, texts[0].left + texts[0].width);
}

TEST_F(Letters_Of_The_Graph, An_Svg_Is_Well_Formed_And_Its_Texts_Stay_Texts) {
    const std::string caption = "Müller & Sons <\"28\"\"> \x01\xFF";
    drawing_.Text(10, 601, caption, 20, 0x123456);
    drawing_.Line(0, 0, 600, 0, 0x909090, 1, Line_Style::Dash);
    const std::string svg = Bytes(Picture_Format::Svg);
    QXmlStreamReader reader(QString::fromStdString(svg));
    QString texts;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("text")) {
            EXPECT_EQ(reader.attributes().value(QLatin1String("fill")), QLatin1String("#123456"));
            EXPECT_EQ(reader.attributes().value(QLatin1String("x")), QLatin1String("10"));
            texts += reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(texts.toStdString(), "Müller & Sons <\"28\"\"> \xEF\xBF\xBD");
    EXPECT_NE(svg.find(R"(stroke-dasharray="4 2" points="0,0 600,0")"), std::string::npos);
}

TEST_F(Letters_Of_The_Graph, Stand_Once_In_A_File_And_Whole) {
    Draw_Graph_With_Overlays(0);
    const std::string svg = Bytes(Picture_Format::Svg);
    std::size_t texts = 0;
    for (std::size_t at = svg.find("<text"); at != std::string::npos;
         at = svg.find("<text", at + 1)) {
        ++texts;
    }
    EXPECT_EQ(texts, Laid_Out().texts.size());
    const std::size_t thin = svg.find(">Thin Graph Lines Test 1 - Stock</text>");
    EXPECT_NE(thin, std::string::npos);
    EXPECT_EQ(svg.find("textLength"), std::string::npos);
    EXPECT_EQ(svg.find("letter-spacing"), std::string::npos);
}

TEST_F(Letters_Of_The_Graph, Of_Numbers_Alone_Have_A_Halo) {
    Draw_Graph_With_Overlays(9);
    std::size_t halos = 0;
    for (const Set_Text& text : Laid_Out().texts) {
        const QChar first = text.text.trimmed().front();
        const bool is_number = first.isDigit() || first == QLatin1Char('-');
        EXPECT_EQ(text.halo > 0, is_number) << text.text.toStdString();
        halos += text.halo > 0 ? 1 : 0;
    }
    EXPECT_GE(halos, 20U);
}

TEST_F(Letters_Of_The_Graph, Of_Each_Legend_Have_A_Panel_And_Samples_Of_The_Curves) {
    Draw_Graph_With_Overlays(0);
    const Text_Layout layout = Laid_Out();
    ASSERT_EQ(layout.samples.size(), 24U)
        << "intake and exhaust before three lines of four legends";
    EXPECT_EQ(layout.panels.size(), 6U) << "and one behind each axis text";
    const int colours[] = {0x0000FF, 0xFF0000, 0x006400, 0x000000,
                           0x00FFFF, 0xFF00FF, 0x00FF00, 0x8B0000};
    const double widths[] = {4, 2, 4};
    for (std::size_t at = 0; at < layout.samples.size(); ++at) {
        const Sample& sample = layout.samples[at];
        EXPECT_EQ(sample.pen.colour, colours[at / 6 * 2 + at % 2]);
        EXPECT_EQ(sample.pen.width, widths[at % 6 / 2]);
        EXPECT_LT(sample.to.x(), 62);
        EXPECT_GT(sample.from.x(), 40);
        EXPECT_TRUE(std::ranges::any_of(layout.panels, [&](const QRectF& panel) {
            return panel.contains(sample.from) && panel.contains(sample.to);
        }));
    }
    const QImage picture = Picture(Picture_Format::Png);
    EXPECT_EQ(At(picture, 50, layout.samples[2].from.y()), 0x0000FFU);
}

TEST_F(Letters_Of_The_Graph, Show_Only_The_Curves_That_Are_There) {
    Draw_Graph_With_Overlays(7, 1); // over the intake's L/D ratio
    const Text_Layout layout = Laid_Out();
    ASSERT_EQ(layout.samples.size(), 12U);
    EXPECT_EQ(layout.samples[0].pen.colour, 0x0000FF);
    EXPECT_EQ(layout.samples[11].pen.colour, 0x00FF00);
}

TEST_F(Letters_Of_The_Graph, Lie_Over_Curves_And_Under_The_Users_Lines) {
    drawing_.Text(100, 100, "MMMM", 24, 0);
    drawing_.Line(90, 115, 148, 115, 0x0000FF, 40); // all over the text
    EXPECT_EQ(At(Picture(Picture_Format::Png), 92, 115), 0x0000FFU) << "beside the text";
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

TEST_F(Letters_Of_The_Graph, Take_No_Curve_Away) {
    drawing_.Line(20, 70, 580, 70, 0x000000, 30, Line_Style::Solid, Draw_Role::Curve);
    drawing_.Add({.kind = Draw_Kind::Text,
                  .x1 = 62,
                  .y1 = 62,
                  .x2 = 100,
                  .size = 12,
                  .role = Draw_Role::Legend,
                  .cell = 62,
                  .text = "Thick Graph"});
    const QImage picture = Picture(Picture_Format::Png);
    EXPECT_EQ(At(picture, 300, 70), 0U);
    const QRgb behind = At(picture, 60, 70);
    EXPECT_EQ(behind, 0x9E9E9EU) << "0.62 of white over black";
}

TEST_F(Letters_Of_The_Graph, And_The_Logo_Lie_Under_The_Users_Lines) {
    QImage shop(100, 100, QImage::Format_RGB32);
    shop.fill(qRgb(255, 128, 0));
    const std::string path = folder_.File("shop.png");
    ASSERT_TRUE(shop.save(QString::fromStdString(path)));
    logo_ = Placed_Logo{.file = path, .left = 100, .top = 100};
    drawing_.Line_By_Hand(90, 150, 210, 150, 0x00FF00, 6);
    const QImage picture = Picture(Picture_Format::Png);
    EXPECT_EQ(At(picture, 150, 150), 0x00FF00U);
    EXPECT_EQ(At(picture, 150, 120), 0xFF8000U);
    const std::string svg = Bytes(Picture_Format::Svg);
    EXPECT_LT(svg.find("<image"), svg.find("#00ff00"));
}

void Draw_Curve(Drawing& drawing, double y1, double y2, int colour) {
    drawing.Line(100, y1, 400, y2, colour, 8, Line_Style::Solid, Draw_Role::Curve);
}

TEST_F(Letters_Of_The_Graph, And_Curves_That_Cross_Have_A_White_Edge) {
    Draw_Curve(drawing_, 200, 200, 0x0000FF);
    drawing_.Line(250, 100, 250, 300, 0xFF0000, 8, Line_Style::Solid, Draw_Role::Curve);
    const QImage picture = Picture(Picture_Format::Png);
    EXPECT_EQ(At(picture, 250, 200), 0xFF0000U) << "the later one";
    EXPECT_EQ(At(picture, 254.2, 200), 0xFFFFFFU);
    EXPECT_EQ(At(picture, 256, 200), 0x0000FFU);
}

TEST_F(Letters_Of_The_Graph, And_Curves_End_Straight_Below_The_Frame) {
    Draw_Curve(drawing_, 200, 200, 0x0000FF);
    drawing_.Line_By_Hand(100, 300, 400, 300, 0xFF0000, 8);
    Draw_Curve(drawing_, 400, 400, 0x0000FF);
    drawing_.Line(400, 350, 400, 450, 0, 3, Line_Style::Solid, Draw_Role::Frame);
    drawing_.Line(200, 350, 200, 450, 0, 3, Line_Style::Solid, Draw_Role::Frame);
    Draw_Curve(drawing_, 420, 420, 0x0000FF);
    const QImage picture = Picture(Picture_Format::Png);
    EXPECT_EQ(At(picture, 401, 200), 0xFFFFFFU);
    EXPECT_EQ(At(picture, 402, 300), 0xFF0000U) << "the user's line is round";
    EXPECT_EQ(At(picture, 400, 400), 0U);
    EXPECT_EQ(At(picture, 200, 420), 0U) << "drawn before the curve";
    EXPECT_EQ(At(picture, 400, 451), 0U) << "the frame's corners are square";
}

TEST_F(Letters_Of_The_Graph, And_Marks_Are_Hollow_With_One_Stroke) {
    for (const double pen : {2.0, 4.0}) {
        drawing_.Clear();
        Draw_Curve(drawing_, 200, 200, 0x0000FF);
        drawing_.Circle(250, 200, 10, 0x0000FF, pen);
        drawing_.Line(250, 100, 250, 300, 0xFF0000, pen, Line_Style::Solid, Draw_Role::Curve);
        const QImage picture = Picture(Picture_Format::Png);
        EXPECT_EQ(At(picture, 250, 200), 0xFFFFFFU) << "above the later curve too";
        EXPECT_EQ(At(picture, 258.5, 200), 0xFFFFFFU);
        EXPECT_EQ(At(picture, 260, 200), 0x0000FFU);
    }
}

TEST_F(Letters_Of_The_Graph, And_The_Usual_Grid_Is_Light) {
    bench_.Draw(0);
    drawing_ = Graph_Of(bench_.session).canvas;
    EXPECT_NE(Bytes(Picture_Format::Svg).find("#c7c7c7"), std::string::npos);
    bench_.session.settings.grid.colour = 0x0000FF; // the user's red
    bench_.Draw(0);
    drawing_ = Graph_Of(bench_.session).canvas;
    const std::string svg = Bytes(Picture_Format::Svg);
    EXPECT_NE(svg.find(R"(stroke="#ff0000" stroke-width="2" points="60,0 60,600")"),
              std::string::npos)
        << "as it was chosen";
}

} // namespace

} // namespace kestrum::painting
