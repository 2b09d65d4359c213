# Included by the tests of printing: a gas of two components, up to the printout form.
strict on
start
new 2
include good-gas-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
type txtTagNum FG-2301
click mnuMixtures2
pick lstFluid "Methane "
click cmdSelect
type txtPercent(0) 80
pick lstFluid "Ethane "
click cmdSelect
key txtPercent(1) R
click cmdCalcPseudo
click mnuPrint
expect-form frmObxPrintCalc
