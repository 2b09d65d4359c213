// The modulus of elasticity of a pipe at the temperature of its liquid, from a row of Modulus.txt.
#pragma once

#include <span>
#include <string>

namespace quillmetra {

// The fields of a row, first field 0: the material, then its modulus at 70, 100, 200 ... 1200 degF, divided
// by 1e7 psi. The first one that reads 0 ends the material's range. A field that is not there counts 0.
using ModulusFields = std::span<const std::string>;

// The highest temperature that the row has data for, degF; below 70 for a row that has next to none.
double ModulusLimit(ModulusFields fields);

// psi at a temperature of 50 degF to the limit: a straight line between two columns, and below 100 degF the
// modulus at 70.
double ModulusAt(ModulusFields fields, double temperature);

// Takes the row's modulus at FlowTemperature as that of the pipe: PipeModulus, row 27 column 1 (whole, in the
// unit shown) and the material's name. A temperature that the row has no data for is told; then there is no
// pipe material in the record, and the result is false. Throws when the modulus is not finite.
bool LoadPipeModulus(ModulusFields fields);

}  // namespace quillmetra
