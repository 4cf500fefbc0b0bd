#include "desktop/screen_window.h"

#include "application/events.h"
#include "core/field_handlers.h"
#include "desktop/body.h"
#include "desktop/frame_view.h"
#include "desktop/help_line.h"
#include "desktop/library_entry.h"
#include "desktop/menus.h"
#include "desktop/print_preview.h"
#include "desktop/recent_menu.h"
#include "desktop/test_entries.h"
#include "desktop/text_bridge.h"
#include "files/kept_tests.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace kestrum::desktop {

/// A frame that takes the whole form: it stands beside the front page, and one of the two shows.
class Screen_Window::Cover : public Control_View {
public:
    Cover(Screen_Window& window, Control& frame)
        : Control_View(frame, View_Facts{.events = window}), window_(window) {}

    void Refresh() override {
        const bool shows = control.Present_Look().visible;
        if (shows && page_ == nullptr) {
            page_ = new Page(window_.Context(), control.Entry().array, window_.body_,
                             window_.front_->Rows());
            Give_Name(*page_, control);
            Give_Description(*page_, control);
            Add_Calculate();
            window_.body_->Place_Pages();
        }
        QWidget* const holder = window_.focusWidget();
        const QWidget* const goes = shows ? window_.front_ : page_;
        if (holder != nullptr && goes != nullptr && goes->isAncestorOf(holder)) {
            holder->clearFocus(); // or Qt would look for another field
        }
        if (page_ != nullptr) {
            page_->setVisible(shows);
        }
        window_.front_->setVisible(!shows);
    }

    QWidget* Widget() override { return page_; }

    [[nodiscard]] Page* Present_Page() const { return page_; }

private:
    /// The front page's button lies below this page.
    void Add_Calculate() {
        constexpr Place beside_exit{2, 8, 2, 2};
        if (Control* const calculate = control.Owner().Find("Command1", std::nullopt)) {
            page_->Add_Second_View(*calculate, beside_exit);
        }
    }

    Screen_Window& window_;
    Page* page_ = nullptr;
};

Screen_Window::Screen_Window(Session& session, Gate& gate, Screen& screen)
    : session_(session), gate_(gate), screen_(&screen), keeper_(session) {
    setObjectName(To_Qt(screen.Name()));
    if (Shows_Addresses()) {
        setAccessibleDescription(objectName());
    }
    views_.resize(screen.Controls().size());
    static_cast<void>(screen.Take_Changes()); // the views are made from the present state
    Make_Content();
    Set_Tab_Order();
    Set_Pointer();
}

void Screen_Window::Make_Content() {
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    help_ = new Help_Line(this);
    layout->setContentsMargins(0, 0, 0, help_->Least_Height());
    block_ = std::make_unique<Block_Selection>(session_, gate_, keeper_, *help_);
    auto* const bar = new QMenuBar(this);
    Fill_Menus(*bar, *screen_, *this, [this](Control_View& view) { Keep_View(view); });
    Add_Preview_Entry(*bar, session_, gate_, *screen_);
    Add_Test_Entries(*bar, session_, gate_, keeper_, *screen_);
    Add_Recent_Menu(*bar, session_, gate_, *screen_);
    edit_menu_ = new Edit_Menu(*this, *bar, gate_, *help_);
    Add_Go_Menu(*this, *bar, session_, gate_, *screen_);
    Add_Library_Entry(*bar, session_, gate_, *screen_);
    Add_Manual_Entry(*this, *bar, session_, gate_, *screen_, *help_);
    if (bar->actions().isEmpty()) {
        delete bar;
    } else {
        layout->setMenuBar(bar);
    }
    body_ = new Body(this);
    front_ = new Page(Context(), "", body_);
    layout->addWidget(body_, 1);
    if (Control* const label = screen_->Find("Label7", std::nullopt)) {
        own_views_.push_back(
            std::make_unique<Help_Label_View>(*label, View_Facts{.events = *this}, *help_));
        own_views_.back()->Refresh();
        Keep_View(*own_views_.back());
    }
    for (Control& control : screen_->Controls()) {
        if (Frame_View::Covers_Its_Form(control)) {
            auto cover = std::make_unique<Cover>(*this, control);
            cover_ = cover.get();
            own_views_.push_back(std::move(cover));
            Keep_View(*cover_);
            cover_->Refresh();
        }
    }
}

