# Included by the tests of printing: methane at one state, up to the printout form.
strict on
start
new 5
type txtTemp(0) 80
answer Yes
type txtPressure(0) 250
leave
expect-message Stop showing this message?
click mnuPureGases1
pick lstFluid "Methane "
click cmdSelect
type txtTagNum FD-7
click mnuPrint
expect-form frmObxPrintCalc
