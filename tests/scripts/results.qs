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
quit
