# The components of a mixture on both line forms: percentages, the remainder, the key R, the refusals, and a
# mixture that is opened again.
strict on
start
new 2
include good-gas-case.qs
answer No
click cmdCalculate(1)
expect-message Transition

click mnuMixtures2
expect-state fraComponent visible
expect-state mnuMixtures1 checked
expect-state Picture1 disabled
expect lblRemaining 100
expect-state cmdCalcPseudo disabled
pick lstFluid "Methane "
click cmdSelect
expect lblComponent(0) Methane
expect-focus txtPercent(0)
expect-state txtPercent(1) hidden
type txtPercent(0) 60
expect lblRemaining 40
pick lstFluid "Ethane "
doubleclick lstFluid
expect-focus txtPercent(1)
answer OK
click cmdCalcPseudo
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK
expect-state fraComponent visible
key txtPercent(1) R
expect txtPercent(1) 40
expect lblRemaining 0
# It takes what the others leave, not what is left on top of its own.
type txtPercent(1) 10
key txtPercent(1) r
expect txtPercent(1) 40
click cmdClear
expect txtPercent(0) ""
expect lblRemaining 100
type txtPercent(0) 80
key txtPercent(1) R

# Cancel leaves the form as it was, and the case keeps its results.
click cmdCancel
expect-state fraComponent hidden
expect-state mnuMixtures1 unchecked
expect txtFluid ""
expect txtDestPress(1) 95.89
click mnuMixtures2
expect lblRemaining 100
expect-state txtPercent(0) hidden
pick lstFluid "Methane "
click cmdSelect
type txtPercent(0) 80
pick lstFluid "Ethane "
click cmdSelect
key txtPercent(1) R
pick lstFluid "Propane "
click cmdSelect
# A form with results calculates the mixture at once. Propane without a percentage is dropped.
click cmdCalcPseudo
expect txtFluid Mixture
expect txtMW(1) 18.85
expect txtRatioSH(1) 1.275
expect txtCritPressure(1) 679.1
expect-state mnuMixtures1 checked
expect txtDestPress(1) 96.55

# Opened again it shows what it is made of; a mixture that has been calculated needs no sum of 100.
click mnuMixtures2
expect lblComponent(1) Ethane
expect txtPercent(1) 20
expect-state txtPercent(2) hidden
type txtPercent(1) 10
expect lblRemaining 10
click cmdCalcPseudo
expect txtMW(1) 15.84

# Percentages without sense are refused, and Cancel brings back what was there.
click mnuMixtures2
click cmdClear
answer OK
click cmdCalcPseudo
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK
type txtPercent(0) 150
type txtPercent(1) -50
answer OK
click cmdCalcPseudo
expect-message A percentage must not be less than zero
click cmdCancel
click mnuMixtures2
expect txtPercent(0) 80
# An act beside the open list gives it up, components in the making and all.
pick lstFluid "Propane "
click cmdSelect
expect lblComponent(2) Propane
click mnuSTP
expect-state fraComponent hidden
click cmdOKSTP
expect-state txtFlow(1) enabled
expect-state mnuMixtures1 checked
click mnuMixtures2
expect-state txtPercent(2) hidden
click cmdCancel
# So does a save: the mixture is what is kept, not the gas that is being looked for.
type txtTagNum M-1
click mnuPureGases2
answer Yes
answer OK
click mnuSave
expect-message Create
expect-message New database
expect-state lstFluid hidden
click mnuProgram
open M-1
expect-state mnuMixtures1 checked
expect txtFluid Mixture
# A name typed over it is no mixture any more.
type txtFluid Air
leave
expect-state mnuMixtures1 unchecked
answer No
click mnuProgram
expect-message Save changes?
open M-1

# A new temperature renews it.
type txtTemp(1) 200
answer Yes
leave
expect-box "Temperature Has Changed" "Update Fluid Properties?" YesNo
expect txtRatioSH(1) 1.284

# Sixteen at most. The seventeenth takes the last place.
click mnuPureGases2
pick lstFluid "Methane "
click cmdSelect
click mnuMixtures2
pick lstFluid 0
click cmdSelect
pick lstFluid 1
click cmdSelect
pick lstFluid 2
click cmdSelect
pick lstFluid 3
click cmdSelect
pick lstFluid 4
click cmdSelect
pick lstFluid 5
click cmdSelect
pick lstFluid 6
click cmdSelect
pick lstFluid 7
click cmdSelect
pick lstFluid 8
click cmdSelect
pick lstFluid 9
click cmdSelect
pick lstFluid 10
click cmdSelect
pick lstFluid 11
click cmdSelect
pick lstFluid 12
click cmdSelect
pick lstFluid 13
click cmdSelect
pick lstFluid 14
click cmdSelect
expect-state txtPercent(15) hidden
pick lstFluid 15
answer OK
click cmdSelect
expect-box "Mixture components" "Maximum number is 16" OK
expect-state txtPercent(15) visible
type txtPercent(15) 30
expect lblRemaining 70
key txtPercent(0) R
click cmdCalcPseudo
expect txtFluid Mixture
answer No
click mnuProgram
expect-message Save changes?

