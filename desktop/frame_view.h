#pragma once

#include "desktop/page.h"

namespace kestrum::desktop {

/// A frame with its caption and the controls that it holds. They are made when it first shows.
class Frame_View : public Widget_View<QWidget> {
public:
    Frame_View(const Page_Context& context, Control& its_control, const View_Facts& its_facts,
               QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

    [[nodiscard]] std::vector<QWidget*> Tab_Order() const;

    /// Whether the frame takes the whole form, so that nothing beside it can be reached.
    [[nodiscard]] static bool Covers_Its_Form(const Control& frame);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Place_Page();
    void Take_Focus() const;
    [[nodiscard]] QFont Caption_Font() const;

    Page_Context context_;
    bool floats_; // over other controls
    Page* page_ = nullptr;
};

} // namespace kestrum::desktop
