# The options panel through each of its messages, with Yes and with No, over a calculated case. What is given
# up leaves the numbers alone; what is taken converts inputs and results together.
strict on
# --- Who keeps all digits of what was converted is refused a print as well, and may round at once.
start
new 1
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
click cmdFormLayout
click optKeepFigures
click cmdCancelOptions
click cmdFormLayout
expect-state optAskRounding checked
click optKeepFigures
click cmdOKOptions
pick cmdUnits(3) atg
answer OK
answer No
click mnuPrint
expect-box "Print Calculation" "Please round before printing" OK Stop
expect-box "Print Calculation" "Round now?" YesNo Question
expect-form frmLiqLineLoss
answer OK
answer Yes
click mnuPrint
expect-message Please round before printing
expect-message Round now?
click cmdCancel
expect txtPressure(1) 6.80457
click cmdFormLayout
click optRoundFigures
click cmdOKOptions
pick cmdUnits(3) psig
click mnuPrint
expect-form frmObxPrintCalc
click cmdCancel

start
# --- The barometer keeps its digits: kPa is only how it is seen, and no letter gets in.
new 1
click cmdFormLayout
expect cmdBaroPress psia
expect txtSTPBaro 14.7
click cmdBaroPress
expect txtSTPBaro 101.4
key txtSTPBaro x
expect txtSTPBaro 101.4
click cmdOKOptions
click cmdFormLayout
expect txtSTPBaro 14.7
type txtSTPBaro 13.5
click optMassSIUnits
click cmdOKOptions
answer No
click mnuProgram
expect-message Save changes?
new 1
click cmdFormLayout
expect txtSTPBaro 93.08
click cmdBaroPress
expect txtSTPBaro 13.5
type txtSTPBaro 14.7
click cmdOKOptions

start
# What converts no number asks no rounding, and leaves what was typed: an empty form, another mode of no pressure.
new 1
type txtFlow(0) 100.1234567
click cmdFormLayout
click optAbsolutePressure
click cmdOKOptions
expect txtFlow(0) 100.1234567
type txtFlow(0) ""
click cmdFormLayout
click optMassSIUnits
click OptGaugePress
click cmdOKOptions
expect cmdUnits(3) kPag
answer No
click mnuProgram
expect-message Save changes?
start
new 1
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition

# --- Cancel, from every place ------------------------------------------------------------------------------
click cmdFormLayout
expect-form frmCalcOptions
expect fraUnits "Liquid - Unit options"
expect OptLeaveAsIs "Currently - English mass units"
expect-state optMassEnglishUnits checked
expect-state fraDensity visible
expect-state fraCalcInputData hidden
expect-state fraCalcOptions hidden
click optVolSIUnits
click optAbsolutePressure
click optLiqDensity
click cmdReviewUnits
expect-form frmUnits
click cmdUnit(3)
pick cboUnit barg
click cmdSelect
click cmdCancelUn
expect-form frmCalcOptions
expect-state optVolSIUnits checked
click cmdCancelOptions
expect-form frmLiqLineLoss
expect txtFlow(1) 100000
expect txtPressure(1) 100
expect cmdUnits(3) psig
expect-state cmdUnits(6) hidden
expect txtDestPress(1) 90.31

# --- One OK changes everything; the first case has no gravity, so that its flow needs one -------------------
click cmdFormLayout
click optVolSIUnits
click optAbsolutePressure
click optLiqDensity
input ""
answer OK
input 999
answer Yes
doubleclick optVolSIUnits
expect-box "Convert Liquid Flow" "Density value must be greater than zero" OK
expect-message Round converted data?
expect cmdUnits(1) litre/s
expect cmdUnits(3) kPaa
expect cmdUnits(6) kg/m3
expect lblSGFlow "Flowing density"
expect txtFlow(1) 12.6113
expect txtPressure(1) 790.816
expect txtDestPress(1) 723.938
click cmdCalculate(1)
expect-no-message
expect txtDestPress(1) 724
expect txtDropP100(1) 21.92
expect txtVelocity(1) 1.535
expect txtEquivLen 304.8
# Absolute pressure and density have messages of their own.
type txtPressure(1) 0
answer OK
click cmdCalculate(1)
expect-box "Data checking" "Pressure must be greater than zero" OK Stop
expect-focus txtPressure(1)
type txtPressure(1) 790.816
type txtSGFlow(1) 0
answer OK
click cmdCalculate(1)
expect-box "Data checking" "Flowing Density must be greater than zero" OK Stop
type txtSGFlow(1) 999
click cmdCalculate(1)
expect-no-message

