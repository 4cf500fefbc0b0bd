#include "desktop/program.h"

#include "application/start_up.h"

#include <QCoreApplication>

namespace kestrum::desktop {

Program::Program(Dialogs& dialogs, const Surroundings& surroundings)
    : gate_(dialogs),
      session_(dialogs, windows_, surroundings),
      printers_([this](const std::string& screen) {
          return windows_.Window_Of(*session_.Screen_Named(screen));
      }),
      windows_(gate_) {
    windows_.Take_Session(session_);
    windows_.on_end = [this] { End(); };
    session_.painter = &painter_;
    session_.printers = &printers_;
    const auto keep = [this] {
        if (rescue_) {
            rescue_->Keep();
        }
    };
    gate_.Set_Last_Act(keep);
    windows_.on_unload = keep;
    // Not through the gate: a box may hold a routine for minutes.
    QObject::connect(&rescue_clock_, &QTimer::timeout, &rescue_clock_, keep);
    gate_.Set_Follow_Up([this] { windows_.Refresh(); });
}

bool Program::Start() {
    return gate_.Enter([this] { Start_Up(session_); });
}

void Program::Keep_Rescue_Copies() {
    constexpr int milliseconds = 1000;
    rescue_ = std::make_unique<Rescue>(session_);
    gate_.Enter([this] { rescue_->Offer(); });
    rescue_clock_.start(milliseconds);
}

void Program::End() {
    rescue_clock_.stop();
    if (rescue_) {
        rescue_->Remove();
    }
    QCoreApplication::exit(0);
}

} // namespace kestrum::desktop
