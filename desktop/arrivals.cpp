#include "desktop/arrivals.h"

#include "application/opened_files.h"
#include "core/sheet_opening.h"
#include "desktop/native_path.h"
#include "desktop/text_bridge.h"
#include "platform/file_store.h"

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace kestrum::desktop {

namespace {

std::vector<std::string> Files_In(const QMimeData& data) {
    std::vector<std::string> files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            files.push_back(Native_Path(url.toLocalFile()));
        }
    }
    return files;
}

std::string Words_For_Load(const std::string& path) {
    return "Load " + Bare_Name(path);
}

} // namespace

Arrivals::Arrivals(Program& program) : program_(program) {
    constexpr int milliseconds = 200;
    again_.setInterval(milliseconds);
    connect(&again_, &QTimer::timeout, this, [this] { Work_Off(); });
    Desktop_Windows& windows = program.Its_Windows();
    windows.on_new_window = [this, before = windows.on_new_window](Screen_Window& window,
                                                                   const Screen& screen) {
        if (before) {
            before(window, screen);
        }
        Watch_Drops(window);
    };
}

void Arrivals::Take(const Start_Options& options) {
    if (!options.files.empty()) {
        Add([this, files = options.files] { Open_Files(files, nullptr); });
    }
    if (options.wants_new_test) {
        Add([this] { Begin_New_Test(); });
    }
    if (options.wants_library) {
        Add([this] { Trigger(program_.Its_Session().Main(), QStringLiteral("Main.Library")); });
    }
}

void Arrivals::Take_Drop(const std::vector<std::string>& files, const Screen& screen) {
    const Screen_Id id = screen.Id();
    Add([this, files, id] {
        const bool on_sheet = id.kind == Screen_Kind::Sheet;
        Open_Files(files, on_sheet ? &program_.Its_Session().Sheet(id.number) : nullptr);
    });
}

void Arrivals::Listen(Running_Program& running) {
    calls_ = std::make_unique<QSocketNotifier>(running.Handle(), QSocketNotifier::Read);
    connect(calls_.get(), &QSocketNotifier::activated, this, [this, &running] { Hear(running); });
}

void Arrivals::Hear(Running_Program& running) {
    const std::optional<Words> words = running.Hear();
    if (!words) {
        return;
    }
    const Start_Options options = Options_From(*words);
    if (options.files.empty()) {
        Add([this] { program_.Its_Session().Show(program_.Its_Session().Main()); });
    }
    Take(options);
}

void Arrivals::Add(std::function<void()> work) {
    waiting_.push_back(std::move(work));
    Work_Off();
}

/// A box may hold the gate for long, and an exit shuts it.
void Arrivals::Work_Off() {
    while (!waiting_.empty() && !program_.Its_Gate().Is_Busy() && !program_.Has_Ended()) {
        const std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        work();
    }
    waiting_.empty() ? again_.stop() : again_.start();
}

/// Engine data come first, for they may name tests that they load themselves.
void Arrivals::Open_Files(std::vector<std::string> files, Flow_Sheet* wanted) {
    Session& session = program_.Its_Session();
    Gate& gate = program_.Its_Gate();
    std::stable_partition(files.begin(), files.end(), Is_Engine_File);
    std::vector<std::string> unplaced;
    bool main_is_taken = false;
    for (const std::string& file : files) {
        if (Is_Engine_File(file)) {
            if (std::exchange(main_is_taken, true)) {
                unplaced.push_back(file);
                continue;
            }
            gate.Enter_Command([&] { Open_Engine_File(session, file); }, Words_For_Load(file));
            continue;
        }
        Flow_Sheet* const sheet =
            wanted != nullptr ? std::exchange(wanted, nullptr) : First_Free_Sheet(session);
        if (sheet == nullptr) {
            unplaced.push_back(file);
            continue;
        }
        gate.Enter_Command([&] { Open_Test(session, *sheet, file); }, Words_For_Load(file));
    }
    if (!unplaced.empty()) {
        gate.Enter([&] { Tell_Unplaced(unplaced); });
    }
}

void Arrivals::Tell_Unplaced(const std::vector<std::string>& files) {
    std::string text = "There is no free screen for these files. Load them from the File menu of a "
                       "screen whose data you do not need any more:\r\n";
    for (const std::string& file : files) {
        text += "\r\n" + file;
    }
    program_.Its_Session().Message(text, Box_Icon::Exclamation);
}

void Arrivals::Begin_New_Test() {
    Session& session = program_.Its_Session();
    Flow_Sheet* const sheet = First_Free_Sheet(session);
    program_.Its_Gate().Enter([&] {
        if (sheet == nullptr) {
            session.Message("All five flow tests are in use. Begin a new one from the File menu of "
                            "one that you do not need any more.",
                            Box_Icon::Exclamation);
        } else {
            Show_With_Caption(session, *sheet);
        }
    });
    if (sheet != nullptr) {
        Trigger(*sheet, To_Qt(sheet->Name() + ".File.NewTest"));
    }
}

/// An entry of a window's menus, as by a click on it.
void Arrivals::Trigger(const Screen& screen, const QString& entry) const {
    const Screen_Window* const window = program_.Its_Windows().Window_Of(screen);
    if (auto* const action = window == nullptr ? nullptr : window->findChild<QAction*>(entry)) {
        action->trigger();
    }
}

void Arrivals::Watch_Drops(Screen_Window& window) {
    window.setAcceptDrops(true);
    // The window of the system comes with its first showing, and no earlier.
    QTimer::singleShot(0, &window, [this, &window] {
        if (QWindow* const of_system = window.windowHandle()) {
            of_system->setObjectName(window.objectName());
            of_system->installEventFilter(this);
        }
    });
}

bool Arrivals::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto* const drop = static_cast<QDropEvent*>(event); // the others are made from it
    const std::vector<std::string> files = Files_In(*drop->mimeData());
    const Screen* const screen =
        program_.Its_Session().Screen_Named(From_Qt(watched->objectName()));
    if (files.empty() || screen == nullptr) {
        return QObject::eventFilter(watched, event);
    }
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop) {
        Take_Drop(files, *screen);
    }
    return true;
}

} // namespace kestrum::desktop
