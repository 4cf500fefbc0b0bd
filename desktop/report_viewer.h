#pragma once

#include "desktop/control_view.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>

namespace kestrum::desktop {

/// The finished report in letters of one width. It covers its form while it shows; a key closes
/// it, and what of it is wanted elsewhere can be selected and copied.
class Report_Viewer : public Widget_View<QPlainTextEdit> {
public:
    Report_Viewer(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    void Name_Anew() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void Set_Letters();
    void Show_Text();
    void Open();
    void Give_Focus_Back();

    QLabel* hint_;
    std::string shown_;
    /// What had the focus before the viewer took it.
    QPointer<QWidget> focus_before_;
};

} // namespace kestrum::desktop
