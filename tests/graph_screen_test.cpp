#include "application/events.h"
#include "drawing/painter.h"
#include "drawing/printer.h"
#include "files/main_data_file.h"
#include "graph/graph_state.h"
#include "screens/geometry.h"
#include "tests/full_disk.h"
#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

const std::string not_saved = "exclamation box: Graph has Not been Saved";

/// Paints what was asked for as words.
struct Word_Painter : Painter {
    using Painter::Picture_Of; // of several pages

    std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                           const std::optional<Placed_Logo>& logo) override {
        constexpr std::array names{"BMP", "PNG", "SVG", "PDF"};
        steps = drawing.Operations().size();
        last_logo = logo;
        if (fails) {
            Fail(error::invalid_picture);
        }
        return names.at(static_cast<std::size_t>(format)) + std::string(padding, '.');
    }

    void Take_Logo(const std::string& file) override {
        if (fails) {
            Fail(error::invalid_picture);
        }
        taken_logo = file;
    }

    std::string taken_logo;
    std::size_t steps = 0;
    std::size_t padding = 0;
    std::optional<Placed_Logo> last_logo;
    bool fails = false;
};

class Graph_Screen_Test : public ::testing::Test {
protected:
    Graph_Screen_Test() { bench_.session.painter = &painter_; }

    Events Save(std::optional<std::string> path) {
        bench_.platform.Choose(std::move(path));
        return bench_.Click("Form60.Command3");
    }

    void Mouse(std::string_view picture, Mouse_Action action, double x, double y) {
        Mouse_On_Picture(bench_.session, bench_.At(picture), action, x, y);
    }

    /// The smallest picture that has a header: a GIF of one dot.
    [[nodiscard]] std::string Logo_File(std::string_view name) {
        return bench_.folder.Write(
            name, std::string_view("GIF89a\1\0\1\0\x80\0\0\xff\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1"
                                   "\0;",
                                   35));
    }

    Word_Painter painter_;
    Graph_Bench bench_;
};

TEST_F(Graph_Screen_Test, Reads_Values_Under_The_Mouse) {
    Mouse("Form60.Picture1", Mouse_Action::Move, 100, 100);
    Expect_Texts(bench_, {{"Form60.Label18", "0.0"}, {"Form60.Label19", "0.0"}});
    bench_.Draw(0); // to 290 and 1400
    Mouse("Form60.Picture1", Mouse_Action::Move, 0, 0);
    Expect_Texts(bench_, {{"Form60.Label18", "290.0"}, {"Form60.Label19", "0.0"}});
    Mouse("Form60.Picture1", Mouse_Action::Move, 600, 600);
    Expect_Texts(bench_, {{"Form60.Label18", "0.0"}, {"Form60.Label19", "1400.0"}});
    Mouse("Form60.Picture1", Mouse_Action::Move, 150, 450);
    Expect_Texts(bench_, {{"Form60.Label18", "72.5"}, {"Form60.Label19", "350.0"}});
}

TEST_F(Graph_Screen_Test, Draws_By_Hand_Where_The_Box_Is_Set) {
    bench_.Draw(0);
    const std::size_t before = bench_.Steps().size();
    Mouse("Form60.Picture1", Mouse_Action::Down, 10, 20);
    Mouse("Form60.Picture1", Mouse_Action::Move, 30, 40);
    Mouse("Form60.Picture1", Mouse_Action::Up, 30, 40);
    EXPECT_EQ(bench_.Steps().size(), before) << "the box is off";
    bench_.Click("Form60.Check1");
    Mouse("Form60.Picture1", Mouse_Action::Down, 10, 20);
    Mouse("Form60.Picture1", Mouse_Action::Move, 30, 40);
    Mouse("Form60.Picture1", Mouse_Action::Up, 900, 40);
    Mouse("Form60.Picture1", Mouse_Action::Move, 50, 60);
    ASSERT_EQ(bench_.Steps().size(), before + 2);
    const Draw_Operation& dot = bench_.Steps()[before];
    EXPECT_EQ(dot.x1, dot.x2);
    EXPECT_EQ(dot.colour, 0x9F8601) << "99999 is red 159, green 134, blue 1";
    EXPECT_EQ(dot.width, 3);
    const Draw_Operation& line = bench_.Steps()[before + 1];
    EXPECT_EQ(line.x1, 10);
    EXPECT_EQ(line.y2, 40);
    bench_.Draw(0);
    EXPECT_EQ(bench_.Steps().size(), before) << "a fresh graph clears what was drawn";
}

