# Saved records are calculated anew: what changes is shown, and nothing is written before it is agreed to.
strict on
set-date 2026-11-26
start
new 1
include good-case.qs
answer Yes
click cmdCalculate(1)
expect-message Transition
type txtTagNum P-101
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message created
# A case without its results, and a flow that the line cannot carry.
type txtTagNum P-102
type txtFlow(1) 90000
expect txtDestPress(1) ""
pick cmdService "Liquid - loss by"
click mnuSave
type txtTagNum P-103
type txtFlow(1) 900000
pick cmdService (none)
click mnuSave
click mnuProgram
click cmdDBOpen
expect-count grdRecords 4
click mnuRecalculateAll
expect-form frmRecalculate
expect lblRecords "3 records"
expect-state cmdSave disabled
click cmdRun
expect lblSummary "3 records, 1 changed, 1 message, 1 remark"
expect-cell grdChanges 1 0 P-102
expect-cell grdChanges 1 4 "Loss per 100 ft, Normal"
click cmdCopy
answer No
click cmdSave
expect-box "Recalculate records" "Save the new results of 1 record?" YesNo Question
answer Yes
click cmdSave
expect-message Save the new
expect-status "1 record saved"
click cmdRun
expect lblSummary "3 records, 0 changed, 1 message, 1 remark"
expect-cell grdChanges 1 0 P-103
expect-cell grdChanges 2 0 P-102
expect-cell grdChanges 2 4 "Normal: Loss above 0.2 psi per 100 ft: beyond the criterion of Liquid - loss by gravity (Usual: 0.025 to 0.045 bar per 100 m)."
expect-state cmdSave disabled
click cmdCancel
expect-form frmTRProg
row grdRecords 2
click mnuRecalculate
expect lblRecords "1 record"
click cmdCancel
click cmdDisplayCalc
expect-form frmLiqLineLoss
expect txtTagNum P-102
expect txtDestPress(1) 92.06
expect cmdDate 11/26/2026
click mnuProgram

# Properties of a fluid follow the table; a line keeps its own unless it is told to.
write-file TRData/Liquid.txt "Name,\nTest oil                       ,1,100,0.8,500,60,2,200,1,500,200,1,1,0,200,12,100,"
new 4
type txtTagNum T-1
type txtTemp(0) 60
type txtPressure(0) 10
click mnuLiquid1
pick lstFluid "Test oil"
click cmdSelect
click mnuSave
click mnuProgram
new 1
type txtTagNum T-2
type txtInletPipeLen 1000
type txtInletPipeID 4.026
type txtFlow(0) 10000
type txtTemp(0) 60
type txtPressure(0) 100
click mnuPureLiquid1
pick lstFluid "Test oil"
click cmdSelect
# The equivalent length is that of the case calculated last, whichever that was: no change of its own.
type txtOutletPipeElev 20
type txtFlow(1) 9000
type txtTemp(1) 60
type txtPressure(1) 100
answer No
type txtSGFlow(1) 0.8
expect-message Update Fluid
type txtViscosity(1) 1
answer Yes
click cmdCalculate(1)
expect-message Transition
answer Yes
click cmdCalculate(0)
expect-message Transition
expect txtSGFlow(0) 0.8004
click mnuSave
write-file TRData/Liquid.txt "Name,\nTest oil                       ,1,100,0.9,500,60,2,200,1,500,200,1,1,0,200,12,100,"
click mnuProgram
# A line that is to pass more than it can, without its results.
new 2
type txtTagNum T-3
type txtInletPipeLen 1000
type txtInletPipeID 4.026
type txtFlow(1) 18500
type txtTemp(1) 60
type txtPressure(1) 100
type txtMW(1) 16.04
type txtRatioSH(1) 1.3
type txtCritTemp(1) 343
type txtCritPressure(1) 667
type txtViscosity(1) 0.011
click mnuSave
click mnuProgram
click mnuRecalculateAll
click cmdRun
expect lblSummary "6 records, 2 changed, 1 message, 2 remarks"
expect-cell grdChanges 1 0 T-1
expect-cell grdChanges 11 4 "Normal: the line chokes now."
click chkFluids
click cmdRun
expect lblSummary "6 records, 3 changed, 1 message, 2 remarks"
expect-cell grdChanges 4 0 T-2
click cmdCancel

# The same as a command, which prints what it finds.
set-date 2026-11-27
recalculate @TRData "" save
click mnuBackups
expect-cell grdBackups 1 0 2026-11-27
click cmdCancel
recalculate @TRData/TRDB.MDB
# And a saved line in each pipe.
sizes @TRData P-102 2 "Water - general service" 40
