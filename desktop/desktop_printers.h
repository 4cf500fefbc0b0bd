#pragma once

#include "platform/printer.h"

#include <QWidget>

#include <functional>

namespace kestrum::desktop {

/// The printers of the system.
class Desktop_Printers : public Printers {
public:
    /// `window_of` gives the window of a screen as it stands.
    explicit Desktop_Printers(std::function<QWidget*(const std::string& screen)> window_of)
        : window_of_(std::move(window_of)) {}

    [[nodiscard]] std::vector<std::string> Devices() const override;
    void Print_Screen(const std::string& device, const Screen_Picture& picture) override;

private:
    std::function<QWidget*(const std::string& screen)> window_of_;
};

} // namespace kestrum::desktop
