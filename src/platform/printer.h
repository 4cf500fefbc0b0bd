#pragma once

#include <string>
#include <vector>

namespace kestrum {

/// A screen to be printed as it stands, with its size in twips.
struct Screen_Picture {
    std::string screen;
    double width = 0;
    double height = 0;
};

/// The printers of the system.
struct Printers {
    Printers() = default;
    Printers(const Printers&) = delete;
    Printers& operator=(const Printers&) = delete;
    virtual ~Printers() = default;

    /// Names of the devices, the default one first.
    [[nodiscard]] virtual std::vector<std::string> Devices() const = 0;

    /// Prints a screen as one picture on one page. Raises 482 when the device fails.
    virtual void Print_Screen(const std::string& device, const Screen_Picture& picture) = 0;
};

} // namespace kestrum
