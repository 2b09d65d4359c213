# The water hammer from the browser to its results: a case typed by hand, a selected time, liquid, mixture, pipe
# and material from the tables, other units, and back.
strict on
set-date 2026-11-24
start
new 3
expect-form frmWaterHammer
expect-title "Ver.6.0.0.  Water Hammer  - Liquid flow"
expect-focus txtTagNum
expect lblCalcSource "Joukowski Formula"
expect lblSetupSelections "English mass units, calculate data"
expect lblSGFlow "Specific gravity @ FTP"
expect-tip txtSGFlow " Enter Specific gravity @ FTP"
expect-state cmdUnits(6) hidden
expect-state txtSelectedTime hidden
expect-state lblSelectedTime hidden
expect txtPipeMatl ""
expect unSupportForce lb
expect lblLiqTestBasis ""

# --- A case worked by hand ---------------------------------------------------------------------------------
# a = 8.618176 / sqrt(1/319000 + 6.065/0.28/29.5e6) = 4381.4 ft/s, v = 400000/1225.492/6.065^2 = 8.8734 ft/s,
# rise = 4381.4 x 8.8734 / 74.313 = 523.16 psi; critical 2 x 2500/a = 1.141 s, minimum 523.16/200 x 1.141.
include hammer-case.qs
click cmdCalculateliq
expect txtCriticalTime 1.141
expect txtWaveVelocity 4381
expect txtPressureWave 623.2
expect txtSupportForce 15114
expect txtCloseTime 2.985
expect txtSelectedWave ""
expect lblLiqTestBasis Mas
expect-focus txtBy
expect-state txtSelectedTime visible
expect pltClosing "Pressure wave 754 to 233.3 psig over 0.9128 to 4.477 secs, critical 1.141 secs, minimum 2.985 secs, allowable 300 psig"

# The box for a selected time is there now, and wants one; the other results stand all the same.
answer OK
click cmdCalculateliq
expect-box "Data checking" "Selected closing time must be greater than zero" OK None
expect-focus txtSelectedTime
expect txtCriticalTime 1.141
expect txtSelectedForce ""
type txtSelectedTime 4
expect txtCriticalTime ""
expect pltClosing ""
click cmdCalculateliq
expect txtSelectedWave 249.2
expect txtSelectedForce 4311
expect pltClosing "Pressure wave 754 to 199.5 psig over 0.9128 to 6 secs, critical 1.141 secs, minimum 2.985 secs, selected 4 secs, allowable 300 psig"
# Faster than critical: not capped at the Joukowski rise.
type txtSelectedTime 0.5
click cmdCalculateliq
expect txtSelectedWave 1294
type txtSelectedTime 1.141
click cmdCalculateliq
expect txtSelectedWave 623.2
expect txtSelectedForce 15114
type txtSelectedTime 4
click cmdCalculateliq

# A changed number is shown so, and takes the results away.
type txtPipeWall 0.3
leave
expect-colour txtPipeWall 10 3
expect txtWaveVelocity ""
type txtPipeWall 0.28
leave
expect-colour txtPipeWall 4 3
type txtPipeMatl "Some steel"
click cmdCalculateliq
expect txtSelectedForce 4311

# --- Other units: inputs and results go together -----------------------------------------------------------
click cmdFormLayout
expect-form frmCalcOptions
expect-state fraDensity visible
click optMassSIUnits
answer Yes
click cmdOKOptions
expect-message Round converted data?
expect-form frmWaterHammer
expect txtMaxLiqFlow 50.3992
expect txtFlowTemp 15.5556
expect txtOperPressure 689.465
expect txtMaxAllowPressure 2068.39
expect txtBulkModulus 2199393
expect txtPipeID 154.051
expect txtPipeWall 7.11201
expect txtLineLength 761.963
expect txtCriticalTime 1.141
expect txtWaveVelocity 1335
expect txtPressureWave 4297
expect txtSupportForce 6856
expect txtSelectedWave 1718
expect txtSelectedForce 1955
expect unSupportForce kg
expect unSelectedWave kPag
expect UnpipeWall mm
expect unLineModulus kpa
expect pltClosing "Pressure wave 5199 to 1375 kPag over 0.9128 to 6 secs, critical 1.141 secs, minimum 2.985 secs, selected 4 secs, allowable 2068 kPag"
expect txtPipeMatl "Some steel"
click cmdCalculateliq
expect txtPressureWave 4296
expect txtSupportForce 6856
expect txtCloseTime 2.985

# Absolute pressures and a density, by volume. The pressure of the atmosphere goes into all four pressures, to
# four figures in kPa, before the units change: 790.8 kPa are 114.698 psi.
click cmdFormLayout
click optVolEnglishUnits
click optAbsolutePressure
click optLiqDensity
answer No
click cmdOKOptions
expect-message Round converted data?
expect lblSGFlow "Flowing density"
expect-tip txtSGFlow " Enter flowing density"
expect-state cmdUnits(6) visible
expect lblLiqTestBasis Vol
expect cmdUnits(1) USgal/m
expect txtMaxLiqFlow 799.521
expect txtOperPressure 114.698
expect txtMaxAllowPressure 314.737
expect txtPressureWave 637.741
click cmdCalculateliq
expect txtPressureWave 637.8
expect txtCloseTime 2.984

