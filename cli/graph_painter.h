#pragma once

#include "drawing/painter.h"

namespace kestrum::cli {

/// The painter of a module that lies beside the program and is loaded with the first picture: most
/// verbs paint nothing and would start several times slower with it.
class Late_Painter : public Painter {
public:
    /// All raise 481 also when there is no such module, as in a build without Qt.
    [[nodiscard]] std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                                         const std::optional<Placed_Logo>& logo) override;
    [[nodiscard]] std::string Picture_Of(std::span<const Figure> pages,
                                         Picture_Format format) override;
    void Use(const Picture_Settings& settings) override;
    [[nodiscard]] std::string Pdf_Of(const Document& document, Paper_Size paper) override;

    /// The painter of the module. Raises 481 when there is none.
    [[nodiscard]] Painter& Loaded();

private:
    Painter* painter_ = nullptr;
};

} // namespace kestrum::cli
