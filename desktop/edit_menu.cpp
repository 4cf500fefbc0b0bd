#include "desktop/edit_menu.h"

#include "application/undo_history.h"
#include "desktop/help_line.h"
#include "desktop/text_bridge.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

namespace kestrum::desktop {

namespace {

QAction* Entry(QWidget& window, const QString& name, const QKeySequence& keys) {
    auto* const action = new QAction(name, &window);
    action->setShortcut(keys);
    window.addAction(action); // the keys work in a window without menus, too
    return action;
}

QString Named(const QString& word, const std::optional<std::string>& step) {
    return step ? word + QLatin1Char(' ') +
                      To_Qt(*step).replace(QLatin1String("&"), QLatin1String("&&"))
                : word;
}

/// Where the menu stands: behind the first one, as everywhere.
QAction* Second_Menu(const QMenuBar& bar) {
    return bar.actions().value(1);
}

} // namespace

Edit_Menu::Edit_Menu(QWidget& window, QMenuBar& bar, Gate& gate, Help_Line& help)
    : QObject(&window),
      gate_(gate),
      help_(help),
      undo_(Entry(window, QStringLiteral("&Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z))),
      redo_(
          Entry(window, QStringLiteral("&Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z))) {
    undo_->setObjectName(window.objectName() + QStringLiteral(".Undo"));
    redo_->setObjectName(window.objectName() + QStringLiteral(".Redo"));
    connect(undo_, &QAction::triggered, this, [this] { Step(true); });
    connect(redo_, &QAction::triggered, this, [this] { Step(false); });
    if (bar.actions().isEmpty()) {
        return;
    }
    auto* const menu = new QMenu(QStringLiteral("&Edit"), &bar);
    menu->addActions({undo_, redo_});
    connect(menu, &QMenu::aboutToShow, this, [this] { Name_Entries(); });
    bar.insertMenu(Second_Menu(bar), menu);
}

void Edit_Menu::Name_Entries() {
    const Undo_History* const history = gate_.History();
    const auto undone = history == nullptr ? std::nullopt : history->Undo_Name();
    const auto redone = history == nullptr ? std::nullopt : history->Redo_Name();
    undo_->setText(Named(QStringLiteral("&Undo"), undone));
    redo_->setText(Named(QStringLiteral("&Redo"), redone));
}

void Edit_Menu::Step(bool back) {
    const QPointer<Help_Line> help = &help_; // the step may take this window away
    std::optional<std::string> name;
    gate_.Enter([&] {
        if (Undo_History* const history = gate_.History()) {
            name = back ? history->Undo_Name() : history->Redo_Name();
            static_cast<void>(back ? history->Undo() : history->Redo());
        }
    });
    if (help.isNull()) {
        return;
    }
    const QString nothing = back ? QStringLiteral("There is nothing to undo.")
                                 : QStringLiteral("There is nothing to redo.");
    const QString word = back ? QStringLiteral("Undone: ") : QStringLiteral("Done again: ");
    help->Say(name ? word + To_Qt(*name) : nothing);
}

bool Edit_Menu::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo)) {
        return false;
    }
    event->ignore(); // so that it comes as the shortcut of the window
    return true;
}

} // namespace kestrum::desktop
