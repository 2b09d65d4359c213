// What the fluid routines of liquids and gases ask and tell alike.
#pragma once

namespace quillmetra {

// Asks whether to go on although VaporPressure says that the fluid is a "gas" or a "liquid" at flow. The
// vapor pressure is told in the unit of the pressure row, gauge or absolute as the pressure itself. On No
// SelectedFluidName is cleared, and the answer is false.
bool GoOnInOtherPhase(const char* phase, const char* title);

inline constexpr const char* NotCalculable = "Fluid properties cannot be calculated";
// Tells that constants without sense have given a property that is no number.
void TellNotCalculable(const char* title);

}  // namespace quillmetra
