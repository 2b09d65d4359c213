# Results of the liquid line: what takes them away and what does not, the picture of the line, how a changed number
# shows, and the empty form after them.
strict on
start
new 1
include good-case.qs
type txtFlow(0) 100000
type txtTemp(0) 60
type txtPressure(0) 100
type txtSGFlow(0) 1
type txtViscosity(0) 1
type txtTagNum "  FT-101 "
expect-colour txtFlow(0) 4 3
expect pltLine ""
answer No
click cmdCalculate(0)
expect-message Transition
expect txtTagNum FT-101
expect pltLine "Maximum case: Pressure 100 to 90.31 psig over 1000 ft"
click cmdCalculate(1)
expect pltLine "Maximum case: Pressure 100 to 90.31 psig; Normal case: Pressure 100 to 90.31 psig over 1000 ft"
key pltLine Ctrl+c
expect-status "The figures of the plot are copied"

# --- A changed number: of one case, of the line.
type txtFlow(0) 90000
expect-colour txtFlow(0) 12 11
leave
expect-colour txtFlow(0) 10 3
expect txtDestPress(0) ""
expect txtDestPress(1) 90.31
expect pltLine "Normal case: Pressure 100 to 90.31 psig over 1000 ft"
# A refresh does not bring blanked results back.
click cmdCalculate(1)
expect txtDestPress(0) ""
# The same number in other words is no change, and what is not read to its end is told until the next box.
type txtFlow(0) 90000.0
leave
expect-colour txtFlow(0) 4 3
type txtFlow(0) 12,5
focus txtTemp(0)
expect-status "12,5 is read as 12"
focus txtPressure(0)
expect-status ""
click chkExit
expect-colour chkExit 10
click chkExit
expect-colour chkExit 2
expect txtDestPress(1) ""
expect txtEquivLen ""
expect pltLine ""

# --- Backwards, and in another mode.
click optSource
click cmdCalculate(1)
expect lblDestPress "Source pressure"
expect pltLine "Normal case: Pressure 109.7 to 100 psig over 1000 ft"
click cmdFormLayout
click optAbsolutePressure
answer Yes
click cmdOKOptions
expect-message Round converted data?
expect txtDestPress(1) 124.4
expect pltLine "Normal case: Pressure 124.4 to 114.7 psia over 1000 ft"

# --- New empties the form and keeps the units.
answer No
click mnuNew
expect-message Save changes?
expect txtTagNum ""
expect txtFlow(0) ""
expect txtDestPress(1) ""
expect txtEquivLen ""
expect txtInletPipeID ""
expect pltLine ""
expect cmdUnits(3) psia
expect-title "Ver.6.0.0.  Line Loss  - Liquid flow"

# --- All cases that have data at once, from the box in hand, and what follows from their record.
key txtFlow(0) F5
expect-status "No case has its data yet"
type txtInletPipeLen 1000
type txtInletPipeID 4.026
type txtOutletPipeElev 20
type txtInlet90Deg 4
type txtFlow(0) 100
type txtTemp(0) 60
type txtPressure(0) 114.7
type txtSGFlow(0) 1
type txtViscosity(0) 1
type txtFlow(1) 100000
type txtTemp(1) 60
type txtPressure(1) 114.7
type txtSGFlow(1) 1
type txtViscosity(1) 1
type txtEquip(1) 2
type txtFlow(2) 100000
type txtTemp(2) 60
key txtFlow(2) F5
expect-no-message
expect-focus txtBy
expect txtRegime(0) laminar
expect txtRegime(1) transition
expect txtRegime(2) ""
expect-status "Maximum: Reynolds number below 2000: the fittings count as in turbulent flow."
type txtPressure(2) -1
answer OK
click cmdCalculateAll
expect-box "Calculate all" "Minimum: Pressure must be greater than zero" OK Information
expect txtTotalLoss(1) 20.57
expect-state txtPipeLoss(1) hidden
click chkLossParts
expect-state txtPipeLoss(1) visible
expect txtPipeLoss(1) 9.689
expect txtFittingsLoss(1) 0.2188
expect txtEquipmentLoss(1) 2
expect txtElevationLoss(1) 8.661
expect txtPipeAndFittings(0) 1001
expect txtPipeAndFittings(1) 1023
expect txtVaporMargin(1) ""
click mnuPureLiquid2
pick lstFluid "Water "
click cmdSelect
expect txtTotalLoss(1) ""
click cmdCalculate(1)
expect txtVaporMargin(1) 93.76
expect txtNpshAvailable(1) 216.5
click optSource
expect txtRegime(1) ""
click cmdCalculate(1)
expect txtTotalLoss(1) 20.69
expect txtVaporMargin(1) 114.5
quit
