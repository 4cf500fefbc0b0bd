#include "desktop/last_act.h"

#include <exception>
#include <utility>

namespace kestrum::desktop {

Last_Act::Last_Act(std::function<void()> act) : act_(std::move(act)) {
    if (signals_.Handle() >= 0) {
        notifier_ = std::make_unique<QSocketNotifier>(signals_.Handle(), QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                         [this] { Do(); });
    }
}

void Last_Act::Do() {
    if (const std::optional<int> signal = signals_.Heard()) {
        try {
            act_();
        } catch (const std::exception&) { // NOLINT(*-empty-catch): the end comes in any case
        }
        End_Signals::Obey(*signal);
    }
}

} // namespace kestrum::desktop
