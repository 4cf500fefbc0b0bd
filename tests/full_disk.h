#pragma once

#include <cstdint>
#include <functional>

namespace kestrum {

/// Runs a routine in a process of its own, for which the disk is full behind so many bytes of each
/// file. Gives whether it returned true; always false where a system knows no such limit.
[[nodiscard]] bool Holds_On_Full_Disk(std::uint64_t bytes, const std::function<bool()>& routine);

} // namespace kestrum
