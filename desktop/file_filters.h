#pragma once

#include <QStringList>

#include <string_view>

namespace kestrum::desktop {

/// The entries of a chooser's filter ("words|pattern|words|pattern") as Qt writes them:
/// "words (pattern)". A filter that is defective still gives entries that work.
[[nodiscard]] QStringList Name_Filters(std::string_view filter);

/// The one ending that an entry stands for, ".dat"; empty where it stands for several or for all.
[[nodiscard]] QString Ending_Of(const QString& entry);

} // namespace kestrum::desktop