# Units picked after "Review units" need no second panel, and their Cancel leads back to the calculation.
click cmdFormLayout
click cmdReviewUnits
click cmdUnit(9)
pick cboUnit g/cm3
click cmdSelect
answer Yes
answer No
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect-form frmLiqLineLoss
expect txtSGFlow(1) 0.999
click cmdUnits(2)
click cmdCancelUn
expect-form frmLiqLineLoss

# --- Without conversion, for one selection ------------------------------------------------------------------
click cmdFormLayout
answer No
click cmdChangeUnits
expect-box "If data is downloaded to the wrong units" "For one selection, this will install any other unit\noption without converting the data." YesNo
answer Yes
answer OK
click cmdChangeUnits
expect-message For one selection
expect-box "Change Units" "Select required units and click 'OK' " OK
click optMassEnglishUnits
click OptGaugePress
click optLiqSG
answer No
click cmdOKOptions
expect-box "Change Units" "Option 'Change units no conversion' was selected\n\nOK?" YesNo
expect-form frmCalcOptions
answer Yes
answer OK
click cmdChangeUnits
expect-message For one selection
expect-message Select required units
answer Yes
click cmdOKOptions
expect-message Option 'Change units no conversion' was selected
expect-form frmLiqLineLoss
expect cmdUnits(1) lb/h
expect cmdUnits(3) psig
expect txtPressure(1) 790.816
expect txtSGFlow(1) 0.999
expect txtDestPress(1) ""

# By way of the unit window too, and the next change converts again.
click cmdFormLayout
answer Yes
answer OK
click cmdChangeUnits
expect-message For one selection
expect-message Select required units
click cmdReviewUnits
click cmdUnit(25)
pick cboUnit m
click cmdSelect
answer Yes
click cmdOK
expect-message Update calculation
expect cmdUnits(25) m
expect txtInletPipeLen 304.785
click cmdUnits(25)
click cmdUnit(25)
pick cboUnit ft
click cmdSelect
answer Yes
answer Cancel
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect txtInletPipeLen 1000

# --- Barometer and boot-up units, back at the next calculation ----------------------------------------------
# Typed in kPa it is kept in psia, to four figures.
click cmdFormLayout
click cmdBaroPress
type txtSTPBaro 100.3
click cmdOKOptions
click cmdFormLayout
expect cmdBaroPress psia
expect txtSTPBaro 14.55
click cmdCancelOptions
click cmdFormLayout
answer OK
click optUserUnits
click cmdOKOptions
expect-box "Units file" "User unit file is empty, please make and save" OK
expect-form frmCalcOptions
click OptLeaveAsIs
click optAbsolutePressure
type txtSTPBaro 13.5
answer No
click cmdBootUpUnits
expect-box "New boot up Configuration for Liquid" "Use the the current unit display for bootup?\n\nIt uses absolute pressure instead of gauge pressure\nand liquid specific gravity instead of density\nSave?" YesNo
click OptGaugePress
click optLiqDensity
answer Yes
click cmdBootUpUnits
expect-box "New boot up Configuration for Liquid" "Use the the current unit display for bootup?\n\nIt uses gauge pressure instead of absolute pressure\nand liquid density instead of specific gravity\nSave?" YesNo
click cmdCancelOptions
expect cmdUnits(3) psig
expect-state cmdUnits(6) hidden
answer No
click mnuProgram
expect-message Save changes?
new 1
expect cmdUnits(25) ft
expect-state cmdUnits(6) visible
click cmdFormLayout
expect txtSTPBaro 13.5
expect OptLeaveAsIs "Currently - User selected units"
quit
