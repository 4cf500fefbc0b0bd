#pragma once

namespace kestrum::desktop {

/// The folder that a test gives to a program that it starts to end it; null in a run of the tests.
[[nodiscard]] const char* Folder_Of_Typing_Child(int count, char** values);

/// The desktop program with a user who types "4.1357" into the first field. It says "ready" then
/// and runs until somebody ends it.
int Type_And_Wait(const char* folder);

} // namespace kestrum::desktop
