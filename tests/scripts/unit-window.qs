# The unit window through each of its messages, with Yes and with No, over a calculated case: a choice that is
# given up leaves the numbers alone, one that is taken converts inputs and results.
strict on
start

# --- A new calculation in volume units has nothing to convert yet: another unit is no change of the flow's basis.
new 1
click cmdFormLayout
click optVolEnglishUnits
click cmdOKOptions
answer No
click mnuProgram
expect-message Save changes?
new 1
expect cmdUnits(1) USgal/m
include good-case.qs
type txtSGFlow(1) 0.8
click cmdUnits(2)
click cmdUnit(2)
pick cboUnit degC
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect txtFlow(1) 100000
expect txtTemp(1) 15.5556

# --- Neither a number below zero nor one that is lost goes on standing in its box in the former unit.
start
new 1
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
expect txtEquivLen 1000
type txtEquip(1) -20
type txtSGFlow(1) ""
expect txtEquivLen ""
click cmdUnits(4)
click cmdUnit(4)
pick cboUnit kPa
click cmdSelect
click cmdUnit(7)
pick cboUnit cs
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect txtEquip(1) -137.893
expect txtViscosity(1) ""
type txtSGFlow(1) 0.8
answer OK
click cmdCalculate(1)
expect-message Viscosity must be greater than zero

# --- Units of the user's own stay what they are while others change. A pressure without an ending belongs to no
# mode, so that the mode cannot change under its numbers.
start
new 1
include good-case.qs
click cmdUnits(7)
click cmdUnit(7)
pick cboUnit 5
type cboUnit poise
type cboFactor 100
click cmdSelect
click cmdUnit(3)
pick cboUnit 9
type cboUnit Torr
type cboFactor 0.019337
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect txtViscosity(1) 0.01
expect txtPressure(1) 5171.43
click cmdUnits(2)
click cmdUnit(2)
pick cboUnit degC
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect txtViscosity(1) 0.01
click cmdFormLayout
click optAbsolutePressure
click cmdOKOptions
expect-status "Torr is neither gauge nor absolute: the pressures stay as they were"
expect txtPressure(1) 5171.43
click cmdFormLayout
expect-state OptGaugePress checked
click cmdCancelOptions
answer No
click cmdCalculate(1)
expect-message Transition
expect txtDestPress(1) 4670

start
new 1
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition

# --- In place: a flow by its present basis and time base; the last line leads here -----------------------------
expect-count cmdUnits(1) 7
pick cmdUnits(1) Mass
expect-form frmUnits
expect-focus cmdUnit(1)
click cmdUnit(5)
pick cboUnit 4
type cboUnit /wk
type cboFactor 0.006
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
# A time base of the user's own that the library does not have leaves nothing to choose from.
expect cmdUnits(1) lb/wk
expect-count cmdUnits(1) 1
expect-count cmdUnits(25) 2
click cmdUnits(1)
click cmdUnit(5)
pick cboUnit /h
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?

# --- Choosing: what the panel refuses ----------------------------------------------------------------------
click cmdUnits(25)
expect-form frmUnits
expect-title Liquid. Units - Default Library
expect lblInstruct "The current selections are shown.  Click unit for reselection and editing"
expect-state fraRow(1) visible
expect-state fraRow(0) hidden
expect-state fraRow(9) hidden
click cmdUnit(25)
expect lblInstruct "To select, double click the required unit.   To add a unit, click an empty line. Type in the name and the multiplier to convert to the first line unit"
expect-state cmdOK disabled
expect-state cmdSaveUser disabled
expect-state cmdReplace disabled
answer OK
pick cboUnit 0
type cboUnit foot
expect-box "Unit Edit" "This item is a base unit and cannot be changed" OK
expect cboUnit ""
expect cboFactor ""
expect-state cmdReplace disabled
answer OK
click cmdSelect
expect-box "Unit " "Unit must have a name" OK
pick cboUnit 4
type cboUnit 123456789
expect-state cmdReplace enabled
answer OK
click cmdReplace
expect-box "New Unit Name" "Maximum of 8 characters" OK Stop
answer OK
click cmdSelect
expect-box "New Unit Name" "Maximum of 8 characters" OK Stop
# Characters are counted, not bytes; a comma and a slash are characters like others.
type cboUnit µ,/56789
type cboFactor 0
answer OK
click cmdSelect
expect-box "Unit µ,/56789" "Multiplier must be greater than zero" OK
type cboFactor 1e-320
answer OK
click cmdSelect
expect-box "Unit µ,/56789" "Multiplier must be greater than zero" OK
type cboFactor -3
answer OK
click cmdSelect
expect-box "Unit µ,/56789" "Multiplier must be greater than zero" OK
type cboFactor 2,5
click cmdReplace
expect cboFactor 2
expect-status "2,5 is read as 2"
type cboFactor 2,7
click cmdSelect
expect lblFactor(25) µ,/56789
expect-status "2,7 is read as 2"

