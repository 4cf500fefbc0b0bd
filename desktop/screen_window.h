#pragma once

#include "desktop/block_selection.h"
#include "desktop/edit_menu.h"
#include "desktop/focus_keeper.h"
#include "desktop/gate.h"
#include "desktop/page.h"
#include "desktop/view_host.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace kestrum::desktop {

class Body;
class Help_Line;

/// The window of one screen. It is made from the screen's table and decides nothing: what the user
/// does goes to the session, and what has changed there is shown.
class Screen_Window : public QWidget, private View_Host {
public:
    Screen_Window(Session& session, Gate& gate, Screen& screen);
    Screen_Window(const Screen_Window&) = delete;
    Screen_Window& operator=(const Screen_Window&) = delete;
    /// A visible window gives the focus up here, while it can still be told of it.
    ~Screen_Window() override;

    void Open();
    void Close();
    void Bring_To_Front();

    [[nodiscard]] Help_Line& Its_Help_Line() const { return *help_; }

    /// Shows what has changed since the last call.
    void Refresh();
    /// A routine moves the focus.
    void Take_Focus(Control& control);
    /// The screen goes; the window answers to nothing more.
    void Let_Go();

    /// The view of a control, or null where none has been made.
    [[nodiscard]] Control_View* View_Of(const Control& control) const;

    /// Runs once, when the window has been painted.
    std::function<void()> on_first_paint;

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class Cover;

    // What the views ask and tell.
    [[nodiscard]] QString Words_Of(const Control& field) const override;
    [[nodiscard]] QChar Decimal_Mark() const override;
    void Clicked(Control& control) override;
    void Picked(Control& combo, const std::string& text) override;
    void Typed(Control& field, const std::string& text) override;
    bool Passes(const Control& field, char32_t character) override;
    std::optional<std::u32string> Piece_Of(const Control& field, const std::string& rest,
                                           const std::string& pasted) override;

    bool Paste_Cells(Control_View& view) override { return block_->Paste(view); }

    void Refuse(const std::string& words) override;
    void Raw_Key(const Control& control, char32_t character) override;
    void Focus_Came(Control_View& view, Qt::FocusReason reason) override;
    void Focus_Went() override;
    void Mouse_Down(bool down) override;
    void Mouse_On(Control& picture, bool on_logo, Mouse_Action action, double x, double y) override;
    const Drawing& Canvas() override;
    std::optional<Placed_Logo> Logo() override;
    void Hovered(Control& control) override;
    void Hovered_Form() override;
    void Move_Focus(const Control_View& from, Direction direction) override;

    /// The test comes first: that is what a taskbar has room for.
    [[nodiscard]] QString Title() const;
    void Show_Title();
    void Name_Test(const Control& control);
    void Show_Age_Of_Results();
    void Show_Words_Of_Pointed();
    void Keep_What_Closes();
    void Make_Content();
    void Keep_View(Control_View& view);
    [[nodiscard]] Page_Context Context();
    void Show_Changed(Control& control);
    void Set_Tab_Order() const;
    void Set_Pointer();
    static void Show_Arrow(Control_View& view);
    [[nodiscard]] Page* Page_Of(const Control& control) const;
    /// Tells the pages what has changed that their layout or names hang on.
    void Tell_Pages(const std::vector<Control*>& changes);
    [[nodiscard]] QSize Usual_Size() const;
    [[nodiscard]] QSize Room() const;
    void Take_Stretched_Place();
    void Stretch_Letters(double growth);
    void Grow_From(const QSize& page_before);

    Session& session_;
    Gate& gate_;
    Screen* screen_; // null when it has gone
    Focus_Keeper keeper_;
    std::unique_ptr<Block_Selection> block_;
    Edit_Menu* edit_menu_ = nullptr;
    std::vector<Control_View*> views_; // by the control's place in the screen
    Body* body_ = nullptr;
    std::vector<Page*> pages_;
    /// Views that are no widgets; those are owned by their parents.
    std::vector<std::unique_ptr<Control_View>> own_views_;
    Page* front_ = nullptr;
    Cover* cover_ = nullptr;
    Help_Line* help_ = nullptr;
    const Control* pointed_ = nullptr; // the one that the mouse was over last
    bool tab_order_stale_ = false;
    bool plain_pointer_ = false;
    bool results_are_old_ = false;
    bool placed_ = false;
    Screen_Scale scale_; // that the window has been given
    bool painted_ = false;
};

} // namespace kestrum::desktop