Page_Context Screen_Window::Context() {
    const auto keep_view = [this](Control_View& view) {
        Keep_View(view);
        tab_order_stale_ = true;
    };
    const auto keep_page = [this](Page& page) { pages_.push_back(&page); };
    return {.screen = *screen_, .events = *this, .made = keep_view, .page_made = keep_page};
}

void Screen_Window::Keep_View(Control_View& view) {
    views_[static_cast<std::size_t>(&view.control - screen_->Controls().data())] = &view;
    block_->Watch(view);
    if (view.Widget() != nullptr) {
        edit_menu_->Watch(*view.Widget());
    }
    if (plain_pointer_) {
        Show_Arrow(view); // one of a panel or a page that opens later
    }
}

Control_View* Screen_Window::View_Of(const Control& control) const {
    return views_[static_cast<std::size_t>(&control - screen_->Controls().data())];
}

void Screen_Window::Set_Tab_Order() const {
    std::vector<QWidget*> order = front_->Tab_Order();
    if (cover_ != nullptr && cover_->Present_Page() != nullptr) {
        const std::vector<QWidget*> more = cover_->Present_Page()->Tab_Order();
        order.insert(order.end(), more.begin(), more.end());
    }
    if (order.size() > 2) {
        // To the toolkit the order is a ring, in which a last one that was made first stays there.
        QWidget::setTabOrder(order.front(), order.back());
    }
    for (std::size_t index = 1; index < order.size(); ++index) {
        QWidget::setTabOrder(order[index - 1], order[index]);
    }
}

/// The arrow everywhere, or each widget's own pointer.
void Screen_Window::Set_Pointer() {
    if (plain_pointer_ == screen_->plain_pointer) {
        return;
    }
    plain_pointer_ = screen_->plain_pointer;
    for (Control_View* const view : views_) {
        if (view != nullptr) {
            Show_Arrow(*view);
        }
    }
}

/// On the widget and on what it is built of, which may have pointers of their own.
void Screen_Window::Show_Arrow(Control_View& view) {
    QWidget* const widget = view.Widget();
    if (widget == nullptr) {
        return;
    }
    widget->setCursor(Qt::ArrowCursor);
    for (QWidget* const part : widget->findChildren<QWidget*>()) {
        part->setCursor(Qt::ArrowCursor);
    }
}

// Opening and closing

void Screen_Window::Close() {
    hide();
}

void Screen_Window::Bring_To_Front() {
    if (isMinimized()) {
        showNormal();
    }
    raise();
    activateWindow();
}

void Screen_Window::Let_Go() {
    screen_ = nullptr;
    hide();
    deleteLater(); // one of its own widgets may be calling
}

Screen_Window::~Screen_Window() {
    screen_ = nullptr;
    hide();
}

/// A sheet goes with its window, and the work on it would.
void Screen_Window::Keep_What_Closes() {
    if (screen_->Kind() == Screen_Kind::Sheet) {
        Keep_Test(session_, session_.Sheet(screen_->Id().number), closed_test);
    }
}

QString Screen_Window::Title() const {
    QString caption = To_Qt(screen_->caption);
    if (screen_->Kind() != Screen_Kind::Sheet) {
        return caption;
    }
    const std::string part = session_.Sheet(screen_->Id().number).Text102(0).Text();
    return To_Qt(part + (part.empty() ? "" : " - ") + Title_Of(screen_->Id())) +
           QLatin1String("[*] - ") + caption;
}

