# From the browser to results of three cases, with a fluid and a pipe from the tables, and back again.
set-date 2026-11-24
start
expect-form frmTRProg
expect-state cmdOK enabled
expect-state txtTagNum hidden
click cmdOK
expect-form frmObxProg
expect-state optProgram(1) checked
expect-state mnuLiquidTable enabled
click cmdCancel
expect-form frmTRProg
new 1
expect-form frmLiqLineLoss
expect-title "Ver.6.0.0.  Line Loss  - Liquid flow"
expect-window "Ver.6.0.0.  Line Loss  - Liquid flow"
expect-focus txtTagNum
expect lblSetupSelections "English mass units, calculate data"
expect lblCalcSource "Colebrook equation, Darcy formula and Crane Technical Paper No. 410"
expect cmdMatl Steel
expect txtBy By
expect txtApprov App
expect cmdDate Date
expect-state chkEntrance unchecked
expect-state optDestination checked
expect-state cmdUnits(6) hidden
expect-state mnuPrint disabled
expect-tip txtSGFlow(0) "Specific gravity @ FTPy"

# A case worked by hand: no fluid from the table.
include good-case.qs
answer Yes
click cmdCalculate(1)
expect-box "Flow Status" "Normal flow in is in the Transition Zone  \nUse data with care\n\n\n(Press No to hide the message)" YesNo Question
expect txtReynoldsNum(1) 156731
expect txtVelocity(1) 5.035
expect txtDestPress(1) 90.31
expect txtDropP100(1) 0.9689
expect txtEquivLen 1000
expect txtDestPress(0) ""
expect-focus txtBy

# A changed number is shown so, and takes its results away.
type txtFlow(1) 90000
leave
expect-colour txtFlow(1) 10 3
expect txtDestPress(1) ""
type txtFlow(1) 100000.0
leave
expect-colour txtFlow(1) 4 3

# Laminar: 64 / Re. Re = 6.31 x 100000 / 4.026 / 1000 = 156.7.
type txtViscosity(1) 1000
answer No
click cmdCalculate(1)
expect-box "Flow Status" "Normal flow is in the Laminar Zone \nUse data with care\n\n\n(Press No to hide the message)" YesNo Question
# loss = 0.000336 x (64 / 156.731) x 100000^2 / 4.026^5 / 62.36 = 20.80 psi per 100 ft; 100 psig do not carry
# it over 1000 ft, so the line is shortened.
expect-box "Line pressure loss calculation" "Zero pressure reached @ 62 % of equiv line length\nFlow cannot be maintained" OK Stop
expect txtDestPress(1) ""
type txtInletPipeLen 100
click cmdCalculate(1)
expect txtReynoldsNum(1) 156.7
expect txtDropP100(1) 20.8
expect txtDestPress(1) 79.2

# The other direction: 79.2 psig wanted at the end takes 100 psig at the start.
click optSource
expect lblPressure "Destination pressure"
expect lblDestPress "Source pressure"
expect txtDestPress(1) ""
type txtPressure(1) 79.2
type txtViscosity(1) 1000
click cmdCalculate(1)
expect txtDestPress(1) 100
expect lblDestPress "Source pressure"
click optDestination
expect lblPressure "Source pressure"

# A fluid needs temperature and pressure of its case.
click mnuPureLiquid1
expect-box "Fluid Properties" "Need Pressure and Temperature to continue" OK
type txtTemp(0) 60
type txtPressure(0) 100
click mnuPureLiquid1
expect-focus lstFluid
expect-state txtFlow(0) disabled
expect-state mnuPureLiquid2 disabled
key lstFluid Escape
expect-focus txtPressure(0)
click mnuPureLiquid1
pick lstFluid "Water "
doubleclick lstFluid
expect txtFluid Water
expect-focus cmdCalculate(0)
# Water at 60 degF, to four figures: gravity 0.99995, viscosity 1.118 cp (Bingham).
expect txtSGFlow(0) 1
expect txtViscosity(0) 1.118
expect txtDestPress(1) ""

# The pipe from its table.
click cmdPipeID
expect-form frmPipeSize
expect lblPipeUnits in
expect lblConvertUnits ""
expect-state cmdSearch disabled
expect-state cmdOK disabled
type txtNomSize 0
click cmdSearch
expect-box "Pipe Size file" "Pipe size 0 is not on File" OK
type txtNomSize 4
key txtNomSize Enter
expect-focus lstPipeSize
expect-state cmdOK enabled
type txtNomSize 5
click cmdOK
expect-box "Pipe sizes" "Please find and select an item" OK
type txtNomSize 4
click cmdSearch
# Another family has other diameters at the same size; it is in hand until another one is chosen.
expect-row lstFamily 0 "Steel, NPS"
pick lstFamily "PVC and CPVC"
expect-count lstPipeSize 0
expect lblFamilyNote "Minimum walls"
key lstFamily Enter
pick lstPipeSize "  4,DR41"
click cmdOK
expect txtInletPipeID 4.28
click cmdPipeID
expect lblFamilyNote "Minimum walls"
pick lstFamily 0
type txtNomSize 4
click cmdSearch
pick lstPipeSize "  4,40S"
click cmdOK
expect-form frmLiqLineLoss
expect txtInletPipeID 4.026

type txtFlow(0) 150000
click cmdCalculate(0)
expect-state txtDestPress(0) enabled
click cmdDate
expect cmdDate 11/24/2026

# Material, then New, then the browser.
click cmdMatl
pick lstMatl Concrete
doubleclick lstMatl
expect cmdMatl Concrete
expect txtDestPress(0) ""
answer No
click mnuNew
expect-message Save changes?
expect cmdMatl Steel
expect txtFlow(0) ""
expect cmdUnits(1) lb/h
expect-focus txtTagNum
click mnuHelp
close
expect-form frmTRProg
click mnuAbout
expect-message Quillmetra
click mnuExit
