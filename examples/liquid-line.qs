# A worked example: cooling water at 60 degF through 1000 ft of 4 inch schedule 40 steel pipe with some
# valves and elbows, for a maximum, a normal and a minimum flow.
#
#   quillmetra-script examples/liquid-line.qs
start
new 1
expect-form frmLiqLineLoss
type txtTagNum CW-101

# The line: the inside diameter from the table of pipe sizes.
type txtInletPipeLen 1000
type txtOutletPipeElev 20
type txtInletGate 2
type txtInletCheck 1
type txtInlet90Deg 6
click cmdPipeID
expect-form frmPipeSize
type txtNomSize 4
click cmdSearch
pick lstPipeSize "  4,40S"
click cmdOK
expect-form frmLiqLineLoss
expect txtInletPipeID 4.026

# The fluid at 60 degF and 100 psig, from the table of liquids.
type txtTemp(0) 60
type txtPressure(0) 100
click mnuPureLiquid1
pick lstFluid "Water "
click cmdSelect
show txtFluid
show txtSGFlow(0)
show txtViscosity(0)

# The same for the other two cases.
type txtTemp(1) 60
type txtPressure(1) 100
click mnuPureLiquid2
pick lstFluid "Water "
click cmdSelect
type txtTemp(2) 60
type txtPressure(2) 100
click mnuPureLiquid3
pick lstFluid "Water "
click cmdSelect

type txtBy Process
type txtComments(0) Cooling water supply, sheet 4.
type txtFlow(0) 150000
type txtFlow(1) 100000
type txtFlow(2) 40000
answer No
click cmdCalculate(0)
click cmdCalculate(1)
click cmdCalculate(2)

show lblSetupSelections
show txtDropP100(0)
show txtDestPress(0)
show txtVelocity(0)
show txtReynoldsNum(0)
show txtDestPress(1)
show txtVelocity(1)
show txtDestPress(2)
show txtVelocity(2)
show txtEquivLen

# The figures of the guide.
expect txtViscosity(0) 1.118
expect txtReynoldsNum(0) 210283
expect txtDropP100(0) 2.115
expect txtVelocity(0) 7.552
expect txtDestPress(0) 69.1

# The report, beside where the player was started.
click mnuPrint
click cmdDate
type txtTitle Northfield Terminal
type txtSubTitle Unit 200
type txtProjectNo 4471
type txtProjectName Tank farm revamp
pdf liquid-line.pdf
click cmdOK
quit
