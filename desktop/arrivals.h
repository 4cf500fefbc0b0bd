#pragma once

#include "desktop/program.h"
#include "desktop/start_options.h"
#include "platform/running_program.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kestrum::desktop {

/// What comes to the program from outside, from its command line, from second starts and by drops
/// on its windows, done one after the other as soon as no routine runs.
class Arrivals : public QObject {
public:
    explicit Arrivals(Program& program);

    /// Does what a start asks for: opens its files, begins a new test, shows the library.
    void Take(const Start_Options& options);

    /// Opens files that were dropped on a window: the first test goes into its sheet, if it is one.
    void Take_Drop(const std::vector<std::string>& files, const Screen& screen);

    /// Hears what second starts say.
    void Listen(Running_Program& running);

protected:
    /// Of a window of the system, before its widgets would take the name of a file for a text.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Add(std::function<void()> work);
    void Work_Off();
    void Hear(Running_Program& running);
    void Watch_Drops(Screen_Window& window);
    void Open_Files(std::vector<std::string> files, Flow_Sheet* wanted);
    void Begin_New_Test();
    void Trigger(const Screen& screen, const QString& entry) const;
    void Tell_Unplaced(const std::vector<std::string>& files);

    Program& program_;
    std::deque<std::function<void()>> waiting_;
    QTimer again_;
    std::unique_ptr<QSocketNotifier> calls_;
};

} // namespace kestrum::desktop