TEST_F(Graph_Screen_Test, A_Hidden_Graph_Keeps_Its_Picture) {
    bench_.Draw(0);
    const std::size_t before = bench_.Steps().size();
    EXPECT_EQ(bench_.Click("Form60.Command1"), Events{"hide Form60"});
    EXPECT_EQ(bench_.Click("Form50.Graph_Plus"), Events{"show Form60"});
    EXPECT_GT(bench_.Steps().size(), before);
}

TEST_F(Graph_Screen_Test, The_Frame_Of_The_Window_Takes_The_Graph_With_It) {
    bench_.Draw(0);
    bench_.Click("Form60.Check1");
    Mouse("Form60.Picture1", Mouse_Action::Down, 10, 20);
    Mouse("Form60.Picture2", Mouse_Action::Down, 1, 1);
    EXPECT_EQ(bench_.Close("Form60"), (Events{"hide Form60", "unload Form60"}));
    const Graph_State& graph = Graph_Of(bench_.session);
    EXPECT_FALSE(graph.drawing_now);
    EXPECT_FALSE(graph.logo_moving);
    for (const double limit : {graph.x_low, graph.x_high, graph.y_low, graph.y_high}) {
        EXPECT_EQ(limit, 0);
    }
    Mouse("Form60.Picture1", Mouse_Action::Move, 100, 100);
    EXPECT_TRUE(bench_.Steps().empty());
    Expect_Texts(bench_, {{"Form60.Label18", "0.0"}, {"Form60.Label19", "0.0"}});
    painter_.steps = 99;
    EXPECT_EQ(Save(bench_.folder.File("a.bmp")), Events{"chooser to save"});
    EXPECT_EQ(painter_.steps, 0U) << "the empty canvas";
    EXPECT_EQ(bench_.Draw(0), Events{});
    EXPECT_EQ(graph.y_high, 290);
}

TEST_F(Graph_Screen_Test, The_List_Of_Widths_Gives_Its_Entries_Alone) {
    Control& widths = bench_.session.Form60().Combo1;
    for (const std::string_view none : {"11", "", "abc", " 3", "3.0"}) {
        Select(bench_.session, widths, none);
        EXPECT_EQ(widths.Text(), "3");
        EXPECT_EQ(bench_.session.settings.draw_line_width, 3);
    }
    Select(bench_.session, widths, "12");
    EXPECT_EQ(bench_.session.settings.draw_line_width, 12);
    bench_.Close("Form60");
    EXPECT_EQ(bench_.Get("Form60.Combo1"), "12") << "the width in force";
}

TEST_F(Graph_Screen_Test, Pictures_Have_Their_Own_Size) {
    const std::string path =
        bench_.folder.Write("shop.gif", std::string_view("GIF89a\x40\0\x30\0\0\0\0", 13));
    const auto expect_logo = [this](double width, double height) {
        const Twips place = Place_In_Twips(bench_.At("Form60.Picture2"));
        EXPECT_EQ(place.width, width);
        EXPECT_EQ(place.height, height);
    };
    const Twips canvas = Place_In_Twips(bench_.At("Form60.Picture1"));
    EXPECT_EQ(canvas.width, 600);
    EXPECT_EQ(canvas.height, 600);
    expect_logo(0, 0);
    bench_.platform.Choose(path);
    EXPECT_EQ(bench_.Click("Form60.Logo"), Events{"chooser to open"});
    expect_logo(64, 48);
    bench_.Close("Form60");
    expect_logo(64, 48);
    bench_.Click("Form60.Logo");
    expect_logo(0, 0);
}

