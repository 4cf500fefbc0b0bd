#include "desktop/focus_keeper.h"

#include "application/events.h"

#include <utility>

namespace kestrum::desktop {

namespace {

/// Sets a switch for as long as it lives, errors included.
class Switched_On {
public:
    explicit Switched_On(bool& on) : on_(on) { on_ = true; }

    Switched_On(const Switched_On&) = delete;
    Switched_On& operator=(const Switched_On&) = delete;

    ~Switched_On() { on_ = false; }

private:
    bool& on_;
};

} // namespace

bool Focus_Keeper::Is_Excused(const Control& field) const {
    const auto found = excused_.find(&field);
    return found != excused_.end() && found->second == field.Text();
}

bool Focus_Keeper::Goes_To(Control& next) {
    if (held_ == &next) {
        return true;
    }
    Control* const left = std::exchange(held_, &next);
    if (left != nullptr && !checking_ && !Is_Excused(*left)) {
        const Switched_On while_it_runs(checking_);
        Leave(session_, *left);
    }
    return held_ == &next;
}

} // namespace kestrum::desktop
