#pragma once

#include "platform/printer.h"

#include <QPixmap>

#include <functional>

namespace kestrum::desktop {

/// The printers of the system.
class Desktop_Printers : public Printers {
public:
    /// `picture_of` gives the window of a screen as it stands.
    explicit Desktop_Printers(std::function<QPixmap(const std::string& screen)> picture_of)
        : picture_of_(std::move(picture_of)) {}

    [[nodiscard]] std::vector<std::string> Devices() const override;
    void Print_Screen(const std::string& device, const Screen_Picture& picture) override;

private:
    std::function<QPixmap(const std::string& screen)> picture_of_;
};

} // namespace kestrum::desktop
