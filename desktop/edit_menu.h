#pragma once

#include "desktop/gate.h"

#include <QMenuBar>
#include <QObject>

namespace kestrum::desktop {

class Help_Line;

/// Undo and redo of a window: their shortcuts, and a menu that names the steps where the window has
/// menus. The editors of its cells have an undo of their own, which must not get these keys.
class Edit_Menu : public QObject {
public:
    Edit_Menu(QWidget& window, QMenuBar& bar, Gate& gate, Help_Line& help);

    /// Keeps the keys of undo and redo from an editor.
    void Watch(QWidget& editor) { editor.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Step(bool back);
    void Name_Entries();

    Gate& gate_;
    Help_Line& help_;
    QAction* undo_;
    QAction* redo_;
};

} // namespace kestrum::desktop
