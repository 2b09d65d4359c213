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
# Its service alone is a change to save.
pick cmdService "Erosional - cont"
expect-window "L-1* - Ver.6.0.0.  Line Loss  - Liquid flow"
answer Yes
click mnuSave
expect-message Overwrite
click mnuProgram
open L-1
expect cmdService "Erosional - continuous"
expect-window "L-1 - Ver.6.0.0.  Line Loss  - Liquid flow"
# The pipe of the table is remembered until its diameter is typed over.
click cmdPipeID
type txtNomSize 6
click cmdSearch
pick lstPipeSize "  6,40,"
click cmdOK
expect txtPipeName 6 in sch 40
answer Yes
click mnuSave
expect-message Overwrite
answer Yes
pick cmdUnits(18) mm
expect-message Round converted data?
expect txtPipeName 6 in sch 40
answer No
click mnuProgram
expect-message Save changes?
open L-1
expect txtPipeName 6 in sch 40
type txtInletPipeID 6.065
expect txtPipeName ""
key txtFlow(1) Ctrl+z
expect txtPipeName 6 in sch 40
# The same options once more are no change to save.
click cmdFormLayout
click cmdOKOptions
click mnuProgram

# --- A water hammer: its fluid typed by hand ---------------------------------------------------------------------
start
new 3
include hammer-case.qs
type txtTagNum H-1
click cmdCalculateliq
click mnuSave
click mnuProgram
# The box of the selected time waits for a calculation of this sitting.
open H-1
expect-state txtSelectedTime hidden
expect-state lblSelectedTime hidden
click cmdCalculateliq
type txtSelectedTime 4
click cmdCalculateliq
answer Yes
click mnuSave
expect-message Overwrite the existing record?
click mnuProgram
start
open H-1
expect-state txtSelectedTime visible
expect lblLiqTestBasis Mas
# A name of one's own is no fluid of the table, nor is it one after a look at the table.
expect-state mnuPureLiquids unchecked
click mnuPureLiquids
expect-state mnuPureLiquids checked
click cmdCancel
expect-state mnuPureLiquids unchecked
expect pltClosing "Pressure wave 754 to 199.5 psig over 0.9128 to 6 secs, critical 1.141 secs, minimum 2.985 secs, selected 4 secs, allowable 300 psig"
expect txtSelectedForce 4311
expect txtMaxAllowPressure 300
expect txtPipeWall 0.28
expect txtSelectedTime 4
expect txtCriticalTime 1.141
expect txtPipeMatl Steel
expect-colour txtPipeMatl 4
type txtPipeMatl Bronze
leave
expect-colour txtPipeMatl 10
expect txtCriticalTime ""
answer No
click mnuProgram
expect-message Save changes?
open H-1
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
# A mixture whose first component has no percentage comes back whole and can be renewed.
click mnuMixtures
pick lstFluid "Toluene "
click cmdSelect
pick lstFluid "Benzene "
click cmdSelect
type txtPercent(1) 60
pick lstFluid "n-Hexane "
click cmdSelect
key txtPercent(2) R
click cmdCalcPseudo
expect txtSGFlow 0.7626
type txtTagNum H-2
click mnuSave
click mnuProgram
open H-2
answer Yes
type txtFlowTemp 100
leave
expect-message Update Fluid Properties?
expect txtSGFlow 0.7739
click mnuMixtures
expect lblComponent(0) Toluene
expect txtPercent(2) 40
click cmdCancel
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
expect lblSetupSelections "English units, calculate data"
expect-state mnuPureGases1 checked
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
expect-state mnuPureGases1 unchecked
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

# Six figures of steam's critical pressure, before and after.
start
new 5
type txtTagNum S-5
click cmdFormLayout
click optMassSIUnits
click cmdOKOptions
type txtPressure(0) 1000
click mnuSatSteam1
expect txtCritPressure(0) 22119.4
click mnuSave
click mnuProgram
open S-5
expect txtCritPressure(0) 22119.4
click mnuProgram

# --- Texts that the record keeps -----------------------------------------------------------------------------------
# The headings may name a longer manufacturer than a record has room for; their file stays as it is.
write-file TRData/TRHDG.txt "\n\n\n\n\nNorthfield Pump and Valve Company Limited\n"
start
new 4
type txtTagNum N-1
type txtTemp(0) 80
type txtPressure(0) 100
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
click mnuSave
expect-status "Saved as N-1. Only the first 30 letters of the manufacturer in the headings go into the record"
click mnuPrint
expect txtManufacturer "Northfield Pump and Valve Comp"
click mnuReload
expect txtManufacturer "Northfield Pump and Valve Company Limited"
type txtManufacturer Southfield
type txtComments(2) third
printer 1 1 1
click cmdOK
answer No
click mnuProgram
expect-message Save changes?
open N-1
answer No
click cmdDate
click mnuProgram
expect-message Save changes?

# A tag typed and taken out again is no change.
new 1
type txtTagNum A
type txtTagNum ""
click mnuProgram
expect-no-message
new 2
type txtTagNum A
type txtTagNum ""
click mnuProgram
expect-no-message
new 3
type txtTagNum A
type txtTagNum ""
click mnuProgram
expect-no-message

# --- A fluid whose row is gone from its table, and another whose table is gone ------------------------------------
start
new 1
include good-case.qs
click mnuPureLiquid2
pick lstFluid "Toluene "
click cmdSelect
type txtTagNum L-2
click mnuSave
click mnuProgram
write-file TRData/Liquid.txt "Name,Tp\n"
open L-2
answer Yes
answer Yes
type txtTemp(1) 200
leave
expect-message Update Fluid Properties?
expect-box "Fluid Properties" "Toluene is not in Liquid.txt\nKeep the old properties?" YesNo
expect txtSGFlow(1) 0.8722
answer Yes
answer No
type txtTemp(1) 210
leave
expect-message Update Fluid Properties?
expect-message Keep the old properties?
expect txtSGFlow(1) ""
expect txtViscosity(1) ""
answer No
click mnuProgram
expect-message Save changes?
remove-file TRData/Gas.txt
open D-5
# No is its default.
strict off
click cmdOK(0)
expect-box "Fluid Properties" "Methane is not in Gas.txt\nKeep the old properties?" YesNo
expect txtCompFactor(0) ""

# --- OK of unchanged options converts no number of a saved record, and so asks for no rounding ----------------------
start
strict on
open L-1
click cmdFormLayout
click optMassSIUnits
answer Yes
click cmdOKOptions
expect-message Round converted data?
answer Yes
click mnuSave
expect-message Overwrite
click mnuProgram
open L-1
click cmdFormLayout
click cmdOKOptions
quit
