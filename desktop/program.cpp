#include "desktop/program.h"

#include "application/start_up.h"
#include "core/session_snapshot.h"
#include "desktop/cell_words.h"
#include "desktop/print_preview.h"
#include "desktop/recent_menu.h"
#include "desktop/safe_application.h"
#include "desktop/text_bridge.h"
#include "files/kept_tests.h"
#include "graph/table_age.h"

#include <QGuiApplication>

#include <chrono>
#include <utility>

namespace kestrum::desktop {

Program::Program(Dialogs& dialogs, const Surroundings& surroundings)
    : gate_(dialogs),
      session_(dialogs, windows_, surroundings),
      printers_(dialogs, painter_, surroundings.folder,
                [this](const std::string& screen) {
                    return windows_.Window_Of(*session_.Screen_Named(screen));
                }),
      camera_([this](const Screen& screen) { return windows_.Window_Of(screen); }),
      windows_(gate_) {
    windows_.Take_Session(session_);
    windows_.on_end = [this] { End(); };
    session_.painter = &painter_;
    session_.printers = &printers_;
    session_.camera = &camera_;
    session_.shell = &shell_;
    printers_.show_preview = Show_Print_Preview;
    printers_.say = [this](const QString& words) { windows_.Say(words); };
    QObject::connect(&rescue_clock_, &QTimer::timeout, &rescue_clock_, [this] {
        if (!gate_.Is_Busy()) {
            rescue_->Note(); // a box may hold a routine in its middle for minutes
        }
        rescue_->Write();
    });
    Set_Gate_Up();
}

Program::~Program() {
    if (Safe_Application* const application = Safe_Application::Present()) {
        application->on_fault = nullptr;
    }
}

void Program::Set_Gate_Up() {
    gate_.Set_Follow_Up([this] {
        if (!ended_) {
            Note_Age_Of_Table(session_);
        }
        windows_.Refresh();
        Note_Used_Files(session_);
        if (!session_.file.news.empty()) {
            windows_.Say(To_Qt(std::exchange(session_.file.news, std::string())));
        }
        if (rescue_) {
            rescue_->Note();
        }
    });
    gate_.Set_Snapshot([this]() -> Gate::Put_Back {
        return [this, before = std::make_shared<Session_Snapshot>(session_)] {
            if (!ended_) {
                before->Put_Back(session_);
                session_.mouse_down = false; // the box takes the release
            }
        };
    });
    gate_.Set_Field_Words(
        [this](const std::string& address) { return Words_Of_Field(session_, address); });
    if (Safe_Application* const application = Safe_Application::Present()) {
        application->on_fault = [this](const std::string& fault) { gate_.Tell_Once(fault); };
    }
}

bool Program::Start() {
    started_ = gate_.Enter([this] { Start_Up(session_); });
    gate_.Set_History(&history_);
    return started_;
}

void Program::Keep_Rescue_Copies() {
    constexpr int milliseconds = 1000;
    rescue_ = std::make_unique<Rescue>(session_);
    gate_.Enter_Command([this] { rescue_->Offer(); }, "Load Rescue Copies");
    rescue_clock_.start(milliseconds);
    last_act_ = std::make_unique<Last_Act>([this] { Keep_Before_The_End(); });
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &rescue_clock_,
                     [this] { Keep_Before_The_End(); });
}

void Program::Keep_Before_The_End() {
    if (rescue_ && !ended_) {
        if (!gate_.Is_Busy()) {
            rescue_->Note();
        }
        Write_Rescue_Copies();
    }
}

void Program::Write_Rescue_Copies() {
    constexpr std::chrono::seconds long_enough{5};
    if (rescue_) {
        rescue_->Write();
        rescue_->Flush(long_enough);
    }
}

void Program::End() {
    ended_ = true;
    Keep_Last_Session(session_);
    gate_.Set_History(nullptr);
    last_act_.reset();
    rescue_clock_.stop();
    if (rescue_) {
        rescue_->Finish(session_.exit_saved.value_or(false));
    }
    QCoreApplication::exit(0);
}

} // namespace kestrum::desktop
