#pragma once

#include "base/run_time_error.h"
#include "platform/dialogs.h"

#include <QObject>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace kestrum {
class Undo_History;
}

namespace kestrum::desktop {

/// The one way into the session. While a routine runs - a box may hold it for minutes - no other
/// event gets in, and no exception gets out into Qt's event loop: one that no routine handles is
/// shown, and the program goes on.
class Gate {
public:
    /// Brings back what stood before a command.
    using Put_Back = std::function<void()>;

    explicit Gate(Dialogs& dialogs) : dialogs_(dialogs) {}

    /// Runs a small event, such as a typed character, which leaves nothing half done when it fails.
    /// Gives false when it was not let in, or has failed.
    bool Enter(const std::function<void()>& act);

    /// Runs what a click, a menu, a shortcut or the leaving of a field starts. A failure takes back
    /// all that it has changed. The name is what undo calls it; without one it belongs to the
    /// typing before it.
    bool Enter_Command(const std::function<void()>& act, const std::string& name = {});

    /// A failure outside of the gate, as in painting: shown once, when nothing else runs.
    void Tell_Once(const std::string& fault);

    /// Runs before each command; what it gives runs when the command fails.
    void Set_Snapshot(std::function<Put_Back()> take) { take_snapshot_ = std::move(take); }

    /// What keeps the steps of the user, or null.
    void Set_History(Undo_History* history) { history_ = history; }

    [[nodiscard]] Undo_History* History() const { return history_; }

    /// Tells the user which field has an address.
    void Set_Field_Words(std::function<std::string(const std::string&)> words) {
        field_words_ = std::move(words);
    }

    /// Runs after each event that was let in.
    void Set_Follow_Up(std::function<void()> follow_up) { follow_up_ = std::move(follow_up); }

    [[nodiscard]] bool Is_Busy() const { return busy_; }

private:
    bool Run(const std::function<void()>& act, const std::string* command);
    /// Gives whether the state before the event stands again.
    bool Take_Back(const Put_Back& put_back);
    [[nodiscard]] std::string Message_Of(const Run_Time_Error& failure, bool taken_back) const;
    void Show(const std::string& message);
    void Show_Waiting();

    Dialogs& dialogs_;
    std::function<Put_Back()> take_snapshot_;
    std::function<std::string(const std::string&)> field_words_;
    std::function<void()> follow_up_;
    Undo_History* history_ = nullptr;
    bool busy_ = false;
    /// Faults that were told, and those that wait for it.
    std::set<std::string> told_;
    std::vector<std::string> waiting_;
    /// Ends what is still to come of this gate when it goes.
    QObject context_;
};

} // namespace kestrum::desktop
