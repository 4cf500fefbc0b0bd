#pragma once

#include "core/session.h"

namespace kestrum {

/// Works out every derived field of a sheet from its inputs, in the units of `Main.Check2`. Each
/// figure is written as a text, and later steps read that text back. Warnings show as boxes and
/// the calculation goes on; a failed step shows its error and ends it, and the fields keep what
/// they have by then. Raises the errors of valve counts that are no integers, for these are read
/// before its handler begins.
void Calc_Flow_Test(Session& session, Flow_Sheet& sheet);

/// What a reader does with a sheet that it has filled.
using Flow_Calculation = void (*)(Session&, Flow_Sheet&);

/// The beginning of `Calc_Flow_Test`, by which a file is refused: raises the same errors of valve
/// counts and changes no field. For a sheet that is to be completed before its calculation.
void Take_Valve_Counts(Session& session, Flow_Sheet& sheet);

/// The same for all five sheets in turn, each created at need.
void Calc_All_Flow_Tests(Session& session);

} // namespace kestrum
