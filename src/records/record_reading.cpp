#include "records/record_reading.h"

#include "base/text.h"

namespace kestrum {

namespace {

constexpr std::string_view comment_key = "comments =";

} // namespace

bool Goes_On_After(Session& session, std::string_view line, const Reading_Words& words) {
    const Box_Answer answer =
        session.Message(Box{.text = "Record not Handled -->" + std::string(line),
                            .title = std::string(words.not_handled_title),
                            .buttons = Box_Buttons::Ok_Cancel});
    if (answer != Box_Answer::Cancel) {
        return true;
    }
    session.Message(words.stopped, words.stopped_icon);
    return false;
}

bool Read_Records(Session& session, Line_Reader& lines, Control& comment,
                  const Reading_Words& words, const std::function<bool(const Record&)>& put) {
    session.file.records_read = 0;
    Record record;
    bool in_comment = false;
    while (lines.Next()) {
        Count_Record(session.file.records_read);
        if (in_comment) {
            comment.Append_Text(cr_lf);
            comment.Append_Text(lines.Line());
            continue;
        }
        record.Take(lines.Line());
        if (record.Key(comment_key.size()) == comment_key) {
            in_comment = true;
            // The blank behind the "=" comes along, and each round trip adds one; wanted.
            comment.Set_Text(Middle(record.Line(), comment_key.size() + 1));
        } else if (!put(record) && !Goes_On_After(session, record.Line(), words)) {
            return false;
        }
    }
    return true;
}

void Restore_Records(Session& session, std::string_view bytes, Control& comment,
                     const std::function<bool(const Record&)>& put) {
    const std::string content = Decoded(bytes);
    Line_Reader lines(content);
    const auto put_or_pass = [&put](const Record& record) {
        static_cast<void>(put(record));
        return true;
    };
    Read_Records(session, lines, comment, {}, put_or_pass);
    if (comment.Text().starts_with(' ')) {
        comment.Set_Text(std::string(comment.Text(), 1));
    }
}

} // namespace kestrum
