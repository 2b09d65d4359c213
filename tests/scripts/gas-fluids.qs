# Gases of the table and steam on the gas line form: the phase check, each limit of the steam tables and what
# a change of state does to the fluid.
strict on
start
new 2
answer OK
click mnuFluidProp
expect-box "Fluid Properties" "Need Pressure and Temperature to continue" OK
type txtTemp(1) 60
answer Yes
type txtPressure(1) 200
type txtFlow(1) 5000
expect-message Stop showing this message?
type txtInletPipeLen 100
type txtInletPipeID 4.026

# --- A gas of the table ------------------------------------------------------------------------------------
# Propane at 60 degF is a liquid above some 93 psig.
click mnuPureGases2
pick lstFluid "Propane "
answer No
click cmdSelect
expect-box "Gas Calculation" "At the pressure and temperature entered\n The Vapor Pressure is 91.88 psig\nThis indicates that the fluid is a liquid!\nContinue ?" YesNo
expect txtMW(1) ""
expect txtFluid ""
click mnuPureGases2
pick lstFluid "Propane "
answer Yes
click cmdSelect
expect-message This indicates that the fluid is a liquid!
expect txtFluid Propane
expect txtMW(1) 44.1
click mnuPureGases2
pick lstFluid "Methane "
click cmdSelect
expect txtFluid Methane
expect-state mnuPureGases1 checked
expect-focus cmdCalculate(1)
answer No
click cmdCalculate(1)
expect-message Transition
expect txtVelocity(1) 24.68
# Another gas, and the results are gone.
click mnuPureGases2
pick lstFluid "Ethane "
click cmdSelect
expect txtVelocity(1) ""
expect-state mnuPrint disabled
# At another temperature the gas in hand is offered anew.
type txtTemp(1) 200
answer Yes
leave
expect-box "Temperature Has Changed" "Update Fluid Properties?" YesNo
expect txtRatioSH(1) 1.157

# --- Saturated steam -----------------------------------------------------------------------------------------
# The first case has a pressure alone: saturated steam is to be had, a gas is not.
type txtPressure(0) 150
leave
expect-state mnuSatSteam1 enabled
expect-state mnuSupersteam1 disabled
expect-state mnuPureGases1 disabled
click mnuSatSteam1
expect txtFluid Steam
expect txtTemp(0) 365.757
expect txtMW(0) 18.015
expect txtCritPressure(0) 3208.2
expect txtCritTemp(0) 1165.4
expect-title Ver.6.0.0.  Line Loss  - Gas Flow - Saturated Steam
expect-state mnuSatSteam1 checked
expect-state mnuPureGases1 unchecked
type txtTemp(0) 400
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Saturated Steam" "Saturated temperature is a function of saturated pressure" OK Stop
expect txtTemp(0) 365.757
type txtPressure(0) 4000
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Saturated Steam" "Flow pressure 4000 psig cannot exceed\n Critical pressure 3193.5 psig" OK Stop
expect txtMW(0) 18.015
# No look-up, no word of the temperature it would have given.
type txtTemp(0) 410
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-message cannot exceed

# --- Superheated steam -----------------------------------------------------------------------------------------
type txtPressure(0) 150
answer No
leave
expect-message Update Fluid Properties?
type txtTemp(0) 500
answer No
leave
expect-message Update Fluid Properties?
click mnuSupersteam1
expect txtRatioSH(0) 1.299
expect txtTemp(0) 500
expect-state mnuSupersteam3 checked
expect-title Ver.6.0.0.  Line Loss  - Gas Flow - Saturated Steam
type txtTemp(0) 1501
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Superheat Temperature" "Table is limited to a range of 200 degF to 1500 degF" OK Stop
expect txtMW(0) ""
expect txtCritTemp(0) ""
type txtTemp(0) 300
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-message Superheat temp 300 degF must be greater than the Saturated temp. 365.757 degF
type txtTemp(0) 900
answer Yes
leave
expect-message Update Fluid Properties?
expect txtMW(0) 18.015
type txtPressure(0) 15000
answer Yes
answer OK
leave
expect-message Update Fluid Properties?
expect-box "Superheated Steam" "Maximum pressure on file is 15000 psig" OK Stop

# A gas takes the word of steam out of the title.
type txtPressure(0) 100
answer No
leave
expect-message Update Fluid Properties?
click mnuPureGases1
pick lstFluid "Methane "
click cmdSelect
expect-title Ver.6.0.0.  Line Loss  - Gas Flow
expect-state mnuSupersteam1 unchecked

# A name typed over steam is no steam any more, and steam that is not to be had leaves another gas alone.
click mnuSatSteam1
expect txtFluid Steam
type txtFluid Air
leave
expect-state mnuSatSteam1 unchecked
expect-title Ver.6.0.0.  Line Loss  - Gas Flow
click mnuPureGases1
pick lstFluid "Methane "
click cmdSelect
answer No
type txtTemp(0) 150
leave
expect-message Update Fluid Properties?
answer OK
click mnuSupersteam1
expect-message Table is limited
expect txtMW(0) 16.04
expect txtFluid Methane
quit