# --- The basis of a flow -----------------------------------------------------------------------------------
click lblFactor(1)
expect lblInstruct "Either mass or volumetric units are available.  The current selection is shown"
expect-state optMass checked
click optVol
click cmdCanBasis
click cmdUnit(1)
expect-state optMass checked
click optVol
click cmdBasis
pick cboUnit m3
click cmdCancel
expect lblFactor(1) lb
# Flow and time make one name of at most 8 characters.
click cmdUnit(1)
click cmdBasis
pick cboUnit 9
type cboUnit sevenLB
type cboFactor 7
answer OK
click cmdReplace
expect-box "New Unit Name" "Maximum of 8 characters for the flow unit and its time together" OK Stop
answer OK
click cmdSelect
expect-message flow unit and its time together
click cmdCancel

# --- OK and Cancel -----------------------------------------------------------------------------------------
answer No
click cmdOK
expect-box "Unit Display" "Update calculation for changes?\n\nOK?" YesNo
expect-form frmUnits
click cmdCancelUn
expect-form frmLiqLineLoss
expect cmdUnits(25) ft
expect txtInletPipeLen 1000
expect txtDestPress(1) 90.31

# A time base alone goes with the quantity that the flow has.
click cmdUnits(1)
click cmdUnit(5)
doubleclick cboUnit
click cmdUnit(5)
pick cboUnit /m
click cmdSelect
click cmdUnit(25)
pick cboUnit µ,/56789
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-box "Line Loss  - Liquid flow" "Round converted data?\n  Yes or No to round\n\n(or Cancel to hide the message)" YesNoCancel
expect cmdUnits(1) lb/m
expect txtFlow(1) 1666.67
expect cmdUnits(25) µ,/56789
expect txtInletPipeLen 500
expect txtDestPress(1) 90.31

# --- The user's set ----------------------------------------------------------------------------------------
# No is asked once more, as for OK, so that it can still end there.
click cmdUnits(2)
click cmdUnit(2)
pick cboUnit degC
click cmdSelect
answer No
answer No
click cmdSaveUser
expect-message Update calculation
expect-message Update calculation
expect-form frmUnits
answer Yes
click cmdSaveUser
expect-message Update calculation
expect-form frmUnits
click cmdCancelUn
expect cmdUnits(2) degF
expect txtTemp(1) 60

# --- The library -------------------------------------------------------------------------------------------
click cmdUnits(3)
answer No
click mnuSaveUnLibrary
expect-box "Confirm Deletion" "Save created units in a User Library File?\n\nOK?" YesNo
answer Yes
answer OK
click mnuRecallSavedUnLibrary
expect-box "Confirm Deletion" "Load the User Library File?\n\nOK?" YesNo
expect-box "Library Unit Files" "A User library has not been created" OK
click cmdUnit(25)
pick cboUnit 4
type cboUnit fathom
type cboFactor 6
click cmdReplace
click cmdCancel
answer Yes
click mnuSaveUnLibrary
expect-message Save created units
answer No
click mnuDefaultUnLibrary
expect-box "Confirm Deletion" "Load the default Library File?\n\nOK?" YesNo
# An open list shows the library that is in force.
click cmdUnit(25)
expect-row cboUnit 4 fathom
answer Yes
click mnuDefaultUnLibrary
expect-message Load the default Library File?
expect-row cboUnit 4 ""
click cmdCancel
expect-title Liquid. Units - Default Library
answer Yes
answer OK
click mnuDefaultUnLibrary
expect-message Load the default Library File?
expect-box "Library Unit Files" "The default library is already loaded" OK
answer Yes
click mnuRecallSavedUnLibrary
expect-message Load the User Library File?
answer No
click mnuDeleteLib
expect-box "Confirm Deletion" "Delete the User Library File?\n\nOK?" YesNo None No
click cmdUnit(25)
expect-row cboUnit 4 fathom
click cmdCancel
answer Yes
click mnuDeleteLib
expect-message Delete the User Library File?
expect-title Liquid. Units - Default Library

# A unit that the library has no longer keeps its multiplier in the calculation.
click cmdCancelUn
expect cmdUnits(25) µ,/56789
click cmdCalculate(1)
expect txtDestPress(1) 90.31

# --- Viscosities of all cases are converted by the gravity of the first, which is told where the others differ
start
new 1
include good-case.qs
type txtTemp(0) 60
type txtPressure(0) 100
type txtSGFlow(0) 0.5
type txtViscosity(0) 1
answer No
pick cmdUnits(7) cs
expect-message Round converted data?
expect txtViscosity(1) 2
expect-status "All cases were converted by the gravity of Maximum; those of Normal and Minimum differ: check flow and viscosity."
quit
