# Undo and redo on the calculation forms: steps back and on, across units, a fluid, a pipe and a save. None of
# them asks anything.
strict on
start

# --- Steps of a liquid line ------------------------------------------------------------------------------------
new 1
expect-state mnuUndo disabled
type txtInletPipeLen 650
type txtInletPipeID 6.065
type txtFlow(0) 150000
type txtTemp(0) 100
expect-window "* - Ver.6.0.0.  Line Loss  - Liquid flow"
# What stands in the box is its own until it is left.
key txtPressure(0) 6
key txtPressure(0) 5
expect txtPressure(0) 65
key txtPressure(0) Ctrl+Z
expect txtPressure(0) ""
type txtPressure(0) 65
answer Yes
focus txtSGFlow(0)
expect-message Enter new Fluid Properties
type txtSGFlow(0) 0.9
type txtViscosity(0) 0.7
answer No
click cmdCalculate(0)
expect-message Transition Zone
expect txtDestPress(0) 63.13
# The results go, then the numbers, box by box.
click mnuUndo
expect txtDestPress(0) ""
expect-state mnuPrint disabled
expect-status "Undone: Loss per 100 ft, Maximum"
expect txtViscosity(0) 0.7
click mnuUndo
expect txtViscosity(0) ""
expect-focus txtViscosity(0)
expect-status "Undone: Viscosity, Maximum"
click mnuUndo
key txtViscosity(0) Ctrl+Z
expect txtPressure(0) ""
expect txtTemp(0) 100
key txtViscosity(0) Ctrl+Y
click mnuRedo
click mnuRedo
click mnuRedo
expect-state mnuRedo disabled
expect txtDestPress(0) 63.13
expect-state mnuPrint enabled
# A cleared result comes back with the number that gave it; a new act ends what could be done again.
type txtFlow(0) 1
expect txtDestPress(0) ""
click mnuUndo
expect txtFlow(0) 150000
expect txtDestPress(0) 63.13
expect txtTotalLoss(0) 1.865
click chkExit
expect-state mnuRedo disabled
click mnuUndo
expect-state chkExit unchecked
expect txtDestPress(0) 63.13

# --- Fluid and pipe --------------------------------------------------------------------------------------------
click mnuPureLiquid1
click mnuUndo
expect-state fraLiquidData hidden
expect txtDestPress(0) 63.13
click mnuPureLiquid1
pick lstFluid "Water "
click cmdSelect
expect txtFluid Water
click mnuUndo
expect txtFluid ""
expect txtSGFlow(0) 0.9
expect-state mnuPureLiquid1 unchecked
click mnuRedo
expect txtFluid Water
expect-state mnuPureLiquid1 checked
# No question about the properties, and the fluid is still the one of the table.
type txtTemp(0) 120
answer Yes
focus txtPressure(0)
expect-message Update Fluid Properties?
expect txtViscosity(0) 0.5577
click mnuUndo
click mnuUndo
expect txtTemp(0) 100
focus txtBy
expect-no-message
click cmdPipeID
type txtNomSize 8
click cmdSearch
pick lstPipeSize "  8,40,"
click cmdOK
expect txtInletPipeID 7.981
expect txtPipeName 8 in sch 40
click mnuUndo
expect txtInletPipeID 6.065
expect txtPipeName ""

# --- Units -----------------------------------------------------------------------------------------------------
click cmdUnits(25)
click cmdUnit(25)
pick cboUnit m
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect cmdUnits(25) m
expect txtInletPipeLen 198.11
click mnuUndo
expect cmdUnits(25) ft
expect txtInletPipeLen 650
click mnuRedo
expect cmdUnits(25) m
expect txtInletPipeLen 198.11
click mnuUndo
answer Yes
pick cmdUnits(25) m
expect-message Round converted data?
click mnuUndo
click cmdCalculate(0)
expect txtInletPipeLen 650

# --- A save ----------------------------------------------------------------------------------------------------
type txtTagNum U-1
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message created
expect-window "U-1 - Ver.6.0.0.  Line Loss  - Liquid flow"
expect-state mnuUndo enabled
type txtFlow(0) 90000
expect-window "U-1* - Ver.6.0.0.  Line Loss  - Liquid flow"
click mnuUndo
expect-window "U-1 - Ver.6.0.0.  Line Loss  - Liquid flow"
# Before the save is another record than the saved one.
click mnuUndo
answer Yes
answer OK
click mnuProgram
expect-box "Line Loss  - Liquid flow" "Save changes?" YesNo
expect-message unique Tag
click mnuRedo
expect txtTagNum U-1
click mnuProgram
expect-form frmTRProg
open U-1
expect txtFlow(0) 150000
expect-state mnuUndo disabled
type txtFlow(0) 90000
expect-colour txtDestPress(0) 4
click mnuUndo
click mnuNew
expect-state mnuUndo disabled
click mnuProgram

# --- The other forms -------------------------------------------------------------------------------------------
# The curve of a gas line comes back with its results, and steam with its title. The barometer is a step too.
start
new 2
include good-gas-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
expect pltLine "Normal case: Pressure 100 to 95.89 psig, Velocity 46.82 to 48.59 ft/s, Sonic velocity 1436 to 1437 ft/s over 1000 ft"
type txtFlow(1) 4000
click cmdCalculate(1)
click mnuUndo
expect pltLine ""
click mnuUndo
expect pltLine "Normal case: Pressure 100 to 95.89 psig, Velocity 46.82 to 48.59 ft/s, Sonic velocity 1436 to 1437 ft/s over 1000 ft"
click mnuSTP
type txtSTPBaro 14
click cmdOKSTP
expect txtDestPress(1) ""
click mnuUndo
expect txtDestPress(1) 95.89
click mnuSTP
expect txtSTPBaro 14.7
click cmdCancelSTP
click mnuSatSteam2
expect-title "Ver.6.0.0.  Line Loss  - Gas Flow - Saturated Steam"
click mnuUndo
expect-title "Ver.6.0.0.  Line Loss  - Gas Flow"
expect txtTemp(1) 60
start
new 3
include hammer-case.qs
click cmdCalculateliq
type txtSelectedTime 4
click cmdCalculateliq
click mnuUndo
click mnuUndo
click mnuUndo
expect-state txtSelectedTime hidden
expect pltClosing ""
click mnuRedo
click mnuRedo
click mnuRedo
expect txtSelectedWave 249.2
start
new 4
type txtTemp(0) 80
type txtPressure(0) 100
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
click mnuUndo
expect txtDensity(0) ""
click mnuRedo
expect txtDensity(0) 53.73
