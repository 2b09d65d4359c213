# Which fluid's properties end up in which case of a line, whatever the user does in between.
strict on
start

# --- Zero gauge is a pressure, also before a barometer is known.
new 1
type txtTemp(1) 60
answer No
type txtPressure(1) 0
leave
expect-message Stop showing this message?
expect-state mnuPureLiquid2 enabled

# --- A refused fluid leaves the former one to be renewed.
type txtTemp(0) 100
answer Yes
type txtPressure(0) 50
leave
expect-message Stop showing this message?
click mnuPureLiquid1
pick lstFluid "Toluene "
click cmdSelect
click mnuPureLiquid1
pick lstFluid "Propane "
answer No
click cmdSelect
expect-message This indicates that the fluid is a gas!
expect txtFluid Toluene
answer Yes
type txtTemp(0) 120
leave
expect-message Update Fluid Properties?
expect txtSGFlow(0) 0.84

# --- The list fills the case that opened it.
start
new 1
type txtTemp(0) 100
answer Yes
type txtPressure(0) 50
type txtTemp(1) 200
expect-message Stop showing this message?
type txtPressure(1) 50
click mnuPureLiquid1
expect-state mnuPureLiquid2 disabled
expect-state txtTemp(1) disabled
click cmdSelect
expect txtFluid 1-1-1-Trichloroethane
expect txtSGFlow(0) 1.31
expect txtSGFlow(1) ""
expect-focus cmdCalculate(0)
expect-state mnuPureLiquid2 enabled

# --- A new temperature asks even after a detour by the menu, and once.
start
new 1
type txtTemp(0) 100
answer Yes
type txtPressure(0) 50
leave
expect-message Stop showing this message?
click mnuPureLiquid1
pick lstFluid "Toluene "
click cmdSelect
type txtTemp(0) 150
click mnuPureLiquid1
key lstFluid Escape
expect-no-message
expect-focus txtTemp(0)
answer No
focus txtFlow(0)
expect-message Update Fluid Properties?
focus txtTemp(0)
focus txtFlow(0)
expect-no-message
# A fluid picked at the new temperature answers the question.
type txtTemp(0) 160
click mnuPureLiquid1
pick lstFluid "Toluene "
click cmdSelect
focus txtTemp(0)
focus txtFlow(0)
expect-no-message
# The first number in an empty box is news, zero too.
type txtPressure(1) 50
answer No
type txtTemp(1) 0
focus txtFlow(1)
expect-message Update Fluid Properties?

# --- The vapour pressure of a fluid that another case has no longer stops none.
start
new 1
include good-case.qs
type txtTemp(1) 200
type txtPressure(1) 0
click mnuPureLiquid2
pick lstFluid "Toluene "
click cmdSelect
type txtTemp(0) 60
answer No
type txtPressure(0) 100
focus txtFlow(0)
expect-message Update Fluid Properties?
click mnuPureLiquid1
pick lstFluid "Water "
click cmdSelect
# Below toluene's at 200 degF.
answer No
type txtPressure(1) -10
type txtSGFlow(1) 0.9
expect-message Update Fluid Properties?
type txtInletPipeLen 10
answer No
click cmdCalculate(1)
expect-message Transition
expect-no-message
expect txtDestPress(1) -10.1

# --- New in the middle of a list leaves a fresh form.
start
new 1
type txtTemp(0) 100
answer Yes
type txtPressure(0) 50
leave
expect-message Stop showing this message?
click mnuPureLiquid1
answer No
click mnuNew
expect-message Save changes?
expect-state lstFluid hidden
expect-focus txtTagNum
expect-state txtFlow(0) enabled
click cmdMatl
click mnuNew
expect-state lstMatl hidden

# --- One dialog for all cases: what a case lacks is said, and it opens before any has its state.
start
new 1
click cmdFluid
expect-form frmFluid
expect-focus txtFilter
expect-state chkCase(0) disabled
expect lblLack(0) needs temperature and pressure
expect-state optSteam hidden
expect-state cmdOK disabled
key txtFilter Escape
expect-form frmLiqLineLoss
type txtTemp(0) 100
answer Yes
type txtPressure(0) 50
type txtTemp(1) 200
expect-message Stop showing this message?
type txtPressure(1) 60
type txtTemp(2) 100
# The box in hand is not left, as by a menu.
click cmdFluid
expect lblLack(2) needs the pressure
expect-state chkCase(1) checked
expect-count grdFluids 252
expect-cell grdFluids 0 4 "Boiling point, degF"
row grdFluids 0 2
expect-cell grdFluids 1 2 16.04
row grdFluids 0 2
expect-cell grdFluids 0 2 "Mol. weight ▼"
key grdFluids Ctrl+1
expect-cell grdFluids 1 0 1-1-1-Trichloroethane
# Parts of a name; the one that begins with them comes first.
type txtFilter uene t
expect-state cmdOK enabled
type txtFilter nobody
expect-count grdFluids 1
expect-state cmdOK disabled
type txtFilter tolu
expect-cell grdFluids 1 0 Toluene
expect-cell grdFluids 1 1 Organic
key txtFilter Enter
expect-form frmLiqLineLoss
expect-no-message
expect txtFluid Toluene
expect txtSGFlow(0) 0.8506
expect txtSGFlow(1) 0.7975
expect-state mnuPureLiquid1 checked
click mnuUndo
expect txtFluid ""
expect txtSGFlow(1) ""
click mnuRedo
expect txtSGFlow(1) 0.7975
# A fluid that no case takes leaves the dialog as it is, and the former fluid. A tick taken away is a case less.
click cmdFluid
expect-state cmdOK enabled
type txtFilter propane
answer No
answer No
click cmdOK
expect-message This indicates that the fluid is a gas!
expect-message This indicates that the fluid is a gas!
expect-form frmFluid
expect txtFilter propane
click chkCase(1)
answer Yes
key grdFluids Enter
expect-message This indicates that the fluid is a gas!
expect txtFluid Propane
expect txtSGFlow(1) 0.7975
