#pragma once

#include "core/session.h"

namespace kestrum {

/// Brings a new session up to the moment when `Main` shows.
void Start_Up(Session& session);

/// The exit of the program: every screen is unloaded.
void Exit_Program(Session& session);

} // namespace kestrum
