#pragma once

#include "desktop/program.h"

#include <QHelpEvent>
#include <QObject>

namespace kestrum::desktop {

/// What a beginner is told when the mouse rests on a cell, and the drawing of the dimensions in the
/// Help menus of the sheets. The line at the foot of the windows is not touched: what it says, and
/// when, belongs to the session.
class Field_Tips : public QObject {
public:
    explicit Field_Tips(Program& program);

protected:
    /// Of the whole program, before the widgets show tips of their own.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Show_Tip(QWidget& widget, const QHelpEvent& event);
    [[nodiscard]] const Control* Cell_Of(const QWidget& widget);
    void Add_Drawing_Entry(Screen_Window& window, const Screen& screen);

    Program& program_;
};

} // namespace kestrum::desktop
