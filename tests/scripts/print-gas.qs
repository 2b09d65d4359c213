# Included by the tests of printing: a gas typed by hand, up to the printout form.
strict on
start
new 2
include good-gas-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
type txtTagNum FG-2301
click mnuPrint
expect-form frmObxPrintCalc
