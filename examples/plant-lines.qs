# A plant's list of lines: thirty rows of a spreadsheet become records, and the one that is too small gets its
# pipe. Played from this folder, beside the list.
strict on
start
# The database begins with a line typed by hand.
new 1
type txtTagNum CW-110
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message created
click mnuProgram

import @TRData plant-lines.csv
click cmdDBOpen
expect lblNumRecords 31
open CW-115
expect cmdService "Water - general service"
expect txtPipeName 4 in sch 40
expect txtVelocity(0) 11.33
answer OK
click cmdCalculateAll
expect-message Transition
expect-status "Maximum: Velocity above 10 ft/s: beyond the criterion of Water - general service (Crane TP-410: 4 to 10 ft/s)."
click cmdSizes
click optCase(0)
pick lstSchedule 7
click cmdOK
expect txtPipeName 5 in sch 40
answer OK
click cmdCalculateAll
expect-message Transition
expect-status ""
answer Yes
click mnuSave
expect-message Overwrite
click mnuProgram

# Steam without a temperature is saturated; the same list in SI units.
open ST-302
expect txtFluid Steam
click mnuProgram
open HC-404
expect txtVelocity(0) 2.322
click mnuProgram
sizes @TRData ST-305 1 "" 40
recalculate @TRData "" fluids
export @TRData @plant-lines.xlsx
