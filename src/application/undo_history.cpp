#include "application/undo_history.h"

#include "files/logo.h"
#include "graph/graph_state.h"
#include "platform/file_store.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kestrum {

namespace {

/// Panels that open, pages that turn and what the mouse shows in passing make no step of their own.
bool Is_Work(const Control& control, const Control_State& before, const Control_State& after) {
    Look look = before.look;
    look.visible = after.look.visible;
    look.enabled = after.look.enabled;
    return control.Entry().array != "Label7" &&
           (before.text != after.text || before.is_left != after.is_left ||
            before.value != after.value || look != after.look);
}

bool Differs_In_Text_Alone(const Control_State& before, const Control_State& after) {
    Control_State other = before;
    other.text = after.text;
    other.is_left = after.is_left;
    return other == after && before.text.find('\0') == std::string::npos &&
           after.text.find('\0') == std::string::npos;
}

/// The text with its mark before it and a NUL behind it.
std::string Packed(const Control_State& state) {
    return (state.is_left ? "!" : " ") + state.text + '\0';
}

/// The pen and the filter are tools that the user holds, not work.
Settings With_Tools_Of(Settings settings, const Settings& present) {
    settings.draw_line_color = present.draw_line_color;
    settings.draw_line_width = present.draw_line_width;
    settings.flow_filter_index = present.flow_filter_index;
    settings.plain_pointer = present.plain_pointer;
    return settings;
}

bool Reads_A_File(std::string_view words) {
    return words == "Load" || words == "Import" || words == "Read";
}

/// A step that has read a file is named after it.
std::string Step_Name(const Session& session, const std::string& words) {
    if (words.empty()) {
        return "Change of a Field";
    }
    const std::string& path = session.file.path;
    return Reads_A_File(words) ? words + " " + Bare_Name(path) : words;
}

} // namespace

std::string Words_Of_Command(const Control& control) {
    std::string words = control.Text();
    std::erase(words, '&');
    std::ranges::replace(words, '\r', ' ');
    std::erase(words, '\n');
    const std::string first = words.substr(0, words.find(' '));
    const bool goes_on = words.starts_with(first + " /"); // "Load / Done" closes a panel
    return Reads_A_File(first) && !goes_on ? first : words;
}

/// What can be taken back, at one moment. It costs little: states that have not changed between
/// two moments are shared.
struct Undo_History::Moment {
    std::vector<std::pair<Screen_Id, Screen_State>> screens;
    Variables variables;
    std::size_t canvas_size = 0;
    double scale = 1;

    [[nodiscard]] const Screen_State* State_Of(Screen_Id screen) const {
        const auto found =
            std::ranges::find(screens, screen, &std::pair<Screen_Id, Screen_State>::first);
        return found == screens.end() ? nullptr : &found->second;
    }
};

Undo_History::Moment Undo_History::Present_Moment() const {
    Moment moment{.screens = {},
                  .variables = {session_.numbers, session_.settings},
                  .canvas_size = Graph_Of(session_).canvas.Operations().size(),
                  .scale = session_.display.scale_x};
    session_.For_Each_Loaded([&moment](Screen& screen) {
        if (screen.Kind() != Screen_Kind::Graph) {
            moment.screens.emplace_back(screen.Id(), screen.Present_State());
        }
    });
    return moment;
}

std::optional<Undo_History::Screen_Change>
Undo_History::Change_Of(const Screen& screen, const Screen_State& before,
                        const Screen_State& after) const {
    const bool is_calculated = before.calculated_from != after.calculated_from;
    if (before.controls == after.controls && !is_calculated) {
        return std::nullopt;
    }
    Screen_Change change{.screen = screen.Id(),
                         .is_work = is_calculated,
                         .calculated_from = before.calculated_from,
                         .calculated_from_after = after.calculated_from};
    const auto controls = screen.Controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const Control_State& old_state = (*before.controls)[index];
        const Control_State& new_state = (*after.controls)[index];
        if (old_state == new_state) {
            continue;
        }
        change.is_work = change.is_work || Is_Work(controls[index], old_state, new_state);
        if (Differs_In_Text_Alone(old_state, new_state)) {
            change.texts.indices.push_back(static_cast<std::uint16_t>(index));
            change.texts.before += Packed(old_state);
            change.texts.after += Packed(new_state);
        } else {
            change.controls.push_back({index, old_state, new_state});
        }
    }
    return change;
}

