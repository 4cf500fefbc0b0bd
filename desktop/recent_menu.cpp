#include "desktop/recent_menu.h"

#include "application/opened_files.h"
#include "desktop/text_bridge.h"
#include "desktop/user_settings.h"

#include <QFileInfo>
#include <QMenu>

#include <utility>

namespace kestrum::desktop {

namespace {

void Open_Recent(Session& session, Screen_Id screen, const std::string& path) {
    if (screen.kind == Screen_Kind::Engine) {
        Open_Engine_File(session, path);
    } else {
        Open_Test(session, session.Sheet(screen.number), path);
    }
}

/// The name with its number as the key to it, and the folder behind it.
QString Words_Of(const QString& path, int number) {
    const QFileInfo file(path);
    const QString words = file.fileName() + QStringLiteral("  (") + file.path() + QLatin1Char(')');
    const QChar digit = QLatin1Char(static_cast<char>('0' + number % 10)); // of the tenth 0
    return QLatin1Char('&') + digit + QLatin1Char(' ') +
           QString(words).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void Fill(QMenu& menu, Session& session, Gate& gate, Screen_Id screen) {
    menu.clear();
    int number = 0;
    for (const QString& path : user_settings::Recent_Files(screen.kind)) {
        QAction* const entry = menu.addAction(Words_Of(path, ++number));
        const std::string file = From_Qt(path);
        QObject::connect(entry, &QAction::triggered, &menu, [&session, &gate, screen, file] {
            gate.Enter_Command([&] { Open_Recent(session, screen, file); }, "Load");
        });
    }
    if (number == 0) {
        menu.addAction(QStringLiteral("None yet"))->setEnabled(false);
    }
}

} // namespace

void Add_Recent_Menu(QMenuBar& bar, Session& session, Gate& gate, Screen& screen) {
    if (screen.Kind() != Screen_Kind::Engine && screen.Kind() != Screen_Kind::Sheet) {
        return;
    }
    auto* const file = bar.findChild<QMenu*>(To_Qt(screen.Name() + ".File"));
    auto* const menu = new QMenu(QStringLiteral("&Recent Files"), file);
    menu->setObjectName(To_Qt(screen.Name() + ".Recent"));
    file->insertMenu(file->actions().value(2), menu); // behind loading and saving
    QObject::connect(menu, &QMenu::aboutToShow, menu,
                     [menu, &session, &gate, id = screen.Id()] { Fill(*menu, session, gate, id); });
}

void Note_Used_Files(Session& session) {
    for (const auto& [path, kind] : std::exchange(session.file.used, {})) {
        user_settings::Note_Recent_File(kind, To_Qt(path));
    }
}

} // namespace kestrum::desktop
