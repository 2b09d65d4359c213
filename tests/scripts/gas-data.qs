# The gas data program: the phase check, mixtures with their caution, and steam of both kinds with its limits.
strict on
start
new 5
answer OK
click mnuCase(2)
expect-box "Fluid Properties" "Minimum Case \nNeed the pressure and temperature" OK
type txtTemp(0) 80
answer Yes
type txtPressure(0) 250
leave
expect-message Stop showing this message?

# --- A gas of the table ------------------------------------------------------------------------------------
click mnuPureGases1
pick lstFluid "Methane "
click cmdSelect
expect txtFluid Methane
expect txtMW(0) 16.04
expect txtRatioSH(0) 1.301
expect txtNormalBP(0) -258.7
expect txtCritPressure(0) 667.1
expect txtCritTemp(0) 343.3
expect txtDensity(0) 0.7575
expect txtCompFactor(0) 0.9678
expect txtViscosity(0) 0.01112
expect txtReqdLatentHeat(0) ""
expect txtLatentHeatBP(0) 220
expect-title Ver.6.0.0.  Gas properties at pressure and temperature - Gas Flow
# A temperature of exactly 1 counts as the one before.
type txtTemp(0) 1
answer Yes
leave
expect-message Update Fluid Properties?
expect txtDensity(0) 0.7575
type txtTemp(0) 80
answer Yes
leave
expect-message Update Fluid Properties?
click mnuPureGases1
pick lstFluid "Propane "
answer No
click cmdSelect
expect-box "Gas Calculation" "At the pressure and temperature entered\n The Vapor Pressure is 127.5 psig\nThis indicates that the fluid is a liquid!\nContinue ?" YesNo
expect txtFluid Methane
expect txtMW(0) 16.04
click mnuPureGases1
pick lstFluid "Propane "
answer Yes
click cmdSelect
expect-message This indicates that the fluid is a liquid!
expect txtFluid Propane
expect txtReqdLatentHeat(0) 141.3

# --- A mixture -------------------------------------------------------------------------------------------------
click mnuMixtures1
pick lstFluid "Methane "
click cmdSelect
type txtPercent(0) 80
answer OK
click cmdCalcPseudo
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK Stop
pick lstFluid "Ethane "
click cmdSelect
key txtPercent(1) R
answer OK
click cmdCalcPseudo
expect-box "Gas Mixture Properties" "Use mixture calculated values with caution -\nParticularly\nLatent heat of vaporization and\nVapor Pressure\nActual values may differ considerably" OK Question
expect txtMW(0) 18.85
expect txtNormalBP(0) -232.4
expect txtVapPressure(0) ""
expect txtReqdLatentHeat(0) 131

# --- Steam -----------------------------------------------------------------------------------------------------
type txtPressure(1) 100
leave
expect-state mnuSatSteam2 enabled
expect-state mnuSupersteam2 disabled
click mnuSatSteam2
expect txtFluid Steam
expect txtTemp(1) 337.791
expect txtDensity(1) 0.2563
expect txtReqdLatentHeat(1) 876.8
expect txtLatentHeatBP(1) 970.3
expect txtNormalBP(1) 212
expect txtCompFactor(1) ""
expect txtMW(0) ""
expect-title Ver.6.0.0.  Gas properties at pressure and temperature - Saturated Steam
type txtTemp(1) 400
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Saturated Steam" "Saturated temperature is a function of saturated pressure" OK Stop
expect txtTemp(1) 337.791

type txtPressure(2) 100
type txtTemp(2) 600
answer No
leave
expect-message Update Fluid Properties?
click mnuSupersteam3
expect txtDensity(2) 0.1844
expect txtReqdLatentHeat(2) ""
expect-title Ver.6.0.0.  Gas properties at pressure and temperature - Superheated Steam
type txtTemp(2) 150
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Superheat Temperature" "Table is limited to a range of 200 degF to 1500 degF" OK Stop
expect txtDensity(2) ""
type txtTemp(2) 250
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Minimum Temperature below 1.295  is the Saturated Temperature" "Superheat temp 250 degF must be greater than the Saturated temp. 337.791 degF" OK None
type txtPressure(2) 16000
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Superheated Steam" "Maximum pressure on file is 15000 psig" OK Stop

# An absolute pressure of zero is none.
click cmdFormLayout
click optAbsolutePressure
answer No
click cmdOKOptions
expect-message Round converted data?
type txtPressure(1) 0
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Data checking" "Flow pressure must be greater than zero" OK Stop

# In a fresh case a temperature of exactly 1 is none.
answer No
click mnuProgram
expect-message Save changes?
new 5
type txtPressure(0) 100
type txtTemp(0) 1
leave
expect-state mnuPureGases1 disabled
expect-state mnuSatSteam1 enabled
answer OK
click cmdOK(0)
expect-box "Fluid Properties" "Maximum Case \nNeed the pressure and temperature" OK

# Base conditions as on the gas line form.
click mnuSTP
expect unSTPPressure psia
type txtSTPTemp -500
answer OK
click cmdOKSTP
expect-box "Base conditions" "Base temperature must be greater than absolute zero" OK Stop
click cmdCancelSTP
expect-state fraSTP hidden
quit