void Screen_Window::closeEvent(QCloseEvent* event) {
    event->ignore(); // the session hides or unloads the screen, or does nothing
    gate_.Enter_Command(
        [this] {
            if (screen_ != nullptr) {
                Keep_What_Closes();
                Close_Window(session_, *screen_);
            }
        },
        "Close " + Title_Of(screen_->Id()));
}

void Screen_Window::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (!painted_) {
        painted_ = true;
        // Its children are painted when the event loop comes round again.
        QTimer::singleShot(0, this, [this] {
            if (on_first_paint) {
                on_first_paint();
            }
        });
    }
}

// From the session to the window

void Screen_Window::Refresh() {
    if (screen_ == nullptr) {
        return;
    }
    const std::vector<Control*> changes = screen_->Take_Changes();
    for (Control* const control : changes) {
        Show_Changed(*control);
    }
    Show_Age_Of_Results();
    Show_Words_Of_Pointed();
    Tell_Pages(changes);
    if (scale_ != screen_->scale && placed_) {
        Take_Stretched_Place();
    }
    if (tab_order_stale_) {
        tab_order_stale_ = false;
        Set_Tab_Order();
    }
    Set_Pointer();
    Show_Title();
}

/// An edit makes all results of its screen old at once.
void Screen_Window::Show_Age_Of_Results() {
    if (results_are_old_ == screen_->Results_Are_Old()) {
        return;
    }
    results_are_old_ = screen_->Results_Are_Old();
    for (Control_View* const view : views_) {
        if (view != nullptr && view->control.Is_Text_Box()) {
            view->Refresh();
        }
    }
}

void Screen_Window::Show_Title() {
    if (windowTitle() != Title()) {
        setWindowTitle(Title());
    }
    setWindowModified(screen_->Kind() == Screen_Kind::Sheet && screen_->Is_Unsaved());
}

void Screen_Window::Tell_Pages(const std::vector<Control*>& changes) {
    bool captions_changed = false;
    std::set<int> rows;
    std::set<Page*> other_fonts;
    for (Control* const control : changes) {
        captions_changed = captions_changed || control->Entry().use == Cell_Use::Caption;
        Page* const page = control->Is_Text_Box() ? Page_Of(*control) : nullptr;
        if (page != nullptr && page->Is_Lift(*control)) {
            rows.insert(Place_Of(*control).row);
        }
        if (page != nullptr && page->Takes_Font(*control)) {
            other_fonts.insert(page);
        }
    }
    const QSize before = body_->sizeHint();
    for (Page* const page : other_fonts) {
        page->Measure_Anew();
    }
    if (!other_fonts.empty()) {
        Grow_From(before);
    }
    for (Page* const page : pages_) {
        if (captions_changed) {
            page->Name_Fields_Anew();
        } else if (!rows.empty()) {
            page->Name_Rows_Anew(rows);
        }
    }
}

void Screen_Window::Show_Changed(Control& control) {
    if (Control_View* const view = View_Of(control)) {
        view->Refresh();
        return;
    }
    // A blank cell has no view until a text comes into it.
    Page* const page = Page_Of(control);
    if (page != nullptr && control.Is_Text_Box() && !control.Text().empty()) {
        page->Add_View(control);
    }
}

Page* Screen_Window::Page_Of(const Control& control) const {
    const auto page = std::ranges::find(pages_, control.Entry().parent, &Page::Holder);
    return page == pages_.end() ? nullptr : *page;
}

void Screen_Window::Take_Focus(Control& control) {
    Refresh(); // the panel that holds the control may just have been shown
    Control_View* const view = View_Of(control);
    if (view == nullptr || view->Widget() == nullptr || !keeper_.Goes_To(control)) {
        return;
    }
    if (!isActiveWindow()) {
        Bring_To_Front();
    }
    view->Widget()->setFocus(Qt::OtherFocusReason);
    view->Show_Selection(Select_Field_Text(session_, control));
}

} // namespace kestrum::desktop
