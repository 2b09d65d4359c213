# The liquid data program: its messages with both answers, a mixture, and what a change of state or of units
# does to the properties shown.
strict on
start
new 4
answer OK
click mnuCase(0)
expect-box "Fluid Properties" "Maximum Case \nNeed the pressure and temperature" OK
type txtTemp(0) 80
answer Yes
type txtPressure(0) 100
leave
expect-box "New Calculation" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
answer OK
click mnuCase(1)
expect-box "Fluid Properties" "Normal Case \nNeed the pressure and temperature" OK

key txtTemp(0) Alt+n
expect-focus txtTagNum
click cmdOK(0)
expect-status Pick a fluid first, in the menu Fluid properties

# --- A liquid of the table -----------------------------------------------------------------------------------
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
expect txtFluid Toluene
expect-state mnuLiquid3 checked
expect txtMW(0) 92.14
expect txtSGFTP(0) 0.8615
expect txtSGBase(0) 0.8718
expect txtCritPressure(0) 598.5
expect txtCritTemp(0) 1066
expect txtDensity(0) 53.73
expect txtNormalBP(0) 231.1
expect txtViscosity(0) 0.5417
expect txtVapPressure(0) 0.6065
expect txtFlashpoint(0) 39
expect txtBulkModulus(0) 221491
expect-title Ver.6.0.0.  Liquid properties at pressure and temperature

# Toluene boils at 231 degF, and is gas at 300 degF under less than its vapor pressure.
type txtTemp(1) 300
answer Yes
answer No
type txtPressure(1) 10
leave
expect-message Update Fluid Properties?
expect-box "Liquid Calculation" "At the pressure and temperature entered\n The Vapor Pressure is 24.14 psig\nThis indicates that the fluid is a gas!\nContinue ?" YesNo
expect txtSGFTP(1) ""
answer Yes
click cmdOK(1)
expect-message This indicates that the fluid is a gas!
expect txtSGFTP(1) 0.7437
type txtTemp(1) 700
answer Yes
answer No
leave
expect-message Update Fluid Properties?
expect-box "Liquid Calculation" "Flow temperature is greater then Critical temperature\nContinue ?" YesNo
expect txtSGFTP(1) ""
expect txtSGFTP(0) 0.8615

# Water beyond the end of its table is told, and nothing is stored.
type txtTemp(1) 750
answer No
type txtPressure(1) 5000
answer No
leave
expect-message Update Fluid Properties?
expect-message Update Fluid Properties?
click mnuLiquid2
pick lstFluid "Water "
answer Yes
answer OK
click cmdSelect
expect-message greater then Critical temperature
expect-box "Liquid Calculation" "Fluid properties cannot be calculated" OK
expect txtFluid Toluene
expect txtSGFTP(0) 0.8615

# --- A mixture -------------------------------------------------------------------------------------------------
type txtTemp(1) 100
answer No
leave
expect-message Update Fluid Properties?
click mnuMixture2
pick lstFluid "Toluene "
click cmdSelect
type txtPercent(0) 70
pick lstFluid "n-Hexane "
click cmdSelect
type txtPercent(1) 20
answer OK
click cmdCalcPseudo
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK
key txtPercent(1) R
click cmdCalcPseudo
expect txtFluid Mixture
expect txtVapPressure(1) ""
expect txtMW(1) 90.35
# What case 1 shows was another fluid's.
expect txtSGFTP(0) ""
expect-state mnuMixture1 checked
expect-state mnuLiquid1 unchecked
# The same mixture for case 1 at a press.
click cmdOK(0)
expect txtMW(0) 90.35
expect txtMW(1) 90.35

# --- Units -----------------------------------------------------------------------------------------------------
click cmdFormLayout
click optMassSIUnits
answer Yes
click cmdOKOptions
expect-message Round converted data?
expect-form frmLiqData
expect txtTemp(0) 26.6667
expect unDensity kg/m3
expect txtMW(0) 90.35
expect unBulkMod kpa
# Below absolute zero there is no liquid.
type txtTemp(0) -300
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Data checking" "Flow Temperature must be greater than -273.15" OK Stop
type txtTemp(0) -273.15
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Data checking" "Flow Temperature must be greater than -273.15" OK Stop
# A temperature of nothing is none.
type txtTemp(0) 0
answer No
leave
expect-message Update Fluid Properties?
expect-state mnuLiquid1 disabled
# The flash point of the last component is not that of the mixture.
click mnuMixture2
pick lstFluid "Lube Oil ISO VG 46"
click cmdSelect
type txtPercent(2) 1
click cmdCalcPseudo
expect txtNormalBP(1) 382.2
expect txtFlashpoint(1) ""

# Without a gravity in the first case the kinematic viscosity of the others is not known, nor is it what it was.
answer No
click mnuProgram
expect-message Save changes?
new 4
type txtTemp(1) 37.7778
type txtPressure(1) 0
leave
click mnuLiquid2
pick lstFluid "n-Octane "
click cmdSelect
expect txtViscosity(1) 0.0004406
click cmdUnits(2)
click cmdUnit(7)
pick cboUnit cs
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect unViscosity cs
expect txtViscosity(1) ""
quit
