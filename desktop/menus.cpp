#include "desktop/menus.h"

#include "application/events.h"
#include "desktop/text_bridge.h"
#include "screens/screen.h"

#include <QAction>
#include <QMenu>

#include <map>

namespace kestrum::desktop {

namespace {

/// An entry that does something. It lives and dies with its action.
class Entry_View : public QObject, public Control_View {
public:
    Entry_View(Control& its_control, const View_Facts& its_facts, QAction& action)
        : QObject(&action), Control_View(its_control, its_facts), action_(action) {
        action_.setObjectName(To_Qt(its_control.Address()));
        if (!its_control.Entry().shortcut.empty()) {
            action_.setShortcut(QKeySequence(To_Qt(its_control.Entry().shortcut)));
        }
        Entry_View::Refresh();
        connect(&action_, &QAction::triggered, this, [this] {
            facts.events.Clicked(control);
            Entry_View::Refresh(); // the toolkit has turned the mark by itself
        });
        connect(&action_, &QAction::hovered, this, [this] { facts.events.Hovered(control); });
    }

    void Refresh() override {
        action_.setText(To_Qt(control.Text()));
        action_.setEnabled(control.Present_Look().enabled && Has_Routine(control));
        action_.setVisible(control.Present_Look().visible);
        action_.setCheckable(control.Value() != 0);
        action_.setChecked(control.Value() != 0);
    }

    QWidget* Widget() override { return nullptr; }

private:
    QAction& action_;
};

bool Holds_Entries(const Control& menu) {
    for (const Control& other : menu.Owner().Controls()) {
        if (other.Entry().kind == Control_Kind::Menu_Entry &&
            other.Entry().parent == menu.Entry().array) {
            return true;
        }
    }
    return false;
}

} // namespace

void Fill_Menus(QMenuBar& bar, Screen& screen, View_Host& events,
                const std::function<void(Control_View&)>& made) {
    std::map<std::string_view, QMenu*> menus;
    for (Control& control : screen.Controls()) {
        const Control_Entry& entry = control.Entry();
        if (entry.kind != Control_Kind::Menu_Entry) {
            continue;
        }
        const auto holder = menus.find(entry.parent);
        if (Holds_Entries(control)) {
            QMenu* const menu = holder == menus.end()
                                    ? bar.addMenu(To_Qt(control.Text()))
                                    : holder->second->addMenu(To_Qt(control.Text()));
            menu->setObjectName(To_Qt(control.Address()));
            menus[entry.array] = menu;
            continue;
        }
        QAction* const action =
            holder == menus.end() ? bar.addAction(QString()) : holder->second->addAction(QString());
        made(*new Entry_View(control, View_Facts{.events = events}, *action));
    }
}

} // namespace kestrum::desktop