std::vector<Undo_History::Screen_Change> Undo_History::Changes_Since(const Moment& before,
                                                                     const Moment& after) const {
    std::vector<Screen_Change> changes;
    for (const auto& [id, state] : before.screens) {
        const Screen_State* const now = after.State_Of(id);
        if (now == nullptr) {
            changes.push_back({.screen = id, .before = state});
        } else if (auto change = Change_Of(session_.The(id), state, *now)) {
            changes.push_back(std::move(*change));
        }
    }
    for (const auto& [id, state] : after.screens) {
        if (before.State_Of(id) == nullptr) {
            changes.push_back({.screen = id, .after = state});
        }
    }
    return changes;
}

void Undo_History::Begin() {
    before_ = std::make_shared<const Moment>(Present_Moment());
}

void Undo_History::End(const std::string& name) {
    const auto before = std::exchange(before_, nullptr);
    if (!before) {
        return;
    }
    const Moment after = Present_Moment();
    if (after.scale != before->scale) { // sizes from before the stretch would not fit any more
        done_.clear();
        undone_.clear();
        is_typing_ = false;
        return;
    }
    std::vector<Screen_Change> changes = Changes_Since(*before, after);
    const bool has_work = std::ranges::any_of(changes, &Screen_Change::is_work) ||
                          With_Tools_Of(before->variables.settings, after.variables.settings) !=
                              after.variables.settings;
    if (has_work && name.empty() && is_typing_) {
        std::ranges::move(changes, std::back_inserter(done_.back().screens));
        done_.back().after = after.variables;
    } else if (has_work) {
        Keep({.name = Step_Name(session_, name),
              .screens = std::move(changes),
              .before = before->variables,
              .after = after.variables});
    }
    is_typing_ = false;
    Look_At_Canvas(*before, after.variables);
}

/// A line by hand begins a step; behind a new graph the old lines are gone for good.
void Undo_History::Look_At_Canvas(const Moment& before, const Variables& present) {
    const auto steps = Graph_Of(session_).canvas.Operations();
    if (steps.size() == before.canvas_size) {
        return;
    }
    if (steps.size() > before.canvas_size &&
        std::ranges::all_of(steps.subspan(before.canvas_size), &Draw_Operation::by_hand)) {
        Keep({.name = "Line on the Graph", .before = present, .after = present});
        done_.back().canvas_size = before.canvas_size;
        End_Stroke();
        return;
    }
    const auto is_stroke = [](const Step& step) { return !step.strokes.empty(); };
    std::erase_if(done_, is_stroke);
    std::erase_if(undone_, is_stroke);
}

void Undo_History::End_Stroke() {
    const auto steps = Graph_Of(session_).canvas.Operations();
    if (!done_.empty() && done_.back().canvas_size > 0 && steps.size() > done_.back().canvas_size) {
        const auto drawn = steps.subspan(done_.back().canvas_size);
        done_.back().strokes.assign(drawn.begin(), drawn.end());
    }
}

void Undo_History::Typed(const Control& field, const Control_State& before,
                         const std::function<std::string()>& name) {
    const Control_State& after = field.Present_State();
    const auto controls = field.Owner().Controls();
    const auto index = static_cast<std::size_t>(&field - controls.data());
    if (is_typing_) {
        Screen_Change& last = done_.back().screens.back();
        if (last.screen == field.Owner().Id() && last.controls.back().index == index) {
            last.controls.back().after = after;
            return;
        }
    }
    if (before == after) {
        return;
    }
    const Variables present{session_.numbers, session_.settings};
    Keep({.name = name(),
          .screens = {{.screen = field.Owner().Id(),
                       .controls = {{index, before, after}},
                       .calculated_from = field.Owner().Calculated_From(),
                       .calculated_from_after = field.Owner().Calculated_From()}},
          .before = present,
          .after = present});
    is_typing_ = true;
}

void Undo_History::Keep(Step step) {
    undone_.clear();
    done_.push_back(std::move(step));
    std::size_t bytes = 0;
    const auto too_old =
        std::ranges::find_if(done_.rbegin(), done_.rend(), [&bytes](const Step& one) {
            bytes += Bytes_Of(one);
            return bytes > most_bytes;
        });
    const auto kept = static_cast<std::size_t>(too_old - done_.rbegin());
    while (done_.size() > std::clamp<std::size_t>(kept, 1, most_steps)) {
        done_.pop_front();
    }
}

