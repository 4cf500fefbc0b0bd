#pragma once

#include "core/session.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrum {

/// Takes back what commands and typing have changed on the screens, step by step, and does it
/// again. Files stay as they are, and so does the graph's window, but for what was drawn on it by
/// hand: a graph is made anew by its button.
class Undo_History {
public:
    explicit Undo_History(Session& session) : session_(session) {}

    /// A command begins, or a line by hand on the graph.
    void Begin();
    /// It has ended, and is a step if it has changed anything that can be told from before. The
    /// name is in the user's words; without one the change belongs to the typing before it, as what
    /// the leaving of a field does.
    void End(const std::string& name);

    /// It has failed, and all is as it was.
    void Give_Up() { before_.reset(); }

    /// A field got its present text by typing; before that it stood as `before`. Typing goes on as
    /// one step until another command ends or the focus leaves.
    void Typed(const Control& field, const Control_State& before,
               const std::function<std::string()>& name);

    void Stop_Typing() { is_typing_ = false; }

    /// The pen has left the graph: what it drew is one step.
    void End_Stroke();

    /// Name of the step that would be taken back, or done again; nothing where there is none.
    [[nodiscard]] std::optional<std::string> Undo_Name() const;
    [[nodiscard]] std::optional<std::string> Redo_Name() const;

    /// Take the last step back, or do it again. Give false when there is none.
    bool Undo();
    bool Redo();

    static constexpr std::size_t most_steps = 200;
    /// The oldest steps go when all together hold more.
    static constexpr std::size_t most_bytes = std::size_t{8} << 20U;

private:
    struct Moment;

    /// One control as it stood before a step and behind it.
    struct Control_Change {
        std::size_t index = 0;
        Control_State before;
        Control_State after;
    };

    /// Controls of which the text alone has changed, packed: a switch of the units changes
    /// thousands, and a hundred steps must cost little.
    struct Packed_Texts {
        std::vector<std::uint16_t> indices;
        std::string before; // each text between its mark and a NUL
        std::string after;
    };

    struct Screen_Change {
        Screen_Id screen{};
        Packed_Texts texts{};
        std::vector<Control_Change> controls{};
        /// Whole states stand for a screen that the step has loaded or unloaded.
        std::optional<Screen_State> before{};
        std::optional<Screen_State> after{};
        bool is_work = true;
        /// Digests of the inputs that the results are of.
        std::uint64_t calculated_from = 0;
        std::uint64_t calculated_from_after = 0;
    };

    struct Variables {
        Numeric_Text numbers;
        Settings settings;
    };

    struct Step {
        std::string name;
        std::vector<Screen_Change> screens{};
        Variables before;
        Variables after;
        /// What was drawn by hand, and how much stood on the canvas before.
        std::vector<Draw_Operation> strokes{};
        std::size_t canvas_size = 0;
    };

    [[nodiscard]] Moment Present_Moment() const;
    [[nodiscard]] std::vector<Screen_Change> Changes_Since(const Moment& before,
                                                           const Moment& after) const;
    [[nodiscard]] std::optional<Screen_Change>
    Change_Of(const Screen& screen, const Screen_State& before, const Screen_State& after) const;
    void Keep(Step step);
    [[nodiscard]] static std::size_t Bytes_Of(const Step& step);
    void Look_At_Canvas(const Moment& before, const Variables& present);
    void Put(const Step& step, bool back);
    void Put(const Screen_Change& change, bool back);
    void Put(const Variables& variables);
    void Put_Strokes(const Step& step, bool back);

    Session& session_;
    std::shared_ptr<const Moment> before_;
    std::deque<Step> done_;
    std::vector<Step> undone_;
    /// The last step is typing that may go on.
    bool is_typing_ = false;
};

/// What a button or a menu entry does, in a word or two: "Calculate", "Load".
[[nodiscard]] std::string Words_Of_Command(const Control& control);

} // namespace kestrum
