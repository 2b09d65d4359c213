# The way of a user through a liquid line, every box foreseen: refused data, a pipe and a fluid from the
# tables, a result, and the change of an input that blanks it again.
strict on
start
expect-form frmTRProg
new 1
expect-form frmLiqLineLoss
expect-state mnuPureLiquid1 disabled

# Nothing is entered: the first check speaks, and the focus goes to the box that it means.
answer OK
click cmdCalculate(0)
expect-box "Data checking" "Flow Temperature must be greater than -459.67" OK Stop
expect-focus txtTemp(0)

# The pipe dialog: search is off until a size is typed, and its close box changes nothing.
click cmdPipeID
expect-form frmPipeSize
expect-state cmdSearch disabled
type txtNomSize 4
key txtNomSize Enter
pick lstPipeSize "  4,40S"
doubleclick lstPipeSize
expect-form frmLiqLineLoss
expect txtInletPipeID 4.026
click cmdPipeID
close
expect txtInletPipeID 4.026

type txtInletPipeLen 1000
type txtTemp(0) 60
type txtPressure(0) 100
answer Yes
leave
expect-message Enter new Fluid Properties
click mnuPureLiquid1
expect-state fraLiquidData visible
pick lstFluid "Water "
click cmdSelect
expect-state fraLiquidData hidden
expect txtFluid Water
show txtSGFlow(0)

type txtFlow(0) 100000
answer No
click cmdCalculate(0)
expect-message Transition Zone
show txtDestPress(0)
show pltLine
type txtFlow(0) 90000
expect txtDestPress(0) ""
expect pltLine ""

answer No
click mnuExit
expect-message Save changes?
expect-form none
quit
