#include "screens/control.h"

#include "screens/screen.h"

#include <charconv>

namespace kestrum {

namespace {

/// The text of one member of a table line: its own between the bars, or the one for all.
std::string_view Stored_Text(const Control_Entry& entry, int index) {
    if (entry.first == entry.last || entry.text.find('|') == std::string_view::npos) {
        return entry.text;
    }
    std::string_view rest = entry.text;
    for (int skipped = entry.first; skipped < index; ++skipped) {
        rest.remove_prefix(rest.find('|') + 1);
    }
    return rest.substr(0, rest.find('|'));
}

constexpr Colour face_colour = 0xF0F0F0;

Look Starting_Look(const Control_Entry& entry) {
    Look look;
    look.visible = !entry.starts_hidden;
    look.side = entry.side;
    if (entry.kind != Control_Kind::Text_Box) {
        look.back_colour = entry.back_colour < 0 ? face_colour : entry.back_colour;
        look.tab_stop = entry.kind != Control_Kind::Label && entry.kind != Control_Kind::Frame &&
                        entry.kind != Control_Kind::Picture &&
                        entry.kind != Control_Kind::Menu_Entry;
        return look;
    }
    look.locked = entry.use != Cell_Use::Input;
    look.tab_stop = entry.use == Cell_Use::Input;
    if (entry.use == Cell_Use::Result) {
        look.back_colour = result_back;
        look.text_colour = result_text;
    }
    return look;
}

} // namespace

Control::Control(Screen& screen, const Control_Entry& entry, int index)
    : screen_(&screen),
      entry_(&entry),
      index_(index),
      state_{.text = std::string(Stored_Text(entry, index)),
             .value = entry.start_value,
             .look = Starting_Look(entry)} {}

std::string Control::Address() const {
    std::string address = screen_->Name();
    address += '.';
    address += entry_->array;
    if (index_ != no_index) {
        constexpr std::size_t longest = 12;
        char digits[longest]; // NOLINT(*-avoid-c-arrays)
        const auto end = std::to_chars(digits, digits + longest, index_).ptr;
        address += '(';
        address.append(digits, end);
        address += ')';
    }
    return address;
}

void Control::Set_Text(std::string_view new_text) {
    Set_Left(false);
    if (state_.text != new_text) {
        state_.text = new_text;
        Mark_Input_Changed();
    }
}

void Control::Set_Left(bool left) {
    if (state_.is_left != left) {
        state_.is_left = left;
        screen_->left_count_ += left ? 1 : -1;
        Mark_Changed();
    }
}

void Control::Append_Text(std::string_view more) {
    state_.text += more;
    Mark_Input_Changed();
}

void Control::Set_Value(int new_value) {
    if (state_.value != new_value) {
        state_.value = new_value;
        Mark_Input_Changed();
    }
}

void Control::Set_Look(const Look& new_look) {
    if (state_.look != new_look) {
        state_.look = new_look;
        Mark_Input_Changed();
    }
}

void Control::Set_Visible(bool visible) {
    Look changed_look = state_.look;
    changed_look.visible = visible;
    Set_Look(changed_look);
}

void Control::Set_Enabled(bool enabled) {
    Look changed_look = state_.look;
    changed_look.enabled = enabled;
    Set_Look(changed_look);
}

void Control::Move_To(const Position& position) {
    if (state_.position != position) {
        state_.position = position;
        Mark_Changed();
    }
}

void Control::Set_Extent(const Extent& extent) {
    if (state_.extent != extent) {
        state_.extent = extent;
        Mark_Changed();
    }
}

void Control::Set_Items(std::vector<std::string> new_items) {
    state_.items = std::move(new_items);
    Mark_Changed();
}

void Control::Set_State(const Control_State& new_state) {
    if (state_ != new_state) {
        Set_Left(new_state.is_left);
        state_ = new_state;
        Mark_Input_Changed();
    }
}

/// Brings its share in the digests of the screen up to date.
void Control::Take_Share() {
    const Input_Digests before = share_;
    share_ = Share_Of(*this);
    share_is_old_ = false;
    screen_->digests_.figures += share_.figures - before.figures;
    screen_->digests_.inputs += share_.inputs - before.inputs;
}

/// The text, the value or whether it is entered has changed. A long text grows by many small
/// pieces, so it is not digested before somebody asks.
void Control::Mark_Input_Changed() {
    const bool is_result = share_.inputs == 0 && Is_Text_Box() && state_.look.locked;
    if (!share_is_old_ && !is_result) { // by far the most changes are of results
        share_is_old_ = true;
        screen_->old_shares_.push_back(this);
    }
    Mark_Changed();
}

void Control::Mark_Changed() {
    screen_->kept_states_.reset();
    if (!changed_) {
        changed_ = true;
        screen_->changes_.push_back(this);
    }
}

} // namespace kestrum
