#include "desktop/library_entry.h"

#include "desktop/library_window.h"
#include "desktop/text_bridge.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace kestrum::desktop {

namespace {

/// The list that a drag comes from, or null.
Library_Window* Source_Of(const QDropEvent& drop) {
    const auto* const source = qobject_cast<QWidget*>(drop.source());
    return source == nullptr ? nullptr : dynamic_cast<Library_Window*>(source->window());
}

/// Opens in a sheet what is dropped onto its window.
class Test_Drop : public QObject {
public:
    Test_Drop(QWidget& window, int sheet_number) : QObject(&window), number_(sheet_number) {
        window.setAcceptDrops(true);
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        const bool is_drop = event->type() == QEvent::Drop;
        if (!is_drop && event->type() != QEvent::DragEnter) {
            return false;
        }
        auto* const drop = dynamic_cast<QDropEvent*>(event);
        Library_Window* const source = drop == nullptr ? nullptr : Source_Of(*drop);
        if (source == nullptr) {
            return false;
        }
        drop->acceptProposedAction();
        if (is_drop) {
            // A box may come up, which must not hold the drag.
            QTimer::singleShot(0, source,
                               [source, number = number_] { source->Open_Current_In(number); });
        }
        return true;
    }

private:
    int number_;
};

/// The entry of `Main`, which has the window.
QAction* Entry_Of_Main() {
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const entry = window->findChild<QAction*>(QStringLiteral("Main.Library"))) {
            return entry;
        }
    }
    return nullptr;
}

void Open_From_Main(QAction& entry, QMenuBar& bar, Session& session, Gate& gate) {
    // One window, which goes with the menu bar.
    auto window = std::make_shared<std::unique_ptr<Library_Window>>();
    QObject::connect(&entry, &QAction::triggered, &bar, [&session, &gate, window] {
        if (!*window) {
            *window = std::make_unique<Library_Window>(session, gate);
        }
        (*window)->show();
        (*window)->raise();
        (*window)->activateWindow();
    });
}

} // namespace

void Add_Library_Entry(QMenuBar& bar, Session& session, Gate& gate, Screen& screen) {
    const bool is_main = screen.Kind() == Screen_Kind::Engine;
    if (!is_main && screen.Kind() != Screen_Kind::Sheet) {
        return;
    }
    QMenu* const menu = bar.addMenu(QStringLiteral("&Tests"));
    menu->setObjectName(To_Qt(screen.Name() + ".Tests"));
    QAction* const entry = menu->addAction(QStringLiteral("&Library..."));
    entry->setObjectName(To_Qt(screen.Name() + ".Library"));
    entry->setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
    entry->setToolTip(QStringLiteral("All tests of a folder in one list, and charts of them"));
    auto* const button = new QToolButton(&bar);
    button->setText(QStringLiteral("Library"));
    button->setToolTip(entry->toolTip());
    button->setFocusPolicy(Qt::NoFocus); // the tab ring is that of the cells
    QObject::connect(button, &QToolButton::clicked, entry, &QAction::trigger);
    bar.setCornerWidget(button);
    if (is_main) {
        Open_From_Main(*entry, bar, session, gate);
        return;
    }
    new Test_Drop(*bar.parentWidget(), screen.Id().number);
    QObject::connect(entry, &QAction::triggered, &bar, [] {
        if (QAction* const of_main = Entry_Of_Main()) {
            of_main->trigger();
        }
    });
}

} // namespace kestrum::desktop
