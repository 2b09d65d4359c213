# Included by the tests of printing: the same record in SI units, refused until it is rounded.
include print-liquid-english.qs
click cmdCancel
click cmdFormLayout
answer No
doubleclick optMassSIUnits
expect-message Round converted data?
answer OK
click mnuPrint
expect-box "Print Calculation" "Please round before printing" OK Stop
expect-form frmLiqLineLoss
click cmdFormLayout
answer No
doubleclick optMassEnglishUnits
expect-message Round converted data?
click cmdFormLayout
answer Yes
doubleclick optMassSIUnits
expect-message Round converted data?
click mnuPrint
expect-form frmObxPrintCalc