TEST_F(Graph_Screen_Test, A_File_That_Switches_The_Logo_Off_Takes_It_Off) {
    const std::string path = Logo_File("shop.gif");
    const auto is_shown = [this] {
        return bench_.session.Form60().Picture2.Present_Look().visible &&
               bench_.Get("Form60.Logo") == "Logo -- Is ON";
    };
    const auto is_off = [this] {
        return !bench_.session.Form60().Picture2.Present_Look().visible &&
               bench_.Get("Form60.Logo") == "Logo -- Is OFF";
    };
    const std::string named = "Logo_SW = 1\r\nLogo_Name = " + path + "\r\n";
    EXPECT_TRUE(Read_Main_Records(bench_.session, named));
    EXPECT_TRUE(is_shown());
    EXPECT_TRUE(Read_Main_Records(bench_.session, "Logo_SW = 0\r\n"));
    EXPECT_TRUE(is_off());
    EXPECT_TRUE(Read_Main_Records(bench_.session, named));
    EXPECT_TRUE(Read_Main_Records(bench_.session, "Logo_SW = 1\r\nLogo_Name = \r\n"));
    EXPECT_TRUE(is_off()) << "no name, no logo";
    EXPECT_TRUE(Read_Main_Records(bench_.session, named));
    EXPECT_TRUE(Read_Main_Records(bench_.session, "Logo_Name = none.gif\r\n"));
    EXPECT_EQ(bench_.Take_Events(), Events{"plain box: No Logo File has been Seleted"});
    EXPECT_TRUE(is_off());
}

TEST_F(Graph_Screen_Test, Takes_A_Logo_And_Moves_It) {
    const std::string path = Logo_File("shop.gif");
    bench_.platform.Choose(path);
    EXPECT_EQ(bench_.Click("Form60.Logo"), Events{"chooser to open"});
    EXPECT_EQ(bench_.Get("Form60.Logo"), "Logo -- Is ON");
    EXPECT_EQ(painter_.taken_logo, path);
    EXPECT_TRUE(bench_.session.Form60().Picture2.Present_Look().visible);
    Mouse("Form60.Picture2", Mouse_Action::Move, 7, 8); // not held
    Mouse("Form60.Picture2", Mouse_Action::Down, 1, 1);
    Mouse("Form60.Picture2", Mouse_Action::Move, 40, 50);
    Mouse("Form60.Picture2", Mouse_Action::Up, 40, 50);
    Mouse("Form60.Picture2", Mouse_Action::Move, 70, 80);
    EXPECT_EQ(Save(bench_.folder.File("a.bmp")), Events{"chooser to save"});
    ASSERT_TRUE(painter_.last_logo);
    EXPECT_EQ(painter_.last_logo->file, path);
    EXPECT_EQ(painter_.last_logo->left, 40);
    EXPECT_EQ(painter_.last_logo->top, 50);
    bench_.session.settings.logo.on =
        false; // as after a file that names a logo and switches it off
    EXPECT_EQ(Save(bench_.folder.File("a.bmp")), Events{"chooser to save"});
    EXPECT_FALSE(painter_.last_logo);
    bench_.session.settings.logo.on = true;
    EXPECT_EQ(bench_.Click("Form60.Logo"), Events{});
    EXPECT_EQ(bench_.session.settings.logo.file, "");
    EXPECT_EQ(bench_.Get("Form60.Logo"), "Logo -- Is OFF");
    EXPECT_EQ(Save(bench_.folder.File("a.bmp")), Events{"chooser to save"});
    EXPECT_FALSE(painter_.last_logo);
}

