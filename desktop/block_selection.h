#pragma once

#include "core/cell_block.h"
#include "desktop/block_veil.h"
#include "desktop/control_view.h"
#include "desktop/focus_keeper.h"
#include "desktop/gate.h"

#include <QKeyEvent>
#include <QObject>

#include <memory>
#include <string>

namespace kestrum::desktop {

class Help_Line;

/// Lets the user select a block of a window's cells with Shift and the arrows or with the mouse,
/// and copy, fill and clear it. The focus stays in the cell that the block began with. What the
/// texts become is settled in `core/cell_block.h`; each change is one command.
class Block_Selection : public QObject {
public:
    Block_Selection(Session& session, Gate& gate, Focus_Keeper& keeper, Help_Line& help);

    /// Listens to the keys and the mouse of a cell; any other view is left alone.
    void Watch(Control_View& view);

    /// Puts the clipboard into the block, or from a view's cell on. False when no block is selected
    /// and the clipboard holds one piece, which is for the cell alone.
    bool Paste(Control_View& view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Each gives whether the event was the block's.
    bool Key_Pressed(Control_View& view, const QKeyEvent& event);
    bool Acts_On_Block(Control_View& view, const QKeyEvent& event);
    bool Dragged(Control_View& view, const QMouseEvent& event);

    /// A block may begin with a view's cell.
    void Begin(Control_View& view);
    /// Makes the block reach to a spot; it ends where it began.
    void Reach(const Spot& spot);
    void End();
    /// Lays the page of a view under the blocks to come.
    void Take_Page_Of(Control_View& view);

    [[nodiscard]] bool Is_On() const { return holder_ != nullptr; }

    [[nodiscard]] Block Present() const { return Block_Between(began_with_, reaches_to_); }

    void Copy() const;
    void Clear();
    /// Writes the texts, or says why there are none; gives whether they were written.
    bool Put_In(const Block_Fill& fill, const std::string& name);
    void Refuse(const QString& words);
    void Select_Text_Of_Holder() const;
    [[nodiscard]] QString Words_For(const Block_Fill& refused) const;

    Session& session_;
    Gate& gate_;
    Focus_Keeper& keeper_;
    Help_Line& help_;
    /// What the block lies on. The page owns the veil.
    Page* page_ = nullptr;
    Block_Veil* veil_ = nullptr;
    std::unique_ptr<Cell_Grid> grid_;
    /// Has the focus while there is a block; null without one.
    Control_View* holder_ = nullptr;
    Spot began_with_;
    Spot reaches_to_;
    /// The cell on which the mouse button was pressed.
    const Control_View* pressed_ = nullptr;
};

} // namespace kestrum::desktop