/// About what a step holds.
std::size_t Undo_History::Bytes_Of(const Step& step) {
    std::size_t bytes = sizeof(Step) + step.strokes.size() * sizeof(Draw_Operation);
    for (const Screen_Change& change : step.screens) {
        bytes += sizeof(Screen_Change) + change.texts.before.size() + change.texts.after.size() +
                 change.texts.indices.size() * sizeof(std::uint16_t);
        for (const Control_Change& control : change.controls) {
            bytes +=
                sizeof(Control_Change) + control.before.text.size() + control.after.text.size();
        }
        for (const auto* const whole : {&change.before, &change.after}) {
            bytes += *whole ? (*whole)->controls->size() * sizeof(Control_State) : 0;
        }
    }
    return bytes;
}

std::optional<std::string> Undo_History::Undo_Name() const {
    return done_.empty() ? std::nullopt : std::optional(done_.back().name);
}

std::optional<std::string> Undo_History::Redo_Name() const {
    return undone_.empty() ? std::nullopt : std::optional(undone_.back().name);
}

bool Undo_History::Undo() {
    is_typing_ = false;
    if (done_.empty()) {
        return false;
    }
    Step step = std::move(done_.back());
    done_.pop_back();
    Put(step, true);
    undone_.push_back(std::move(step));
    return true;
}

bool Undo_History::Redo() {
    is_typing_ = false;
    if (undone_.empty()) {
        return false;
    }
    Step step = std::move(undone_.back());
    undone_.pop_back();
    Put(step, false);
    done_.push_back(std::move(step));
    return true;
}

void Undo_History::Put(const Step& step, bool back) {
    if (!step.strokes.empty()) {
        return Put_Strokes(step, back);
    }
    std::vector<const Screen_Change*> changes;
    for (const Screen_Change& change : step.screens) {
        changes.push_back(&change);
    }
    if (back) {
        std::ranges::reverse(changes); // a later change of the step may build on an earlier one
    }
    for (const Screen_Change* const change : changes) {
        Put(*change, back);
    }
    Put(back ? step.before : step.after);
}

void Undo_History::Put(const Screen_Change& change, bool back) {
    const auto& whole = back ? change.before : change.after;
    if (change.before || change.after) {
        if (!whole) {
            session_.Unload(session_.The(change.screen));
            return;
        }
        Screen& screen = session_.The(change.screen);
        screen.Set_State(*whole);
        if (whole->visible) {
            session_.Show(screen);
        }
        return;
    }
    Screen& screen = session_.The(change.screen);
    screen.Set_Calculated_From(back ? change.calculated_from : change.calculated_from_after);
    const auto controls = screen.Controls();
    std::string_view texts = back ? change.texts.before : change.texts.after;
    for (const std::size_t index : change.texts.indices) {
        const std::size_t length = texts.find('\0');
        controls[index].Set_Text(texts.substr(1, length - 1));
        controls[index].Set_Left(texts.front() == '!');
        texts.remove_prefix(length + 1);
    }
    for (const Control_Change& control : change.controls) {
        Control_State state = back ? control.before : control.after;
        if (controls[control.index].Entry().kind == Control_Kind::Frame) {
            state.look.visible = controls[control.index].Present_Look().visible; // no panel opens
        }
        controls[control.index].Set_State(state);
    }
}

void Undo_History::Put(const Variables& variables) {
    session_.numbers = variables.numbers;
    const Settings settings = With_Tools_Of(variables.settings, session_.settings);
    const bool other_logo = settings.logo != session_.settings.logo;
    session_.settings = settings;
    if (other_logo) {
        Show_Logo(session_);
    }
}

/// Lines lie over what was drawn before them; on another graph they would tell nothing.
void Undo_History::Put_Strokes(const Step& step, bool back) {
    Drawing& canvas = Graph_Of(session_).canvas;
    const std::size_t present = canvas.Operations().size();
    if (back && present == step.canvas_size + step.strokes.size()) {
        canvas.Take_Off(step.strokes.size());
    } else if (!back && present == step.canvas_size) {
        for (const Draw_Operation& stroke : step.strokes) {
            canvas.Add(stroke);
        }
    }
    session_.Form60().Picture1.Repaint();
}

} // namespace kestrum
