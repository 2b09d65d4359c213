# Each message of the data checking that a user can reach, in the order of the checks, with the focus that it
# leaves behind. A case put right calculates.
start
new 1

# An empty form stops at the first check.
click cmdCalculate(1)
expect-box "Data checking" "Flow Temperature must be greater than -459.67" OK Stop
expect-focus txtTemp(1)
include good-case.qs

type txtTemp(1) -459.67
click cmdCalculate(1)
expect-box "Data checking" "Flow Temperature must be greater than -459.67" OK Stop
expect-focus txtTemp(1)
type txtTemp(1) 60

type txtPressure(1) -14.8
click cmdCalculate(1)
expect-box "Data checking" "Pressure must be greater than minus 14.7" OK Stop
expect-focus txtPressure(1)

# A perfect vacuum is not above a vapour pressure of none.
type txtPressure(1) -14.7
click cmdCalculate(1)
expect-box "Data checking" "Inlet pressure must be greater than Vapor pressure" OK Stop
expect-focus txtPressure(1)
type txtPressure(1) 100

# Typed vapour pressures there are none: a fluid of the table has one. Water at 212 degF has 14.7 psia.
type txtTemp(1) 212
type txtPressure(1) 5
click mnuPureLiquid2
pick lstFluid "Water "
click cmdSelect
answer No
type txtPressure(1) -1
click cmdCalculate(1)
expect-box "Pressure Has Changed" "Update Fluid Properties?" YesNo
expect-box "Data checking" "Inlet pressure must be greater than Vapor pressure" OK Stop
expect-focus txtPressure(1)
# A name of one's own is no fluid of the table: its vapour pressure is not known.
type txtFluid Brine
type txtTemp(1) 60
type txtPressure(1) 100
type txtSGFlow(1) 1
type txtViscosity(1) 1

type txtInletPipeLen ""
click cmdCalculate(1)
expect-box "Data checking" "Length must be > zero " OK Stop
expect-focus txtInletPipeLen
type txtInletPipeLen 10000000
click cmdCalculate(1)
expect-box "Data checking" "Length must be < 10000000 ft" OK Stop
expect-focus txtInletPipeLen
type txtInletPipeLen 9999999

type txtInletPipeID four
click cmdCalculate(1)
expect-box "Data checking" "Pipe inside diameter must be > zero " OK Stop
expect-focus txtInletPipeID
type txtInletPipeID 4.026
type txtInletPipeLen 1000

type txtPipeCond 100.1
click cmdCalculate(1)
expect-box "Data checking" "Condition must be between 0 and 100" OK Stop
expect-focus txtPipeCond
type txtPipeCond -1
click cmdCalculate(1)
expect-box "Data checking" "Condition must be between 0 and 100" OK Stop
type txtPipeCond ""

type txtSGFlow(1) 0
click cmdCalculate(1)
expect-box "Data checking" "Flowing specific gravity must be greater than zero" OK Stop
expect-focus txtSGFlow(1)
type txtSGFlow(1) 1

type txtFlow(1) ""
click cmdCalculate(1)
expect-box "Data checking" "Flow must be greater than zero" OK Stop
expect-focus txtFlow(1)
type txtFlow(1) 100000

type txtViscosity(1) -1
click cmdCalculate(1)
expect-box "Data checking" "Viscosity must be greater than zero" OK Stop
expect-focus txtViscosity(1)
type txtViscosity(1) 1

expect txtDestPress(1) ""
answer No
click cmdCalculate(1)
expect-message Transition
expect txtDestPress(1) 90.31
quit
