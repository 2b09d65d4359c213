# Included by the tests of printing: the good liquid case, with headings, up to the printout form.
strict on
start
set-date 2025-03-14
new 1
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
type txtTagNum P-101A
type txtFluid Water
click cmdCalculate(1)
type txtBy Process
type txtApprov Manager
type txtComments(0) Checked against isometric 200-14.
expect-state mnuPrint enabled
click mnuPrint
expect-form frmObxPrintCalc
expect-focus cmdOK
click cmdDate
type txtTitle Northfield Terminal
type txtSubTitle Unit 200 line sizing
type txtProjectNo 4471
type txtProjectName Tank farm revamp
expect txtComments(0) "Checked against isometric 200-14."
