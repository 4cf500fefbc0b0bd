#pragma once

#include "desktop/text_bridge.h"

#include <QDir>

namespace kestrum::desktop {

/// A path of Qt's as the system writes it: with its own separators.
[[nodiscard]] inline std::string Native_Path(const QString& path) {
    return From_Qt(QDir::toNativeSeparators(path));
}

} // namespace kestrum::desktop
