# Included by the tests of printing: the worked example of the water hammer, up to the printout form.
strict on
start
new 3
include hammer-case.qs
click cmdCalculateliq
type txtSelectedTime 4
click cmdCalculateliq
click mnuPrint
expect-form frmObxPrintCalc
