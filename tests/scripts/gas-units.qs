# A unit chosen at each of the twelve positions of a gas's unit window: eleven are taken, and the critical
# temperature keeps its own.
strict on
start
new 2
include good-gas-case.qs
# The window leaves this unit alone, so that its button drops no list.
expect-count cmdUnits(12) 0
expect-row cmdUnits(0) 1 kg/h
click cmdUnits(25)
expect-focus cmdUnit(25)
expect-form frmUnits
click cmdUnit(0)
click cmdBasis
pick cboUnit kg
click cmdSelect
click cmdUnit(19)
pick cboUnit /m
click cmdSelect
click cmdUnit(2)
pick cboUnit degC
click cmdSelect
click cmdUnit(3)
pick cboUnit barg
click cmdSelect
click cmdUnit(4)
pick cboUnit kPa
click cmdSelect
click cmdUnit(12)
pick cboUnit degK
click cmdSelect
click cmdUnit(11)
pick cboUnit ata
click cmdSelect
click cmdUnit(20)
pick cboUnit m/s
click cmdSelect
click cmdUnit(13)
pick cboUnit mPa.s
click cmdSelect
click cmdUnit(18)
pick cboUnit mm
click cmdSelect
click cmdUnit(25)
pick cboUnit 1
click cmdSelect
click cmdUnit(9)
pick cboUnit kg/m3
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect-form frmGasLineLoss
expect cmdUnits(0) kg/m
expect cmdUnits(2) degC
expect cmdUnits(3) barg
expect cmdUnits(4) kPa
expect cmdUnits(12) degR
expect cmdUnits(11) ata
expect cmdUnits(13) mPa.s
expect cmdUnits(18) mm
expect cmdUnits(25) m
expect unVelocity m/s
expect txtCritTemp(1) 343
expect txtCritPressure(1) 45.3865
click cmdUnits(25)
expect lblFactor(9) kg/m3
click cmdCancelUn
answer No
click cmdCalculate(1)
expect-message Transition
expect txtDestPress(1) 6.611
expect txtDropP100(1) 9.299
expect txtVelocity(1) 14.81
expect txtSonicVelocity(1) 437.9
expect txtEquivLen 304.8
click cmdFormLayout
expect OptLeaveAsIs "Currently - User selected units"
expect-state OptLeaveAsIs checked
click cmdCancelOptions

# A zero that says nothing is left blank when the record is opened again, and a temperature below zero is not.
type txtEquip(1) 0
type txtTemp(1) -10
type txtTagNum G-1
answer Yes
answer OK
click mnuSave
expect-message Create
expect-message New database
expect-window "G-1 - Ver.6.0.0.  Line Loss  - Gas Flow"
click mnuProgram
open G-1
expect-window "G-1 - Ver.6.0.0.  Line Loss  - Gas Flow"
type txtTemp(1) -9
expect-window "G-1* - Ver.6.0.0.  Line Loss  - Gas Flow"
type txtTemp(1) -10
expect txtEquip(1) ""
expect txtTemp(1) -10
quit
