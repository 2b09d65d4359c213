# Included by the tests of printing: two records and headings, up to the print of both in one run.
strict on
set-date 2025-03-14
start
new 1
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
type txtTagNum P-101A
type txtFluid Water
click cmdCalculate(1)
type txtBy Process
type txtComments(0) Checked against isometric 200-14.
click cmdDate
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message New database
click mnuProgram
set-date 2025-04-01
new 3
type txtTagNum HV-330
type txtMaxLiqFlow 400000
type txtFlowTemp 60
type txtOperPressure 100
type txtSGFlow 1
type txtBulkModulus 319000
type txtLineLength 2500
type txtPipeID 6.065
type txtPipeWall 0.28
type txtPipeMatl Steel
type txtLineModulus 29500000
type txtMaxAllowPressure 300
click cmdCalculateliq
type txtComments(1) Valve list of rev. B.
click cmdDate
click mnuSave
click mnuProgram
click mnuPrinting
expect-form frmPrintControl
expect-title Ver.6.0.0.  Process Data Calculation printouts
expect lblNumRecords 2
type txtTitle Northfield Terminal
type txtSubTitle Unit 200 line sizing
type txtProjectName Tank farm revamp
type txtProjectNo 4471
pick lstTags P-101A
pick lstTags HV-330
expect txtTagNum HV-330
expect txtTitle Northfield Terminal
