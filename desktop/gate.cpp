#include "desktop/gate.h"

#include "application/undo_history.h"
#include "base/run_time_error.h"
#include "desktop/text_bridge.h"

#include <QTimer>

#include <exception>
#include <utility>

namespace kestrum::desktop {

namespace {

constexpr std::string_view paragraph = "\r\n\r\n";

} // namespace

bool Gate::Enter(const std::function<void()>& act) {
    return Run(act, nullptr);
}

bool Gate::Enter_Command(const std::function<void()>& act, const std::string& name) {
    return Run(act, &name);
}

bool Gate::Run(const std::function<void()>& act, const std::string* command) {
    if (busy_) {
        return false;
    }
    busy_ = true;
    bool done = false;
    Put_Back put_back;
    try {
        if (command != nullptr && take_snapshot_) {
            put_back = take_snapshot_();
        }
        if (command != nullptr && history_ != nullptr) {
            history_->Begin();
        }
        act();
        if (command != nullptr && history_ != nullptr) {
            history_->End(*command);
        }
        if (follow_up_) {
            follow_up_();
        }
        done = true;
    } catch (const Run_Time_Error& failure) {
        const bool taken_back = Take_Back(put_back);
        Show(Message_Of(failure, taken_back));
    } catch (const std::exception& fault) {
        const bool taken_back = Take_Back(put_back);
        Show(fault.what() + std::string(paragraph) +
             (taken_back ? "Nothing on the screens was changed." : ""));
    }
    busy_ = false;
    Show_Waiting();
    return done;
}

bool Gate::Take_Back(const Put_Back& put_back) {
    try {
        if (history_ != nullptr) {
            history_->Give_Up();
        }
        if (put_back) {
            put_back();
        }
        if (follow_up_) {
            follow_up_();
        }
        return put_back != nullptr;
    } catch (const std::exception& fault) {
        waiting_.emplace_back(fault.what());
        return false;
    }
}

std::string Gate::Message_Of(const Run_Time_Error& failure, bool taken_back) const {
    std::string message = "Run-time error '" + From_Qt(Digits_Of(failure.Number())) + "':";
    message += paragraph;
    message += failure.Description();
    if (!failure.Field().empty() && field_words_) {
        message += paragraph;
        message += "The cell that was being read:\r\n" + field_words_(failure.Field());
    }
    if (taken_back) {
        message += paragraph;
        message += "Nothing on the screens was changed.";
    }
    return message;
}

void Gate::Show(const std::string& message) {
    dialogs_.Show_Box({.text = message, .title = {}, .icon = Box_Icon::Stop});
}

void Gate::Tell_Once(const std::string& fault) {
    if (told_.insert(fault).second) {
        waiting_.push_back(fault);
        Show_Waiting();
    }
}

/// When the event loop comes round again: no box may open inside of an event that is not let in.
void Gate::Show_Waiting() {
    if (waiting_.empty()) {
        return;
    }
    QTimer::singleShot(0, &context_, [this] {
        if (busy_ || waiting_.empty()) {
            return; // the event that runs asks again at its end
        }
        busy_ = true;
        for (const std::string& fault : std::exchange(waiting_, {})) {
            Show(fault);
        }
        busy_ = false;
        Show_Waiting();
    });
}

} // namespace kestrum::desktop
