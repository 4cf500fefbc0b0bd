#pragma once

namespace kestrum::desktop {

class Program;

/// With KESTRUM_BENCH set to "start" or "sheet" the program measures how long it takes to paint
/// `Main`, or a sheet after that, prints the figures as a line of JSON and ends. Call before start.
void Measure_If_Asked(Program& program);

} // namespace kestrum::desktop
