#include "desktop/program.h"

#include "application/start_up.h"

#include <QCoreApplication>

namespace kestrum::desktop {

Program::Program(Dialogs& dialogs, const Surroundings& surroundings)
    : gate_(dialogs), session_(dialogs, windows_, surroundings), windows_(gate_) {
    windows_.Take_Session(session_);
    windows_.on_end = [this] { End(); };
    gate_.Set_Last_Act([this] {
        if (rescue_) {
            rescue_->Keep();
        }
    });
    gate_.Set_Follow_Up([this] { windows_.Refresh(); });
}

bool Program::Start() {
    return gate_.Enter([this] { Start_Up(session_); });
}

void Program::Keep_Rescue_Copies() {
    constexpr int seconds = 15;
    const auto keep = [this] { rescue_->Keep(); };
    rescue_ = std::make_unique<Rescue>(session_);
    gate_.Enter([this] { rescue_->Offer(); });
    QObject::connect(&rescue_clock_, &QTimer::timeout, &rescue_clock_,
                     [this, keep] { gate_.Enter(keep); });
    rescue_clock_.start(seconds * 1000);
}

void Program::End() {
    rescue_clock_.stop();
    if (rescue_) {
        rescue_->Remove();
    }
    QCoreApplication::exit(0);
}

} // namespace kestrum::desktop
