#include "screens/screen.h"

#include "base/run_time_error.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kestrum {

namespace {

std::size_t Member_Count(const Control_Entry& entry) {
    return static_cast<std::size_t>(entry.last) - static_cast<std::size_t>(entry.first) + 1;
}

} // namespace

void Control_Array::Refuse(int index) {
    Fail_No_Element(index);
}

Screen::Screen(Screen_Id id, std::span<const Control_Entry> table) : id_(id), name_(Name_Of(id)) {
    std::size_t count = 0;
    for (const Control_Entry& entry : table) {
        count += Member_Count(entry);
    }
    controls_.reserve(count); // the arrays point into it
    for (const Control_Entry& entry : table) {
        for (int index = entry.first; index <= entry.last; ++index) {
            Control& control = controls_.emplace_back(*this, entry, index);
            if (index == no_index) {
                lone_controls_.emplace(entry.array, &control);
                continue;
            }
            auto& members = arrays_[entry.array].members_;
            members.resize(std::max(members.size(), static_cast<std::size_t>(index) + 1));
            members[static_cast<std::size_t>(index)] = &control;
        }
    }
    for (Control& control : controls_) {
        control.Take_Share();
    }
    Note_Calculation();
    Note_Saved();
}

Control* Screen::Find(std::string_view array, std::optional<int> index) {
    const auto lone = lone_controls_.find(array);
    if (lone != lone_controls_.end()) {
        return index.value_or(0) == 0 ? lone->second : nullptr;
    }
    const auto found = arrays_.find(array);
    const bool there = found != arrays_.end() && index && found->second.Has(*index);
    return there ? &found->second(*index) : nullptr;
}

bool Screen::Has_Array(std::string_view array) const {
    return arrays_.contains(array);
}

std::vector<Control*> Screen::Take_Changes() {
    for (Control* const control : changes_) {
        control->changed_ = false;
    }
    return std::exchange(changes_, {});
}

Screen_State Screen::Present_State() {
    if (!kept_states_) {
        std::vector<Control_State> states;
        states.reserve(controls_.size());
        for (const Control& control : controls_) {
            states.push_back(control.Present_State());
        }
        kept_states_ = std::make_shared<const std::vector<Control_State>>(std::move(states));
    }
    return {.caption = caption,
            .visible = visible,
            .plain_pointer = plain_pointer,
            .place = place,
            .scale = scale,
            .calculated_from = calculated_from_,
            .saved_as = saved_as_,
            .controls = kept_states_};
}

void Screen::Set_State(const Screen_State& state) {
    caption = state.caption;
    plain_pointer = state.plain_pointer;
    place = state.place;
    scale = state.scale;
    calculated_from_ = state.calculated_from;
    saved_as_ = state.saved_as;
    if (state.controls == kept_states_) {
        return; // nothing has changed since
    }
    for (std::size_t index = 0; index < controls_.size(); ++index) {
        controls_[index].Set_State((*state.controls)[index]);
    }
    kept_states_ = state.controls;
}

const Input_Digests& Screen::Present_Digests() {
    for (Control* const control : old_shares_) {
        control->Take_Share();
    }
    old_shares_.clear();
    return digests_;
}

void Screen::Note_Calculation() {
    for (auto control = controls_.begin(); left_count_ > 0; ++control) {
        control->Set_Left(false);
    }
    calculated_from_ = Present_Digests().figures;
    sources_changed_ = false;
}

bool Screen::Results_Are_Old() {
    return sources_changed_ || calculated_from_ != Present_Digests().figures;
}

void Screen::Note_Saved() {
    saved_as_ = Present_Digests().inputs;
}

bool Screen::Is_Unsaved() {
    return saved_as_ != Present_Digests().inputs;
}

const Control_Array& Screen::Array(std::string_view array_name) const {
    const auto found = arrays_.find(array_name);
    if (found == arrays_.end()) {
        throw std::logic_error(name_ + " has no array " + std::string(array_name));
    }
    return found->second;
}

Control& Screen::The(std::string_view control_name) const {
    const auto found = lone_controls_.find(control_name);
    if (found == lone_controls_.end()) {
        throw std::logic_error(name_ + " has no control " + std::string(control_name));
    }
    return *found->second;
}

} // namespace kestrum
