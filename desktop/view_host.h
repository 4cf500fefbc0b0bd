#pragma once

#include "core/field_handlers.h"
#include "drawing/drawing.h"
#include "drawing/painter.h"
#include "output/graph_mouse.h"
#include "screens/control.h"

#include <QFont>
#include <QString>

#include <optional>
#include <string>

namespace kestrum::desktop {

class Control_View;

enum class Direction { Up, Down, Left, Right };

/// What the views of the controls tell their window of the user, and ask it.
struct View_Host {
    View_Host() = default;
    View_Host(const View_Host&) = delete;
    View_Host& operator=(const View_Host&) = delete;
    virtual ~View_Host() = default;

    /// Words of the trade for a field, with the lift of its row as it is now.
    [[nodiscard]] virtual QString Words_Of(const Control& field) const = 0;
    /// What separates the decimals of a number.
    [[nodiscard]] virtual QChar Decimal_Mark() const = 0;

    virtual void Clicked(Control& control) = 0;
    virtual void Picked(Control& combo, const std::string& text) = 0;
    virtual void Typed(Control& field, const std::string& text) = 0;
    /// Whether the field's filter lets a character pass. One that it refuses is told.
    virtual bool Passes(const Control& field, char32_t character) = 0;
    /// What of a pasted text goes into a field of which `rest` stays. Nothing when it is refused,
    /// which is told.
    virtual std::optional<std::u32string> Piece_Of(const Control& field, const std::string& rest,
                                                   const std::string& pasted) = 0;
    /// Lets a view's cell and its neighbours take the clipboard; false when that holds one piece,
    /// which is for the cell alone.
    virtual bool Paste_Cells(Control_View& view) = 0;
    /// Beeps and says why.
    virtual void Refuse(const std::string& words) = 0;
    /// A key that yields a character, on a control that takes raw keys.
    virtual void Raw_Key(const Control& control, char32_t character) = 0;
    virtual void Focus_Came(Control_View& view, Qt::FocusReason reason) = 0;
    virtual void Focus_Went() = 0;
    virtual void Mouse_Down(bool down) = 0;
    /// The mouse on a picture, or on the logo that lies over it, in the picture's own units; the
    /// place on a logo counts from its corner.
    virtual void Mouse_On(Control& picture, bool on_logo, Mouse_Action action, double x,
                          double y) = 0;
    /// What stands on the graph's canvas, and the logo over it.
    virtual const Drawing& Canvas() = 0;
    virtual std::optional<Placed_Logo> Logo() = 0;
    virtual void Hovered(Control& control) = 0;
    virtual void Hovered_Form() = 0;
    /// The focus wants to the next field in a direction.
    virtual void Move_Focus(const Control_View& from, Direction direction) = 0;
};

} // namespace kestrum::desktop
