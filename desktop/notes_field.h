#pragma once

#include "desktop/control_view.h"

#include <QPlainTextEdit>

namespace kestrum::desktop {

/// A field of several lines.
class Notes_Field : public Widget_View<QPlainTextEdit> {
public:
    Notes_Field(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    void Show_Selection(const Selection& selection) override;
    void Name_Anew() override;
    void Take_Letters() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Take_Typed();

    std::string shown_;
    bool own_letters_ = false;
};

} // namespace kestrum::desktop