# Through the unit window and its Cancel.
click cmdUnits(27)
expect-form frmUnits
expect-state fraRow(27) visible
expect-state fraRow(11) hidden
click cmdCancelUn
expect-form frmWaterHammer
expect txtPressureWave 637.8

# A pipe in millimetres brings the forces to kg.
click cmdUnits(18)
click cmdUnit(18)
pick cboUnit mm
click cmdSelect
answer Yes
answer Yes
click cmdOK
expect-message Update calculation
expect-message Round converted data?
expect-form frmWaterHammer
expect txtPipeID 154.051
expect txtPipeWall 7.11201
expect unSelectedForce kg
expect txtSupportForce 6856
expect txtSelectedForce 1955
expect txtOperPressure 114.698

# --- The tables --------------------------------------------------------------------------------------------
answer No
click mnuNew
expect-message Save changes?
expect txtMaxLiqFlow ""
expect txtSelectedTime ""
expect-state txtSelectedTime hidden
expect txtPipeMatl ""
expect pltClosing ""
expect cmdUnits(1) USgal/m
expect-focus txtTagNum
close
expect-form frmTRProg
new 3
answer OK
click mnuPureLiquids
expect-box "Fluid Properties" "Need Pressure and Temperature to continue" OK Stop
answer OK
click cmdPipeMatl
expect-box "Elastic modulus calculation" "Need the  temperature" OK None
expect-focus txtFlowTemp
type txtFlowTemp 60
type txtOperPressure 100
click mnuPureLiquids
expect-state txtSGFlow disabled
expect-state cmdCalculateliq disabled
key lstFluid Escape
expect-focus txtOperPressure
click mnuPureLiquids
pick lstFluid "Water "
doubleclick lstFluid
expect txtFluid Water
expect-state mnuPureLiquids checked
expect-state mnuMixtures unchecked
expect-focus cmdCalculateliq
# 318 x 1000 + 5.9 x 114.7 psia
expect txtSGFlow 1
expect txtBulkModulus 318677
click cmdPipeMatl
expect-state cmdCalculateliq disabled
expect-row lstModulus 0 "Carbon Steel C<=0.3%   ,2.95,2.934,2.88,2.83,2.77,2.73,2.67,2.55,2.42,2.24,2.04,1.8,0,1100,"
click cmdCancelModulus
expect txtPipeMatl ""
click cmdPipeMatl
pick lstModulus "Copper "
doubleclick lstModulus
expect txtPipeMatl Copper
expect txtLineModulus 17000000
click cmdPipeID
expect-form frmPipeSize
type txtNomSize 6
click cmdSearch
pick lstPipeSize "  6,40S"
click cmdOK
expect txtPipeID 6.065
expect txtPipeWall 0.28
type txtMaxLiqFlow 800
type txtLineLength 2500
type txtMaxAllowPressure 300
click cmdCalculateliq
expect txtWaveVelocity 4103

# A fluid picked under a form that was calculated is calculated at once, with the time that is asked for now.
click mnuPureLiquids
pick lstFluid "Toluene "
answer OK
click cmdSelect
expect-box "Data checking" "Selected closing time must be greater than zero" OK None
expect txtBulkModulus 221491
expect txtCriticalTime 1.304
type txtSelectedTime 4
click cmdCalculateliq
expect-state txtSelectedForce enabled

# --- A mixture ---------------------------------------------------------------------------------------------
click mnuMixtures
expect-state fraComponent visible
pick lstFluid "Toluene "
click cmdSelect
expect lblComponent(0) Toluene
type txtPercent(0) 50
pick lstFluid "n-Hexane "
click cmdSelect
answer OK
click cmdCalcPseudo
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK None
key txtPercent(1) R
expect lblRemaining 0
click cmdCalcPseudo
expect txtFluid Mixture
expect-state mnuMixtures checked
expect-state mnuPureLiquids unchecked
# (0.5 x 220 + 0.5 x 116) x 1000 + 13 x 114.7 psi; recalculated at once, with results as before.
expect txtBulkModulus 169491
expect txtSGFlow 0.7683
expect-state txtSGFlow enabled
expect-focus txtBy
expect txtSelectedTime 4

# Another pressure: the question, with No and with Yes, which mixes and calculates anew.
type txtOperPressure 200
answer No
leave
expect-box "New Calculation" "Update Fluid Properties?" YesNo
expect txtBulkModulus 169491
type txtOperPressure 185.3
answer Yes
leave
expect-box "New Calculation" "Update Fluid Properties?" YesNo
expect txtBulkModulus 170600
expect-focus txtBy

# One component without a modulus leaves the mixture's blank.
click mnuMixtures
expect txtPercent(1) 50
pick lstFluid "Acrylic Acid "
click cmdSelect
type txtPercent(1) 40
type txtPercent(2) 10
answer OK
click cmdCalcPseudo
expect-box "Data checking" "Bulk modulus must be greater than zero" OK None
expect txtBulkModulus ""
expect-focus txtBulkModulus
answer No
close
expect-message Save changes?
expect-form frmTRProg

# A density is rounded by itself, not made of a gravity that was rounded.
new 3
click cmdFormLayout
click optMassSIUnits
click optLiqDensity
click cmdOKOptions
type txtFlowTemp 60
type txtOperPressure 700
click mnuPureLiquids
pick lstFluid "Cyclohexane "
click cmdSelect
expect txtSGFlow 739.4
quit
