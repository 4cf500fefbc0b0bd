#include "output/text_report.h"

#include "base/text.h"
#include "core/field_handlers.h"
#include "output/report_columns.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "sheet/flow_calculation.h"

#include <array>

namespace kestrum {

namespace {

constexpr std::string_view notes =
    "Pressing the . key will cause this Page to be Written to a Disk File.\r\n\r\n"
    "              Please Press anyother key to exit this window.\r\n\r\n";
constexpr std::string_view test_name_indent = "              ";
constexpr std::string_view test_number_indent = "                 ";

/// A cell of the engine screen's block or of a sheet's head, with what stands behind it.
struct Head_Cell {
    std::string_view array;
    Padding pad;
    int width;
    std::string_view behind{};
};

constexpr auto sheet_head = std::to_array<Head_Cell>({
    {"Text101", Pad_Right, 15, " "},
    {"Text102", Pad_Left, 10},
    {"Text103", Pad_Right, 15, " "},
    {"Text104", Pad_Left, 10},
    {"Text105", Pad_Right, 15, " "},
    {"Text106", Pad_Left, 10},
    {"Text107", Pad_Right, 15, " "},
    {"Text108", Pad_Left, 8},
    {"Text109", Pad_Right, 8, " "},
    {"Text110", Pad_Left, 8, " "},
    {"Text111", Pad_Left, 8, " "},
    {"Text112", Pad_Left, 8, " "},
    {"Text113", Pad_Left, 8},
});

constexpr auto seat_head = std::to_array<Head_Cell>({
    {"Text201", Pad_Left, 11},
    {"Text202", Pad_Right, 8, "  "},
    {"Text203", Pad_Left, 11},
    {"Text204", Pad_Right, 8, " "},
});

struct Engine_Column {
    std::string_view array;
    int width;
};

constexpr auto engine_columns = std::to_array<Engine_Column>({
    {"Text101", 10},
    {"Text102", 17},
    {"Text103", 10},
    {"Text104", 10},
    {"Text105", 15},
    {"Text106", 15},
    {"Text107", 12},
    {"Text108", 10},
    {"Text109", 9},
    {"Text110", 8},
    {"Text111", 9},
});

/// Builds the text of one report.
class Report {
public:
    explicit Report(Session& session) : session_(session) {}

    [[nodiscard]] std::string Build() {
        const Report_Screen& choice = session_.Form70();
        text_ = notes;
        if (choice.Check3(0).Value() == 1) {
            Engine_Block();
        }
        for (int number = 1; number <= sheet_count; ++number) {
            if (choice.Check1(number - 1).Value() == 1) {
                Heading(number);
                Flow_Test(session_.Sheet(number));
            }
        }
        return std::move(text_);
    }

private:
    void End_Line() { text_ += cr_lf; }

    void Engine_Block() {
        const Engine_Screen& main = session_.Main();
        const Padding pad = Chosen_Padding(session_.Form70().Option1);
        text_.append(test_name_indent).append(main.Text33.Text());
        End_Line();
        End_Line();
        constexpr int last_row = 8;
        for (int row = 0; row <= last_row; ++row) {
            for (const Engine_Column& column : engine_columns) {
                pad(text_, column.width, main.Array(column.array)(row).Text());
            }
            End_Line();
        }
        End_Line();
        Comment(main.Text38);
    }

    void Comment(const Control& comment) {
        if (!comment.Text().empty()) {
            text_ += comment.Text();
            End_Line();
        }
    }

    void Heading(int number) {
        End_Line();
        if (number > 1) {
            End_Line();
        }
        text_.append(test_number_indent).append("Flow Test ");
        text_ += session_.numbers.Fmt_Whole(number);
        text_ += " Data";
        End_Line();
        End_Line();
    }

    void Flow_Test(Flow_Sheet& sheet) {
        Calc_Flow_Test(session_, sheet);
        if (!sheet.Text39.Text().empty()) {
            text_ += sheet.Text39.Text();
            End_Line();
            End_Line();
        }
        Head(sheet, sheet_head, 0, 11);
        Head(sheet, seat_head, 3, 5);
        End_Line();
        Table(sheet);
        constexpr int comments_box = 14;
        if (session_.Form70().Check2(comments_box).Value() == 1) {
            Comment(sheet.Text38);
        }
    }

    template <std::size_t count>
    void Head(const Flow_Sheet& sheet, const std::array<Head_Cell, count>& cells, int first_row,
              int last_row) {
        for (int row = first_row; row <= last_row; ++row) {
            for (const Head_Cell& cell : cells) {
                cell.pad(text_, cell.width, sheet.Array(cell.array)(row).Text());
                text_ += cell.behind;
            }
            End_Line();
        }
    }

    void Table(const Flow_Sheet& sheet) {
        Report_Table table(session_, sheet);
        constexpr int first_row = 12;
        for (int row = first_row; row <= last_lift_row; ++row) {
            // A lift that is no number, a blank one too, is not zero.
            if (row < first_test_row ||
                !Reads_As_Zero(session_.numbers, sheet.Text101(row).Text())) {
                table.Append_Row(text_, row);
                End_Line();
            }
        }
    }

    Session& session_;
    std::string text_;
};

/// A key of the keyboard types it, and no shortcut: of the control characters Backspace, Tab,
/// Enter and Esc alone.
bool Is_Typed(char32_t character) {
    constexpr std::u32string_view of_keys = U"\b\t\n\r\x1B";
    constexpr char32_t deletes = 127;
    return of_keys.find(character) != std::u32string_view::npos ||
           (character >= U' ' && character != deletes);
}

} // namespace

void Create_Text_Report(Session& session) {
    Report_Of(session).text = Report(session).Build();
    Control& viewer = session.Form70().Text38;
    viewer.Set_Text(Report_Of(session).text);
    viewer.Set_Visible(true);
    session.windows.Focus(viewer);
}

std::string Report_Page(const Session& session) {
    return Report_Of(session).text + std::string(cr_lf);
}

void Save_Report_Page(Session& session) {
    constexpr std::string_view filter =
        "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Printer Files (*.prt)|*.prt";
    constexpr int printer_files = 3;
    try {
        const std::string path = Chosen_File(session, Chooser_Mode::Save, filter, printer_files);
        Keep_File(session, path, Report_Page(session));
    } catch (const Run_Time_Error&) {
        session.Message("Problem - File Not Saved", Box_Icon::Exclamation);
    }
}

void Press_Key_On_Report(Session& session, char32_t character) {
    if (!Is_Typed(character)) {
        return;
    }
    if (character == U'.') { // whatever the decimal separator
        Save_Report_Page(session);
    }
    Control& viewer = session.Form70().Text38;
    viewer.Set_Visible(false);
    viewer.Set_Text("");
    Report_Of(session).text.clear();
}

void Tick_All_For_Report(Report_Screen& choice, bool ticked) {
    for (const Control_Array* const boxes : {&choice.Check1, &choice.Check2, &choice.Check3}) {
        for (int index = 0; index < boxes->Size(); ++index) {
            (*boxes)(index).Set_Value(ticked ? 1 : 0);
        }
    }
}

} // namespace kestrum
