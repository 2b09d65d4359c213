# Included by the tests of printing: a gas on the volume basis, with entrance, exit and an equipment that loses
# nothing, up to the printout form.
strict on
start
new 2
include good-gas-case.qs
type txtEquip(1) 0
click cmdFormLayout
answer Yes
doubleclick optVolEnglishUnits
expect-message Round converted data?
click chkEntrance
click chkExit
answer No
click cmdCalculate(1)
expect-message Transition
type txtTagNum FG-2302
click mnuPrint
expect-form frmObxPrintCalc
