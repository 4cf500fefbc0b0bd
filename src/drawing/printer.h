#pragma once

#include "drawing/paper.h"

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

    /// Prints a document, which is laid out for the paper that it comes on. Raises 482 when the
    /// device fails, and what the layout raises.
    virtual void Print(const std::string& device, const Document& document) = 0;

    /// A face with windows shows the next print instead of printing it at once.
    virtual void Preview_Next() {}

    /// Prints a screen as one picture on one page. Raises 482 when the device fails.
    virtual void Print_Screen(const std::string& device, const Screen_Picture& picture) = 0;
};

} // namespace kestrum
