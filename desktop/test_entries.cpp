#include "desktop/test_entries.h"

#include "application/events.h"
#include "application/new_test.h"
#include "application/undo_history.h"
#include "desktop/help_line.h"
#include "desktop/manual.h"
#include "desktop/text_bridge.h"
#include "files/kept_tests.h"

#include <QAction>
#include <QMenu>

namespace kestrum::desktop {

namespace {

/// Before the entry that closes the window, which is the last of its group.
void Add_Entry(QMenu& menu, const QString& words, Gate& gate, const std::function<void()>& act,
               const std::function<bool()>& may_be_used) {
    auto* const entry = new QAction(words, &menu);
    entry->setObjectName(menu.objectName() + QLatin1Char('.') +
                         QString(words).remove(QLatin1Char(' ')));
    menu.insertAction(menu.actions().value(2), entry);
    QObject::connect(entry, &QAction::triggered, &menu,
                     [&gate, act, words] { gate.Enter_Command(act, From_Qt(words)); });
    if (may_be_used) {
        QObject::connect(&menu, &QMenu::aboutToShow, entry,
                         [entry, may_be_used] { entry->setEnabled(may_be_used()); });
    }
}

void Begin(Focus_Keeper& keeper, Flow_Sheet& sheet, New_Test kind) {
    for (const Control* const zero : Begin_New_Test(sheet, kind)) {
        keeper.Excuse(*zero);
    }
}

void Add_Sheet_Entries(QMenu& menu, Session& session, Gate& gate, Focus_Keeper& keeper,
                       int number) {
    Add_Entry(
        menu, QStringLiteral("Bring Back Closed Test"), gate,
        [&session, number] { Bring_Back_Test(session, session.Sheet(number), closed_test); },
        [&session] { return Has_Kept_Test(session, closed_test); });
    Add_Entry(menu, QStringLiteral("New From This Head"), gate,
              [&session, &keeper, number] {
                  Begin(keeper, session.Sheet(number), New_Test::From_This_Head);
              },
              {});
    Add_Entry(
        menu, QStringLiteral("New Test"), gate,
        [&session, &keeper, number] { Begin(keeper, session.Sheet(number), New_Test::Empty); }, {});
}

/// The control that a key stands for, on the screen or on another one.
struct Way {
    const char* words;
    QKeyCombination keys;
    const char* address;
};

constexpr std::array ways{
    Way{"Flow Test &1", Qt::CTRL | Qt::Key_1, "Main.Command1"},
    Way{"Flow Test &2", Qt::CTRL | Qt::Key_2, "Main.Command2"},
    Way{"Flow Test &3", Qt::CTRL | Qt::Key_3, "Main.Command3"},
    Way{"Flow Test &4", Qt::CTRL | Qt::Key_4, "Main.Command4"},
    Way{"Flow Test &5", Qt::CTRL | Qt::Key_5, "Main.Command5"},
    Way{"&Compare 2 Flow Tests", Qt::CTRL | Qt::Key_K, "Main.Command50"},
    Way{"&Graph", Qt::CTRL | Qt::Key_G, "Form50.Command2"},
};

Control& Control_At(Session& session, std::string_view address) {
    const std::size_t point = address.find('.');
    return *session.Screen_Named(address.substr(0, point))
                ->Find(address.substr(point + 1), std::nullopt);
}

/// The button that calculates what a screen shows.
std::string_view Calculating_Button(Screen_Kind kind) {
    switch (kind) {
    case Screen_Kind::Engine:
        return "Command51";
    case Screen_Kind::Sheet:
    case Screen_Kind::Compare:
        return "Command1";
    case Screen_Kind::Graph:
    case Screen_Kind::Report:
        return "";
    }
    return "";
}

} // namespace

void Add_Test_Entries(QMenuBar& bar, Session& session, Gate& gate, Focus_Keeper& keeper,
                      Screen& screen) {
    auto* const menu = bar.findChild<QMenu*>(To_Qt(screen.Name() + ".File"));
    if (menu == nullptr) {
        return;
    }
    if (screen.Kind() == Screen_Kind::Sheet) {
        Add_Sheet_Entries(*menu, session, gate, keeper, screen.Id().number);
    } else if (screen.Kind() == Screen_Kind::Engine) {
        Add_Entry(
            *menu, QStringLiteral("Bring Back Last Session's Tests"), gate,
            [&session] { Bring_Back_Last_Session(session); },
            [&session] { return Has_Last_Session(session); });
    }
}

void Add_Go_Menu(QWidget& window, QMenuBar& bar, Session& session, Gate& gate, Screen& screen) {
    auto* const menu = new QMenu(QStringLiteral("&Go"), &bar);
    const auto add = [&](const char* words, const QKeySequence& keys,
                         const std::function<void()>& act) {
        auto* const entry = new QAction(QLatin1String(words), menu);
        entry->setShortcut(keys);
        window.addAction(entry); // the keys work in a window without menus, too
        menu->addAction(entry);
        QObject::connect(entry, &QAction::triggered, menu, [&gate, entry, act] {
            gate.Enter_Command(act, From_Qt(entry->text().remove(QLatin1Char('&'))));
        });
    };
    add("&Main", Qt::CTRL | Qt::Key_0, [&session] { session.Show(session.Main()); });
    for (const Way& way : ways) {
        add(way.words, way.keys,
            [&session, &way] { Click(session, Control_At(session, way.address)); });
    }
    if (const std::string_view button = Calculating_Button(screen.Kind()); !button.empty()) {
        menu->addSeparator();
        add("C&alculate", Qt::Key_F9,
            [&session, &screen, button] { Click(session, *screen.Find(button, std::nullopt)); });
    }
    if (bar.actions().isEmpty()) {
        return;
    }
    bar.insertMenu(bar.actions().value(2), menu);
}

void Add_Manual_Entry(QWidget& window, QMenuBar& bar, Session& session, Gate& gate,
                      const Screen& screen, Help_Line& help) {
    auto* const entry = new QAction(QStringLiteral("&Manual"), &window);
    entry->setShortcut(QKeySequence(Qt::Key_F1));
    window.addAction(entry);
    QObject::connect(entry, &QAction::triggered, &window,
                     [&session, &gate, &help, kind = screen.Kind()] {
                         gate.Enter([&] { help.Say(Open_Manual(session, kind)); });
                     });
    auto* const own = bar.findChild<QMenu*>(To_Qt(screen.Name() + ".Help"));
    if (own != nullptr) {
        own->insertAction(own->actions().value(0), entry);
    } else if (!bar.actions().isEmpty()) {
        bar.addMenu(QStringLiteral("&Help"))->addAction(entry);
    }
}

} // namespace kestrum::desktop
