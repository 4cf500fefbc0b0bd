#include "files/company_file.h"

#include "base/text.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "records/records.h"

#include <array>

namespace kestrum {

namespace {

// Their first pairs are broken; they have always been so.
constexpr std::string_view load_filter =
    "Text Files (All Files (*.*)|*.*|Company Name Data Files (*.dcn)|*.dcn";
constexpr std::string_view save_filter =
    "Text Files (All Files (*.*)|*.*|Customer Data Files (*.dcn)|*.dcn";
constexpr int company_files = 2;

struct Company_Line {
    std::string_view key;
    Control& field;
};

std::array<Company_Line, 5> Lines_Of(Engine_Screen& main) {
    return {{{"Company Name", main.Text94},
             {"Company Address", main.Text95},
             {"Company City", main.Text96},
             {"Company Phone", main.Text97},
             {"Company WebSite", main.Text98}}};
}

/// Puts a line into its field; false when no key fits. Keys are read with regard to case and with
/// the blank at their end.
bool Put_Line(Session& session, std::string_view line) {
    for (const Company_Line& company : Lines_Of(session.Main())) {
        const std::string key = std::string(company.key) + " = ";
        if (line.starts_with(key)) {
            company.field.Set_Text(line.substr(key.size()));
            return true;
        }
    }
    return false;
}

void Read_Lines(Session& session, std::string_view content) {
    Line_Reader lines(content);
    session.file.records_read = 0;
    while (lines.Next()) {
        Count_Record(session.file.records_read);
        if (!Put_Line(session, lines.Line())) {
            session.Message("Bad or Invalid Record Read #" +
                            session.numbers.Plain(session.file.records_read) + " ->>> " +
                            std::string(lines.Line()));
        }
    }
}

} // namespace

bool Read_Company_File(Session& session, const std::string& path) {
    session.file.path = path;
    std::string bytes;
    try {
        bytes = Read_Whole_File(path);
    } catch (const Run_Time_Error&) {
        session.Message("Company Name Data File has Not been Loaded");
        return false;
    }
    Read_Lines(session, Decoded(bytes));
    return true;
}

void Load_Company_File(Session& session) {
    std::string path;
    try {
        path = Chosen_File(session, Chooser_Mode::Open, load_filter, company_files);
    } catch (const Run_Time_Error&) {
        session.Message("Company Name Data File has Not been Loaded");
        return;
    }
    static_cast<void>(Read_Company_File(session, path));
}

void Save_Company_File(Session& session) {
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Save, save_filter, company_files);
        Record_Writer writer(session.file.records_written);
        for (const Company_Line& line : Lines_Of(session.Main())) {
            writer.Write_Line(line.key, line.field.Text());
        }
        Keep_File(session, session.file.path, writer.Text());
    } catch (const Run_Time_Error&) {
        session.Message("Company Information Data File has NOT been Saved");
    }
}

} // namespace kestrum
