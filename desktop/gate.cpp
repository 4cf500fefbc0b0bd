#include "desktop/gate.h"

#include "desktop/text_bridge.h"
#include "platform/run_time_error.h"

#include <QCoreApplication>

#include <exception>

namespace kestrum::desktop {

namespace {

std::string Message_Of(const Run_Time_Error& failure) {
    return "Run-time error '" + From_Qt(Digits_Of(failure.Number())) + "':\r\n\r\n" +
           failure.Description();
}

} // namespace

bool Gate::Enter(const std::function<void()>& act) {
    if (busy_ || failed_) {
        return false;
    }
    busy_ = true;
    try {
        act();
        if (follow_up_) {
            follow_up_();
        }
    } catch (const Run_Time_Error& failure) {
        Fail(Message_Of(failure));
    } catch (const std::exception& fault) {
        Fail(fault.what());
    }
    busy_ = false;
    return !failed_;
}

void Gate::Fail(const std::string& message) {
    failed_ = true;
    if (last_act_) {
        last_act_();
    }
    dialogs_.Show_Box({.text = message, .title = {}, .icon = Box_Icon::Stop});
    QCoreApplication::exit(1);
}

} // namespace kestrum::desktop
