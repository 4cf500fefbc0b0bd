#pragma once

#include "screens/control.h"
#include "screens/control_entry.h"
#include "screens/screen_id.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// The members of one name on one screen, with gaps: `sheet.Text104(6)`.
class Control_Array {
public:
    /// The member with this index. Raises 340 where there is none.
    [[nodiscard]] Control& operator()(int index) const {
        if (index < 0 || static_cast<std::size_t>(index) >= members_.size() ||
            members_[static_cast<std::size_t>(index)] == nullptr) {
            Refuse(index);
        }
        return *members_[static_cast<std::size_t>(index)];
    }

    [[nodiscard]] bool Has(int index) const {
        return index >= 0 && static_cast<std::size_t>(index) < members_.size() &&
               members_[static_cast<std::size_t>(index)] != nullptr;
    }

    /// One more than the highest index.
    [[nodiscard]] int Size() const { return static_cast<int>(members_.size()); }

private:
    friend class Screen;
    [[noreturn]] static void Refuse(int index);

    std::vector<Control*> members_;
};

/// How much larger a screen stands on its display than it was designed.
struct Screen_Scale {
    double x = 1;
    double y = 1;
    double font = 1;

    bool operator==(const Screen_Scale&) const = default;
};

/// All of a screen that can change. States of one screen share what has not changed between them.
struct Screen_State {
    std::string caption;
    bool visible = false;
    bool plain_pointer = false;
    Position place{};
    Screen_Scale scale{};
    std::uint64_t calculated_from = 0;
    std::uint64_t saved_as = 0;
    /// In table order.
    std::shared_ptr<const std::vector<Control_State>> controls;
};

/// A window of the system: named controls in the order of its table, and nothing that they do.
class Screen {
public:
    Screen(Screen_Id id, std::span<const Control_Entry> table);
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    [[nodiscard]] Screen_Id Id() const { return id_; }

    [[nodiscard]] Screen_Kind Kind() const { return id_.kind; }

    [[nodiscard]] const std::string& Name() const { return name_; }

    std::string caption;
    bool visible = false;
    /// Left and top on the display, in twips.
    Position place;
    /// Of its size and of all places and sizes on it. The sizes of its fonts hold their factor.
    Screen_Scale scale;
    /// Whether the mouse shows as the plain arrow everywhere on the screen.
    bool plain_pointer = false;

    /// Controls in table order.
    [[nodiscard]] std::span<Control> Controls() { return controls_; }

    [[nodiscard]] std::span<const Control> Controls() const { return controls_; }

    /// A control by name and index, or null. One without an index also answers to index 0.
    [[nodiscard]] Control* Find(std::string_view array, std::optional<int> index);
    [[nodiscard]] bool Has_Array(std::string_view array) const;

    /// Hands out and forgets the controls that have changed since the last call, for a face that
    /// paints them.
    [[nodiscard]] std::vector<Control*> Take_Changes();

    [[nodiscard]] Screen_State Present_State();
    /// Takes over what a screen of the same kind held, but for `visible`: a screen is shown and
    /// hidden by the session.
    void Set_State(const Screen_State& state);

    /// The results are those of the present inputs, wherever these came from, until one changes.
    void Note_Calculation();
    [[nodiscard]] bool Results_Are_Old();

    /// Digest of the inputs that the results were worked out from.
    [[nodiscard]] std::uint64_t Calculated_From() const { return calculated_from_; }

    void Set_Calculated_From(std::uint64_t digest) { calculated_from_ = digest; }

    /// Other screens hold other figures than those that the results were taken from.
    void Set_Sources_Changed(bool changed) { sources_changed_ = changed; }

    /// The present inputs stand in a file, or are those that the screen begins with.
    void Note_Saved();
    [[nodiscard]] bool Is_Unsaved();

    /// A control array by its name. A name that the table lacks is a fault of the program.
    [[nodiscard]] const Control_Array& Array(std::string_view array_name) const;

protected:
    [[nodiscard]] Control& The(std::string_view control_name) const;

private:
    friend class Control;

    [[nodiscard]] const Input_Digests& Present_Digests();

    Screen_Id id_;
    std::string name_;
    std::vector<Control> controls_;
    std::map<std::string_view, Control_Array, std::less<>> arrays_;
    std::map<std::string_view, Control*, std::less<>> lone_controls_;
    std::vector<Control*> changes_;
    /// The controls as they stand, if they have been asked for since the last change.
    std::shared_ptr<const std::vector<Control_State>> kept_states_;
    /// How many controls are older than the last calculation or file.
    int left_count_ = 0;
    // Of the inputs as they stand, as the results follow from them, and as a file has them.
    Input_Digests digests_;
    /// Controls that have changed since `digests_` were brought up to date.
    std::vector<Control*> old_shares_;
    std::uint64_t calculated_from_ = 0;
    std::uint64_t saved_as_ = 0;
    bool sources_changed_ = false;
};

} // namespace kestrum
