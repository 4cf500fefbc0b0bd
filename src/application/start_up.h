#pragma once

#include "core/session.h"

namespace kestrum {

/// Brings a new session up to the moment when `Main` shows.
void Start_Up(Session& session);

/// The exit by the menu: the session file is written and every screen is unloaded, `Main` first.
/// A session file that cannot be written is told in a box and stops nothing; `exit_saved` holds
/// how it went.
void Exit_Program(Session& session);

/// The exit by the frame of `Main`.
void Close_Main(Session& session);

} // namespace kestrum
