#pragma once

#include "platform/drawing.h"
#include "platform/printer.h"

namespace kestrum::cli {

/// A document as it would lie in a printer: its pages, each a list of what stands on it.
struct Printed_Document {
    std::string device;
    std::vector<std::vector<Draw_Operation>> pages;
};

/// Printers that keep what is printed.
class Headless_Printers : public Printers {
public:
    explicit Headless_Printers(std::vector<std::string> devices) : devices_(std::move(devices)) {}

    [[nodiscard]] std::vector<std::string> Devices() const override { return devices_; }

    void Print_Screen(const std::string& device, const Screen_Picture& picture) override;

    /// Hands out and forgets what was printed.
    [[nodiscard]] std::vector<Printed_Document> Take_Documents();

private:
    std::vector<std::string> devices_;
    std::vector<Printed_Document> documents_;
};

} // namespace kestrum::cli
