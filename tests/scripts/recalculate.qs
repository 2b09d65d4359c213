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
click mnuSave
type txtTagNum P-103
type txtFlow(1) 900000
click mnuSave
click mnuProgram
click cmdDBOpen
expect-count grdRecords 4
click mnuRecalculateAll
expect-form frmRecalculate
expect lblRecords "3 records"
expect-state cmdSave disabled
click cmdRun
expect lblSummary "3 records, 1 changed, 1 message"
expect-cell grdChanges 1 0 P-102
expect-cell grdChanges 1 1 "Loss per 100 ft, Normal"
click cmdCopy
answer No
click cmdSave
expect-box "Recalculate records" "Save the new results of 1 record?" YesNo Question
answer Yes
click cmdSave
expect-message Save the new
expect-status "1 record saved"
click cmdRun
expect lblSummary "3 records, 0 changed, 1 message"
expect-cell grdChanges 1 0 P-103
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
write-file TRData/Liquid.txt "Name,\nTest oil                       ,1,100,0.9,500,60,2,200,1,500,200,1,1,0,200,12,100,"
click mnuProgram
click mnuRecalculateAll
click cmdRun
expect lblSummary "4 records, 1 changed, 1 message"
expect-cell grdChanges 1 0 T-1
click cmdCancel

# The same as a command, which prints what it finds.
recalculate @TRData "" save
recalculate @TRData/TRDB.MDB
