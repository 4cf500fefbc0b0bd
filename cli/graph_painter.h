#pragma once

#include "platform/painter.h"

namespace kestrum::cli {

/// The painter of a module that lies beside the program and is loaded with the first picture: most
/// verbs paint nothing and would start several times slower with it.
class Late_Painter : public Painter {
public:
    /// Raises 481 also when there is no such module, as in a build without Qt.
    [[nodiscard]] std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                                         const std::optional<Placed_Logo>& logo) override;

private:
    Painter* painter_ = nullptr;
};

} // namespace kestrum::cli
