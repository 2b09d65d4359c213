# A worked example: superheated steam at 600 degF and 150 psig through 800 ft of 6 inch schedule 40 pipe to a
# turbine, and how much the same line takes at low pressure before it chokes.
#
#   quillmetra-script examples/steam-line.qs
start
new 2
expect-form frmGasLineLoss
type txtTagNum ST-204

# The line.
type txtInletPipeLen 800
type txtInletGate 1
type txtInlet90Deg 8
click cmdPipeID
type txtNomSize 6
click cmdSearch
pick lstPipeSize "  6,40S"
click cmdOK
expect txtInletPipeID 6.065

# Steam at the turbine's flow.
type txtTemp(0) 600
type txtPressure(0) 150
answer No
click mnuSupersteam1
show txtFluid
show txtRatioSH(0)
show txtViscosity(0)
type txtFlow(0) 25000
answer No
click cmdCalculate(0)
show txtDestPress(0)
show txtVelocity(0)
show txtSonicVelocity(0)
show pltLine

# The same flow from 5 psig: the line chokes, and the message says where.
type txtTemp(2) 600
answer No
type txtPressure(2) 5
click mnuSupersteam3
type txtFlow(2) 25000
click cmdCalculate(2)
expect txtDestPress(2) ""
show txtVelocity(2)

# The figures of the guide.
expect txtRatioSH(0) 1.295
expect txtDestPress(0) 136.3
expect txtVelocity(0) 141.5
expect txtSonicVelocity(0) 1926

# The report, beside where the player was started.
click mnuPrint
click cmdDate
type txtTitle Northfield Terminal
type txtSubTitle Unit 200
type txtProjectNo 4471
type txtProjectName Tank farm revamp
pdf steam-line.pdf
click cmdOK
quit
