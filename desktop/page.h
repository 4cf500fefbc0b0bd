#pragma once

#include "desktop/cell_map.h"
#include "desktop/control_view.h"
#include "desktop/form_design.h"
#include "screens/geometry.h"

#include <QWidget>

#include <functional>
#include <map>
#include <set>
#include <string_view>
#include <vector>

namespace kestrum::desktop {

class Page;

/// What a page needs of its window.
struct Page_Context {
    Screen& screen;
    View_Host& events;
    /// A view has been made.
    std::function<void(Control_View&)> made;
    std::function<void(Page&)> page_made;
};

/// The grid of the controls that one frame holds, or that stand on the bare form.
class Page : public QWidget {
public:
    /// `rows` makes the page as high as another one; 0 takes its own.
    Page(const Page_Context& context, std::string_view holder, QWidget* parent, int rows = 0);

    [[nodiscard]] std::string_view Holder() const { return holder_; }

    [[nodiscard]] int Rows() const { return rows_; }

    /// Makes the view of a control that had none, as of a blank cell that gets a text.
    void Add_View(Control& control);

    /// Shows a control that stands on another page here as well; only there its looks change.
    void Add_Second_View(Control& control, const Place& place);

    /// Words of the trade for a field of the page.
    [[nodiscard]] QString Words_Of(const Control& field) const {
        return map_.Words_With_Lift(field);
    }

    [[nodiscard]] bool Is_Lift(const Control& field) const { return map_.Is_Lift(field); }

    /// The captions of the page have changed.
    void Name_Fields_Anew();
    /// So have the lifts of some rows.
    void Name_Rows_Anew(const std::set<int>& rows);
    /// Notes the font of a field; true when it is another one than before.
    bool Takes_Font(const Control& field);
    /// Fonts of fields have changed: columns and rows get the sizes that they need now.
    void Measure_Anew();

    /// Where a place of the grid lies now.
    [[nodiscard]] QRect Area_Of(const Place& place) const;
    /// Widgets that take the focus, in the order of the Tab key.
    [[nodiscard]] std::vector<QWidget*> Tab_Order() const;
    /// The next field that can be typed into in a direction, or null.
    [[nodiscard]] QWidget* Neighbour_Of(const Control_View& view, Direction direction) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Item {
        Control_View* view;
        Place place;
    };

    [[nodiscard]] View_Facts Facts_Of(const Control& control) const;
    /// Size against the usual one: of the columns, and of the rows.
    [[nodiscard]] double Scale_Across() const;
    [[nodiscard]] double Scale_Down() const;
    [[nodiscard]] QFont Letters_Of(const Control& control) const;
    void Measure_Columns();
    [[nodiscard]] double Weight_Of(const Control& control) const;
    void Weigh_Rows();
    void Sum_Rows_Up(const std::vector<double>& weights);
    [[nodiscard]] Control_View* View_Of(const Control& control) const;
    void Lay_Out();
    void Place_Item(const Item& item) const;
    void Set_Letters();
    void Paint_Captions(QPainter& painter) const;
    [[nodiscard]] QRect Area_Of_Row_Heads(const Place& rows) const;
    void Paint_Row_Heads(QPainter& painter) const;

    Page_Context context_;
    std::string_view holder_;
    const Form_Design& design_;
    Cell_Map map_;
    /// Fonts of the fields that have one of their own.
    std::map<const Control*, Font> fonts_;
    bool is_panel_;
    int columns_ = 1;
    int rows_ = 1;
    std::vector<Item> items_;
    /// Least widths of the columns at the theme's own letter size, and their left edges now.
    std::vector<int> widths_;
    std::vector<int> edges_;
    /// Heights of the rows against each other, summed up: the top and the foot of each row.
    std::vector<double> row_tops_;
    std::vector<double> row_feet_;
};

} // namespace kestrum::desktop
