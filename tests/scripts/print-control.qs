# The print control from the browser: its messages with both answers, its headings, and what each way out leaves.
strict on
set-date 2025-03-14
start
answer OK
click mnuPrinting
expect-message Open failed (Database invalid)
expect-form frmTRProg
include print-run.qs

# --- Headings ----------------------------------------------------------------------------------------------
expect txtTRCalc Waterhammer
expect txtFluidType Liquid
expect txtCalcDate 04/01/2025
expect txtPrintoutDate 04/01/2025
set-date 2025-05-05
click chkPrintDate
expect txtPrintoutDate 05/05/2025
click chkPrintDate
expect txtPrintoutDate 04/01/2025
click cmdDefaultTitles
expect-colour txtTitle 4
click chkUse
expect txtSubTitle "Unit 200 line sizing"
type txtTitle another
click cmdTitleDefault
expect txtTitle Northfield Terminal
click chkUse
expect txtTitle ""
click cmdTitleDefault

answer No
click cmdSaveInDb
expect-box "Calculation Save" "Tag Number is on file\nOverwrite the existing record?" YesNo
answer Yes
click cmdSaveInDb
expect-message Overwrite

# --- The run -----------------------------------------------------------------------------------------------
click cmdNone
expect txtTagNum ""
expect txtTitle ""
answer OK
click cmdProceed
expect-message Select the records to print first
click cmdAll
expect txtTagNum ""
cancel
click cmdProceed
expect-form frmPrintControl
cancel
click cmdPdf
expect-form frmPrintControl
unpick lstTags P-101A
click chkUse
click chkPrintDate
printer 1 1 9
click cmdProceed
expect-form frmTRProg
click cmdDBOpen
expect lblNumRecords 2
quit