TEST_F(Graph_Screen_Test, Refuses_Logos_That_Are_No_Pictures) {
    const Events refused{"chooser to open", "plain box: No Logo File has been Seleted"};
    for (const std::optional<std::string>& path :
         {std::optional(bench_.folder.Write("words.bmp", "words")),
          std::optional(bench_.folder.Write("empty.jpg", "")),
          std::optional(bench_.folder.File("none.gif")), std::optional(bench_.folder.Path()),
          std::optional<std::string>()}) {
        bench_.platform.Choose(path);
        EXPECT_EQ(bench_.Click("Form60.Logo"), refused) << path.value_or("a cancel");
        EXPECT_FALSE(bench_.session.settings.logo.on);
        EXPECT_EQ(bench_.session.settings.logo.file, "");
    }
    painter_.fails = true; // its header is fine, what follows is not
    bench_.platform.Choose(Logo_File("cut.gif"));
    EXPECT_EQ(bench_.Click("Form60.Logo"), refused);
    EXPECT_FALSE(bench_.session.settings.logo.on);
}

TEST_F(Graph_Screen_Test, The_Name_Tells_The_Format) {
    bench_.Draw(0);
    for (const auto& [name, bytes] :
         {std::pair("a.png", "PNG"), std::pair("B.PNG", "PNG"), std::pair("a.Svg", "SVG"),
          std::pair("a.pdf", "PDF"), std::pair("a.bmp", "BMP"), std::pair("a", "BMP"),
          std::pair("a.jpg", "BMP"), std::pair("png", "BMP"), std::pair("a.png.old", "BMP")}) {
        EXPECT_EQ(Save(bench_.folder.File(name)), Events{"chooser to save"});
        EXPECT_EQ(bench_.folder.Read(name), bytes) << name;
    }
    EXPECT_EQ(painter_.steps, bench_.Steps().size());
}

TEST_F(Graph_Screen_Test, Tells_Of_Every_Save_That_Fails) {
    const Events failed{"chooser to save", not_saved};
    EXPECT_EQ(Save(std::nullopt), failed);
    EXPECT_EQ(Save(bench_.folder.File("no/such/folder.png")), failed);
    EXPECT_EQ(Save(bench_.folder.Path()), failed);
    bench_.folder.Write("a.png", "the last one");
    painter_.fails = true;
    EXPECT_EQ(Save(bench_.folder.File("a.png")), failed);
    bench_.session.painter = nullptr;
    EXPECT_EQ(Save(bench_.folder.File("a.png")), failed);
    EXPECT_EQ(bench_.folder.Read("a.png"), "the last one");
    EXPECT_EQ(bench_.folder.Names(), Events{"a.png"});
}

TEST_F(Graph_Screen_Test, A_Full_Disk_Leaves_The_Old_Picture_Whole) {
    const std::string path = bench_.folder.Write("a.png", "the last one");
    painter_.padding = 100000;
    EXPECT_TRUE(Holds_On_Full_Disk(4096, [&] {
        return Save(path) == Events{"chooser to save", not_saved};
    }));
    EXPECT_EQ(bench_.folder.Read("a.png"), "the last one");
    EXPECT_EQ(bench_.folder.Names(), Events{"a.png"});
}

/// Printers that note what they print.
struct Noting_Printers : Printers {
    [[nodiscard]] std::vector<std::string> Devices() const override { return devices; }

    void Print(const std::string& /*device*/, const Document& /*document*/) override {}

    void Print_Screen(const std::string& device, const Screen_Picture& picture) override {
        EXPECT_GT(picture.width, 0);
        EXPECT_GT(picture.height, 0);
        printed.push_back(picture.screen + " on " + device);
    }

    std::vector<std::string> devices{"Laser", "Plotter"};
    std::vector<std::string> printed;
};

TEST_F(Graph_Screen_Test, Prints_Itself_On_The_Default_Printer) {
    Noting_Printers printers;
    bench_.session.printers = &printers;
    EXPECT_EQ(bench_.Click("Form60.Command2"), Events{});
    EXPECT_EQ(printers.printed, Events{"Form60 on Laser"});
    const Events failed{"exclamation box: Printer error"};
    printers.devices.clear();
    EXPECT_EQ(bench_.Click("Form60.Command2"), failed);
    bench_.session.printers = nullptr;
    EXPECT_EQ(bench_.Click("Form60.Command2"), failed) << "and the program goes on";
}

} // namespace

} // namespace kestrum