# --- The liquid form -------------------------------------------------------------------------------------------
new 1
type txtTemp(1) 60
type txtPressure(1) 100
click mnuMixture2
pick lstFluid "Toluene "
click cmdSelect
type txtPercent(0) 50
pick lstFluid "Benzene "
click cmdSelect
type txtPercent(1) 30
answer OK
click cmdCalcPseudo
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK
key txtPercent(1) R
click cmdCalcPseudo
expect txtFluid Mixture
expect txtSGFlow(1) 0.8784
expect txtViscosity(1) 0.6555
expect-focus cmdCalculate(1)
answer No
click mnuProgram
expect-message Save changes?

# --- The liquid data form counts one more in its words -----------------------------------------------------------
new 4
type txtTemp(0) 60
type txtPressure(0) 100
click mnuMixture1
pick lstFluid 0
click cmdSelect
pick lstFluid 1
click cmdSelect
pick lstFluid 2
click cmdSelect
pick lstFluid 3
click cmdSelect
pick lstFluid 4
click cmdSelect
pick lstFluid 5
click cmdSelect
pick lstFluid 6
click cmdSelect
pick lstFluid 7
click cmdSelect
pick lstFluid 8
click cmdSelect
pick lstFluid 9
click cmdSelect
pick lstFluid 10
click cmdSelect
pick lstFluid 11
click cmdSelect
pick lstFluid 12
click cmdSelect
pick lstFluid 13
click cmdSelect
pick lstFluid 14
click cmdSelect
pick lstFluid 15
answer OK
click cmdSelect
expect-box "Mixture components" "Maximum number is 17" OK
click cmdCancel

# --- The dialog of all cases: a search, Enter, a percentage, Enter --------------------------------------------------
answer No
click mnuProgram
expect-message Save changes?
new 5
type txtTemp(0) 80
type txtPressure(0) 250
type txtTemp(1) 120
type txtPressure(1) 300
click cmdFluid
click optMixture
expect-focus optMixture
expect-state lblNone visible
expect-state cmdOK disabled
key optMixture m
expect-focus txtFilter
type txtFilter meth
key txtFilter Down
type txtFilter methane
key txtFilter Enter
expect lblComponent(0) Methane
expect-focus txtPercent(0)
type txtPercent(0) 80
expect lblRemaining 20
key txtPercent(0) Enter
expect-focus txtFilter
# A component is not taken twice.
type txtFilter methane
click cmdAdd
expect lblNote Methane is a component already
expect-focus txtPercent(0)
expect-state txtPercent(1) hidden
type txtFilter propane
key grdFluids Enter
type txtPercent(1) 30
expect lblRemaining -10
expect lblNote The sum is over 100
expect-colour lblRemaining 10 1
answer OK
click cmdOK
expect-box "Mixture Calculation" "Sum of percentages must equal 100" OK
type txtPercent(1) -1
expect lblNote A percentage is less than zero
answer OK
click cmdOK
expect-message A percentage must not be less than zero
type txtFilter ethane
key txtFilter Enter
expect lblComponent(2) Ethane
# What is removed makes way for those below.
key txtPercent(2) R
click cmdRemove(1)
expect lblComponent(1) Ethane
expect txtPercent(1) 21
expect-state txtPercent(2) hidden
key txtPercent(1) r
expect txtPercent(1) 20
expect lblNote ""
focus txtPercent(0)
key txtPercent(0) Enter
expect-focus txtPercent(1)
key txtPercent(1) Enter
expect-focus cmdOK
answer OK
key cmdOK Enter
expect-box "Fluid Properties" "Case 1, Case 2: Use mixture calculated values with caution - Particularly Latent heat of vaporization and Vapor Pressure. Actual values may differ considerably" OK Information
expect-form frmGasData
expect txtFluid Mixture
expect txtMW(1) 18.85
# Opened again it shows what it is made of; what no case takes changes nothing.
click cmdFluid
expect-state optMixture checked
expect txtPercent(1) 20
expect-state chkCase(2) disabled
click cmdClear
expect-state cmdOK disabled
click optSteam
expect lblLack(2) needs the pressure
click optSuperheated
expect lblLack(2) needs temperature and pressure
answer OK
click cmdOK
expect-box "Fluid Properties" "Case 1, Case 2: Table is limited to a range of 200 degF to 1500 degF" OK Information
expect-form frmFluid
close
expect txtFluid Mixture
expect txtMW(1) 18.85
quit
