# Included by the tests of printing: toluene at one state, up to the printout form.
strict on
start
new 4
type txtTemp(0) 80
answer Yes
type txtPressure(0) 100
leave
expect-message Stop showing this message?
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
type txtTagNum LD-12
click mnuPrint
expect-form frmObxPrintCalc
