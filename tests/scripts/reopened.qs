# Saved calculations of the five programs, opened again: what was calculated is there and drawn, and a change of
# temperature or pressure asks about the fluid of the record: one of the table may be renewed, one typed by hand is to be entered.
strict on
start

# --- A liquid line and its picture -------------------------------------------------------------------------------
new 1
include good-case.qs
type txtTagNum L-1
answer No
click cmdCalculate(1)
expect-message Transition
answer Yes
answer OK
click mnuSave
expect-message Create
expect-message New database
click mnuProgram
open L-1
expect pltLine "Normal case: Pressure 100 to 90.31 psig over 1000 ft"
click mnuProgram

# --- A water hammer: its fluid typed by hand ---------------------------------------------------------------------
start
new 3
include hammer-case.qs
type txtTagNum H-1
click cmdCalculateliq
type txtSelectedTime 4
click cmdCalculateliq
click mnuSave
click mnuProgram
start
open H-1
expect pltClosing "Pressure wave 754 to 199.5 psig over 0.9128 to 6 secs, critical 1.141 secs, minimum 2.985 secs, selected 4 secs, allowable 300 psig"
expect txtSelectedForce 4311
answer No
type txtFlowTemp 70
leave
expect-box "Temperature Has Changed" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
expect pltClosing ""
answer No
type txtOperPressure 90
leave
expect-box "Pressure Has Changed" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
# A liquid of the table is renewed on Yes, and stays on No.
click mnuPureLiquids
pick lstFluid "Toluene "
click cmdSelect
expect txtSGFlow 0.8668
answer No
type txtFlowTemp 120
leave
expect-box "Temperature Has Changed" "Update Fluid Properties?" YesNo
expect txtSGFlow 0.8668
answer Yes
type txtOperPressure 95
leave
expect-box "Pressure Has Changed" "Update Fluid Properties?" YesNo
expect txtSGFlow 0.8402
answer No
click mnuProgram
expect-message Save changes?

# --- The fluid data programs ---------------------------------------------------------------------------------------
start
new 4
type txtTagNum D-4
type txtTemp(0) 80
answer No
type txtPressure(0) 100
leave
expect-message Stop showing this message?
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
click mnuSave
click mnuProgram
open D-4
expect txtSGFTP(0) 0.8615
answer No
type txtTemp(0) 90
leave
expect-box "Temperature Has Changed" "Update Fluid Properties?" YesNo
expect txtSGFTP(0) ""
answer No
click mnuProgram
expect-message Save changes?
new 5
type txtTagNum D-5
type txtTemp(0) 80
answer No
type txtPressure(0) 100
leave
expect-message Stop showing this message?
click mnuPureGases1
pick lstFluid "Methane "
click cmdSelect
click mnuSave
click mnuProgram
open D-5
expect txtCompFactor(0) 0.9859
answer No
type txtPressure(0) 90
leave
expect-box "Pressure Has Changed" "Update Fluid Properties?" YesNo
expect txtCompFactor(0) ""
answer No
click mnuProgram
expect-message Save changes?
# Left without saving, the record is as it was.
open D-5
expect txtPressure(0) 100
expect txtCompFactor(0) 0.9859
answer Yes
type txtTemp(0) 120
leave
expect-box "Temperature Has Changed" "Update Fluid Properties?" YesNo
expect txtCompFactor(0) 0.9891
# A name typed over is no fluid of the table; then Yes ends the reminders for this run.
type txtFluid My own
answer Yes
type txtPressure(0) 90
leave
expect-box "Pressure Has Changed" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
type txtTemp(0) 90
leave
expect-no-message
answer No
click mnuProgram
expect-message Save changes?
