#pragma once

#include <map>
#include <string>

namespace kestrum {

/// Files of a rescue folder: names with their contents.
using Rescue_Set = std::map<std::string, std::string>;

/// Puts several files into a folder as one step. A program that is killed in the middle leaves
/// either all the old ones or, behind `Complete_Rescue_Set`, all the new ones: the engine in
/// millimetres beside a sheet in inches would be a test that nobody has made. Raises what the
/// writing raises.
void Write_Rescue_Set(const std::string& folder, const Rescue_Set& set);

/// Ends the step that a killed program has begun; what it had not decided yet is taken back. Only
/// for who holds the folder. Raises what the reading raises.
void Complete_Rescue_Set(const std::string& folder);

} // namespace kestrum
