#include "exchange/flow_series.h"

#include "base/text.h"
#include "exchange/lift_rows.h"
#include "records/records.h"

namespace kestrum {

namespace {

class Flow_Reader {
public:
    Flow_Reader(Session& session, Flow_Sheet& sheet, Flow_Layout layout, std::string_view content)
        : session_(session), sheet_(sheet), layout_(layout), lines_(content) {}

    [[nodiscard]] Flow_Reading Read(Flow_Points& points) {
        Pass_Preamble();
        const int intake_points = Count();
        const int exhaust_points = Has_Own_Counts() ? Count() : intake_points;
        const std::string_view line = Line();
        if (!line.starts_with("1 ")) {
            return Flow_Reading::Not_Of_This_Kind;
        }
        sheet_.Text102(3).Set_Text(Four_Places(line));
        const std::string_view pressure = Line();
        points.intake.pressure = Value_In(pressure);
        sheet_.Text108(7).Set_Text(Four_Places(pressure));
        Read_Points(points.intake, intake_points);
        sheet_.Text104(3).Set_Text(Four_Places(Line()));
        points.exhaust.pressure = Value_In(Line());
        Read_Points(points.exhaust, exhaust_points);
        sheet_.Text106(6).Set_Text(Has_Own_Counts() ? Line() : "1");
        sheet_.Text108(6).Set_Text(Has_Own_Counts() ? Line() : "1");
        return Flow_Reading::Done;
    }

private:
    /// Points and valves of the two sides, in lines of their own.
    [[nodiscard]] bool Has_Own_Counts() const {
        return layout_ == Flow_Layout::Dfw || layout_ == Flow_Layout::Dym;
    }

    std::string_view Line() {
        if (!lines_.Next()) {
            Fail(error::input_past_end);
        }
        Count_Record(session_.file.records_read);
        return lines_.Line();
    }

    /// The first line of a simulator's file comes again before each section; the flow test stands
    /// in a section of its own.
    void Pass_Preamble() {
        const std::string marker(Line());
        const int wanted = layout_ == Flow_Layout::Dyn ? 3 : layout_ == Flow_Layout::Dym ? 5 : 1;
        for (int seen = 1; seen < wanted && lines_.Next();) {
            Count_Record(session_.file.records_read);
            seen += lines_.Line() == marker ? 1 : 0;
        }
        static_cast<void>(Line());
        static_cast<void>(Line());
    }

    int Count() { return session_.numbers.Read_Integer_Either_Mark(Line()); }

    /// The number behind the leading "1" of a line.
    Real Value_In(std::string_view line) {
        return session_.numbers.Read_Either_Mark(Middle(line, 2));
    }

    std::string Four_Places(std::string_view line) {
        return session_.numbers.Fmt_Four_Place(Value_In(line));
    }

    void Read_Values(std::array<Real, Flow_Series::places>& values, int count) {
        for (int index = 0; index < count; ++index) {
            const Real value = session_.numbers.Read(Four_Places(Line()));
            if (static_cast<std::size_t>(index) >= values.size()) {
                Fail(error::subscript_out_of_range);
            }
            values[static_cast<std::size_t>(index)] = value;
        }
    }

    void Read_Points(Flow_Series& series, int count) {
        Read_Values(series.lift, count);
        Read_Values(series.flow, count);
    }

    Session& session_;
    Flow_Sheet& sheet_;
    Flow_Layout layout_;
    Line_Reader lines_;
};

} // namespace

Flow_Layout Flow_Layout_Of(std::string_view path) {
    const std::string ending = Ending_Of(path);
    if (ending == "dfw") {
        return Flow_Layout::Dfw;
    }
    if (ending == "dyn") {
        return Flow_Layout::Dyn;
    }
    return ending == "dym" ? Flow_Layout::Dym : Flow_Layout::Flw;
}

Flow_Reading Read_Flow_Points(Session& session, Flow_Sheet& sheet, Flow_Layout layout,
                              std::string_view content, Flow_Points& points) {
    session.file.records_read = 0;
    return Flow_Reader(session, sheet, layout, content).Read(points);
}

} // namespace kestrum
