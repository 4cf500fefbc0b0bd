#pragma once

#include "drawing/drawing.h"
#include "drawing/printer.h"

namespace kestrum::cli {

/// A document as it would lie in a printer.
struct Printed_Document {
    std::string device;
    Pages pages;
};

/// Printers that keep what is printed.
class Headless_Printers : public Printers {
public:
    explicit Headless_Printers(std::vector<std::string> devices) : devices_(std::move(devices)) {}

    [[nodiscard]] std::vector<std::string> Devices() const override { return devices_; }

    void Print(const std::string& device, const Document& document) override;
    void Print_Screen(const std::string& device, const Screen_Picture& picture) override;

    /// Hands out and forgets what was printed.
    [[nodiscard]] std::vector<Printed_Document> Take_Documents();

private:
    std::vector<std::string> devices_;
    std::vector<Printed_Document> documents_;
};

} // namespace kestrum::cli
