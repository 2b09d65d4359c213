# Each message of the water hammer that a user can reach, in the order of the checks, with the focus that it
# leaves behind; and what the tables refuse. A case put right calculates.
start
new 3

# --- Data checking -----------------------------------------------------------------------------------------
# An empty form: the temperature passes as zero, the gravity does not.
click cmdCalculateliq
expect-box "Data checking" "Flowing specific gravity must be greater than zero" OK Stop
expect-focus txtSGFlow
include hammer-case.qs

# A temperature that is refused is told first, but gravity and flow still speak up; then silence.
type txtFlowTemp -459.68
type txtMaxLiqFlow 0
click cmdCalculateliq
expect-box "Data checking" "Flow temperature must be greater than -459.67" OK Stop
expect-box "Data checking" "Maximum flow must be greater than zero" OK Stop
expect-focus txtMaxLiqFlow
type txtMaxLiqFlow 400000
type txtMaxAllowPressure 0
click cmdCalculateliq
expect-box "Data checking" "Flow temperature must be greater than -459.67" OK Stop
expect-no-message
expect-focus txtFlowTemp
# Absolute zero itself is let through.
type txtFlowTemp -459.67
click cmdCalculateliq
expect-box "Data checking" "Maximum allowable pressure must be greater than operating pressure" OK Stop
type txtFlowTemp 60
type txtOperPressure -14.8
click cmdCalculateliq
expect-box "Data checking" "Operating pressure must be greater than minus 14.7" OK Stop
expect-focus txtOperPressure
type txtOperPressure 100

type txtSGFlow -1
click cmdCalculateliq
expect-box "Data checking" "Flowing specific gravity must be greater than zero" OK Stop
type txtSGFlow 1
type txtMaxAllowPressure 100
click cmdCalculateliq
expect-box "Data checking" "Maximum allowable pressure must be greater than operating pressure" OK Stop
expect-focus txtMaxAllowPressure
type txtMaxAllowPressure 300
type txtBulkModulus ""
click cmdCalculateliq
expect-box "Data checking" "Bulk modulus must be greater than zero" OK None
expect-focus txtBulkModulus
type txtBulkModulus 319000
type txtLineModulus abc
click cmdCalculateliq
expect-box "Data checking" "Pipe modulus must be greater than zero" OK None
expect-focus txtLineModulus
type txtLineModulus 29500000
type txtLineLength nan
click cmdCalculateliq
expect-box "Data checking" "Line length must be greater than zero" OK None
expect-focus txtLineLength
type txtLineLength 2500
type txtPipeWall 0
click cmdCalculateliq
expect-box "Data checking" "Wall thickness must be greater than zero" OK None
expect-focus txtPipeWall
type txtPipeWall 0.28
type txtPipeID -6
click cmdCalculateliq
expect-box "Data checking" "Pipe diameter must be greater than zero" OK None
expect-focus txtPipeID

# What is no number of this world is told, and leaves the form usable.
type txtPipeID 1e-200
click cmdCalculateliq
expect-box "Data checking" "Overflow: there is no result.\nA value is far too large or far too small" OK
expect txtWaveVelocity ""
type txtPipeID 6.065
click cmdCalculateliq
expect txtWaveVelocity 4381
type txtSelectedTime -1
click cmdCalculateliq
expect-box "Data checking" "Selected closing time must be greater than zero" OK None
expect txtWaveVelocity 4381
expect txtSelectedWave ""
type txtSelectedTime 1e-310
click cmdCalculateliq
expect-box "Data checking" "Overflow: there is no result.\nA value is far too large or far too small" OK
type txtSelectedTime 4
click cmdCalculateliq
expect txtSelectedForce 4311

# --- The liquid --------------------------------------------------------------------------------------------
# Propane has no liquid above 206.1 degF, and n-hexane boils at 300 degF and 20 psig.
type txtFlowTemp 300
type txtOperPressure 20
click mnuPureLiquids
pick lstFluid "Propane "
answer No
click cmdSelect
expect-box "Liquid Calculation" "Flow temperature is greater then Critical temperature\nContinue ?" YesNo
expect txtFluid ""
expect txtBulkModulus 319000
click mnuPureLiquids
pick lstFluid "n-Hexane "
answer No
click cmdSelect
expect-message "This indicates that the fluid is a gas!"
expect txtFluid ""
click mnuPureLiquids
pick lstFluid "n-Hexane "
answer Yes
click cmdSelect
expect-message "This indicates that the fluid is a gas!"
expect txtFluid n-Hexane
expect txtBulkModulus 116451
# Recalculated at once; a new temperature asks, and Yes renews without calculating.
expect txtSelectedTime 4
type txtFlowTemp 60
answer Yes
leave
expect-box "New Calculation" "Update Fluid Properties?" YesNo
expect txtSGFlow 0.664
expect txtWaveVelocity ""
# A liquid whose modulus is not known.
click mnuPureLiquids
pick lstFluid "Acrylic Acid "
click cmdSelect
expect-box "Data checking" "Bulk modulus must be greater than zero" OK None
expect txtBulkModulus ""
type txtBulkModulus 319000

# --- The pipe ----------------------------------------------------------------------------------------------
answer No
type txtFlowTemp 49.9
click cmdPipeMatl
expect-message Update Fluid Properties?
pick lstModulus "Inconel 600"
click cmdSelectModulus
expect-box "Inconel 600" "Table has data for temperatures 50 to 1200 degF only" OK Stop
expect txtPipeMatl ""
expect txtLineModulus ""
answer No
type txtFlowTemp 50
click cmdPipeMatl
expect-message Update Fluid Properties?
pick lstModulus "Inconel 600"
click cmdSelectModulus
expect txtPipeMatl "Inconel 600"
expect txtLineModulus 31000000
answer No
type txtFlowTemp 100
click cmdPipeMatl
expect-message Update Fluid Properties?
doubleclick lstModulus
expect txtPipeMatl "Inconel 600"
expect txtLineModulus 30820000
answer No
type txtFlowTemp 1200
click cmdPipeMatl
expect-message Update Fluid Properties?
key lstModulus Enter
expect txtLineModulus 25300000
click cmdPipeMatl
pick lstModulus "Carbon Steel C<=0.3%"
click cmdSelectModulus
expect-box "Carbon Steel C<=0.3%" "Table has data for temperatures 50 to 1100 degF only" OK Stop
answer No
type txtFlowTemp 1200.1
click cmdPipeMatl
expect-message Update Fluid Properties?
pick lstModulus "Inconel 600"
click cmdSelectModulus
expect-box "Inconel 600" "Table has data for temperatures 50 to 1200 degF only" OK Stop

# --- Absolute pressure, density ----------------------------------------------------------------------------
click cmdFormLayout
click optAbsolutePressure
click optLiqDensity
answer Yes
click cmdOKOptions
expect-message Round converted data?
expect txtOperPressure 34.7
type txtOperPressure 0
answer No
click cmdCalculateliq
expect-message Update Fluid Properties?
expect-box "Data checking" "Operating pressure must be greater than zero" OK None
expect-focus txtOperPressure
type txtSGFlow 0
click cmdCalculateliq
expect-box "Data checking" "Operating pressure must be greater than zero" OK None
expect-box "Data checking" "Flowing Density must be greater than zero" OK Stop
expect-focus txtSGFlow
quit
