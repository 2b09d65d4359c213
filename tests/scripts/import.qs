# A list from a spreadsheet becomes records: a preview tells what comes of each row, nothing is saved before it is
# agreed to, and records that are there are replaced on consent alone.
strict on
set-date 2026-11-26
start
answer OK
click mnuImport
expect-box "Import records" "Open the database first" OK
new 1
include good-case.qs
answer Yes
click cmdCalculate(1)
expect-message Transition
type txtTagNum P-101
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message created
click mnuProgram
click cmdDBOpen
write-file list.csv "Tag;Program Number;Pipe;Pipe Length;Normal Flow;Normal Temperature;Normal Flow Source Pressure;Fluid Name;Colour\nP-101;;;;110000,5;;;;red\nP-102;1;6 in sch 40;1000;100000;60;100;Toluene;\nP-103;1;6 in sch 40;;100000;60;100;Toluene;\nP-104;1;6 in sch 40;1000;nine;60;100;Toluene;\n"
cancel
click mnuImport
expect-form frmTRProg
file @list.csv
click mnuImport
expect-form frmImport
expect-state cmdSave disabled
expect-state chkReplace disabled
click cmdRead
expect lblSummary "1 new, 1 changed, 0 equal, 2 refused"
expect-cell grdRows 1 4 "Column I, Colour: left alone"
expect-cell grdRows 2 2 changed
expect-cell grdRows 2 3 "Normal Flow"
expect-cell grdRows 3 1 P-102
expect-cell grdRows 4 2 refused
expect-cell grdRows 4 3 "Pipe Length"
expect-cell grdRows 4 4 "Length must be > zero"
expect-cell grdRows 5 4 "\"nine\" is no number"
click chkProblems
expect-count grdRows 4
click cmdCopy
expect-status "The table is on the clipboard"
answer No
click cmdSave
expect-box "Import records" "Save 1 new record?" YesNo Question
click chkReplace
answer Yes
click cmdSave
expect-box "Import records" "Save 1 new record and replace 1?" YesNo Question
expect-status "2 records saved"
expect-state cmdSave disabled
click cmdRead
expect lblSummary "0 new, 0 changed, 2 equal, 2 refused"
expect-state cmdSave disabled

# Files that are none, and none at all.
write-file open.csv "Tag,\"Flow\nP-1,2\n"
file @open.csv
click cmdFile
answer OK
click cmdRead
expect-message The quotes that open in row 1 are not closed
expect lblSummary ""
write-file other.csv "Name,Value\nP-1,2\n"
file @other.csv
click cmdFile
answer OK
click cmdRead
expect-message among them Tag
remove-file other.csv
answer OK
click cmdRead
expect-message File not found
click cmdCancel
expect-form frmTRProg
expect-count grdRecords 3
row grdRecords 2
click cmdDisplayCalc
expect-form frmLiqLineLoss
expect txtTagNum P-102
expect txtInletPipeID 6.065
expect txtPipeName 6 in sch 40
expect txtFluid Toluene
expect txtViscosity(1) 0.621
expect cmdDate 11/26/2026
click mnuProgram
drop @list.csv
expect-form frmImport
click cmdCancel

# A list fills the empty database that is open.
rows grdRecords 1 2
answer Yes
key grdRecords Delete
expect-message Delete 2 records
expect-state grdRecords disabled
drop @list.csv
click cmdRead
answer Yes
click cmdSave
expect-message Save 1 new record?
click cmdCancel
expect-state grdRecords enabled

# The same as a command.
import @TRData @list.csv "" preview
import @TRData/TRDB.MDB @list.csv @report.csv replace
