# Records kept under their tags: saved, overwritten, walked, found, browsed, displayed, deleted, with each
# message of the browser and both answers.
strict on
set-date 2026-11-24
start
expect-state cmdDBClose disabled
expect-state cmdFirst disabled
expect-state txtTagNum hidden
answer OK
click cmdDBOpen
expect-message Open failed (Database invalid)
write-file TRData/TRDB.MDB "words"
answer OK
click cmdDBOpen
expect-message Open failed (Database invalid)
expect-status Repair database, in the menu File, saves what can still be read of a damaged database
remove-file TRData/TRDB.MDB
new 1

# --- Saving ------------------------------------------------------------------------------------------------
include good-case.qs
answer No
click cmdCalculate(1)
expect-message Transition
answer OK
click mnuSave
expect-message Each record must have a unique Tag number
expect-focus txtTagNum
type txtTagNum "  P-102 "
answer No
click mnuSave
expect-message Create it?
answer Yes
answer OK
click mnuSave
expect-message Create it?
expect-message New database TRDB.MDB created
expect txtTagNum P-102
click cmdDate
# Saved again, it asks before it writes over what is there.
answer No
click mnuSave
expect-box "Calculation Save" "Tag Number is on file\nOverwrite the existing record?" YesNo
expect-status Not saved
answer Yes
click mnuSave
expect-message Overwrite
# What is saved may be left without a question; a change asks, and a refusal stays.
type txtFlow(1) 90000
answer Yes
answer No
click mnuNew
expect-box "Line Loss  - Liquid flow" "Save changes?" YesNo
expect-message Overwrite
expect txtTagNum P-102
type txtTagNum P-103
click cmdCalculate(1)
answer Yes
click mnuProgram
expect-message Save changes?
expect-form frmLiqLineLoss
click mnuProgram
expect-form frmTRProg

# The other programs, a record each.
new 2
type txtTagNum G-1
type txtTemp(0) 80
type txtPressure(0) 150
click mnuMixtures1
pick lstFluid "Methane "
click cmdSelect
type txtPercent(0) 80
pick lstFluid "Ethane "
click cmdSelect
key txtPercent(1) R
click cmdCalcPseudo
type txtFlow(0) 5000
type txtInletPipeLen 320
type txtInletPipeID 6.065
click cmdCalculate(0)
click mnuSave
click mnuProgram
new 4
type txtTagNum L-1
type txtTemp(0) 80
type txtPressure(0) 100
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
click mnuSave
click mnuProgram
new 5
type txtTagNum S-1
type txtPressure(1) 100
leave
click mnuSatSteam2
click mnuSave
# The longest of all titles.
type txtTagNum S-2
type txtTemp(0) 600
answer No
type txtPressure(0) 100
leave
expect-message Update Fluid Properties?
click mnuSupersteam1
click mnuSave
click mnuProgram
new 3
type txtTagNum W-1
type txtMaxLiqFlow 400000
type txtFlowTemp 68
type txtOperPressure 100
type txtLineLength 2500
click mnuSave
click mnuProgram

# --- Walking ---------------------------------------------------------------------------------------------------
click cmdDBOpen
expect-focus cmdDisplayCalc
expect lblNumRecords 7
expect txtTagNum G-1
expect txtTRCalc "Pressure drop"
expect txtFluidType Gas
click cmdPrev
expect lblCurrentRecord 1
click cmdLast
expect txtTagNum W-1
expect txtTRCalc Waterhammer
expect lblCurrentRecord 7
click cmdNext
expect lblCurrentRecord 7
click cmdPrev
expect txtTagNum S-2
expect txtTRCalc "Fluid data"
click cmdFirst
expect lblCurrentRecord 1

click cmdBrowse
expect-state fraTags visible
expect-state cmdSelect disabled
expect-state cmdOK disabled
expect-state mnuDeleteRecords disabled
expect-count lstTags 7
type txtSearchTag p-
expect lstTags P-102
type txtSearchTag q
expect-state cmdSelect disabled
click cmdCancel
expect-state fraTags hidden
expect txtTagNum G-1
click cmdBrowse
type txtSearchTag p-10
doubleclick lstTags
expect txtTagNum P-102
expect txtCalcDate 11/24/2026

answer OK
click cmdFind
type txtFind X-9
click cmdFind
expect-box "Tag Number Search" "Cannot find X-9" OK Stop
click cmdFind
expect txtFind X-9
click cmdCancel
expect txtTagNum P-102
click cmdFind
type txtFind g-1
click cmdFind
expect txtTagNum G-1

answer No
click cmdSearchDate
expect-box "Outdated Calculations" "This will find records where the process data\ndate is later than the calculation date.\nContinue" YesNo
answer Yes
answer OK
click cmdSearchDate
expect-message Continue
expect-box "Outdated Calculations" "The calculation date is later than the process data\nfor all records" OK

# --- Display -----------------------------------------------------------------------------------------------------
# A mixture comes back with its components, and renews itself.
click cmdDisplayCalc
expect-form frmGasLineLoss
expect-title Ver.6.0.0.  Line Loss  - Gas Flow
expect txtFluid Mixture
expect txtMW(0) 18.85
expect txtDestPress(0) 149.9
expect-state mnuMixtures1 checked
click mnuMixtures1
expect lblComponent(1) Ethane
expect txtPercent(1) 20
click cmdCancel
click mnuProgram
expect txtTagNum G-1
click cmdNext
click cmdDisplayCalc
expect-form frmLiqData
expect txtFluid Toluene
expect txtSGFTP(0) 0.8615
click mnuProgram
click cmdLast
click cmdDisplayCalc
expect-form frmWaterHammer
expect txtMaxLiqFlow 400000
click mnuProgram
# An edit of a saved record blanks its results, and is asked for.
click cmdFirst
click cmdNext
click cmdNext
expect txtTagNum P-102
click cmdDisplayCalc
expect txtDestPress(1) 90.31
type txtFlow(1) 50000
expect txtDestPress(1) ""
answer No
click mnuProgram
expect-message Save changes?
click cmdLast
click cmdPrev
click cmdDisplayCalc
expect-title Ver.6.0.0.  Gas properties at pressure and temperature - Superheated Steam
expect-state mnuSupersteam1 checked
click mnuProgram
click cmdPrev
click cmdDisplayCalc
expect-form frmGasData
expect txtDensity(1) 0.2563
expect-state mnuSatSteam1 checked
expect-title Ver.6.0.0.  Gas properties at pressure and temperature - Saturated Steam
click mnuProgram
# A calculation that is given up leaves the browser where it was.
new 1
click mnuProgram
expect txtTagNum S-1

# --- The table of all records --------------------------------------------------------------------------------------
expect-count grdRecords 8
expect lblShown "7 records"
expect-cell grdRecords 0 0 "Tag number ▲"
expect grdRecords S-1
click mnuFindRecord
expect-focus txtFilter
type txtFilter "FLUID tol"
expect lblShown "1 of 7 records"
expect-cell grdRecords 1 2 Toluene
expect txtTagNum S-1
key txtFilter Down
expect-focus grdRecords
expect txtTagNum L-1
key txtFilter Escape
expect-focus txtFilter
expect grdRecords L-1
# By a column, the other way round, and in its order the arrows choose.
row grdRecords 0 1
row grdRecords 0 1
expect-cell grdRecords 0 1 "Calculation ▼"
expect-cell grdRecords 1 0 W-1
expect grdRecords L-1
click cmdLast
expect grdRecords W-1
key grdRecords Down
expect txtTagNum G-1
doubleclick grdRecords
expect-form frmGasLineLoss
click mnuProgram
expect-cell grdRecords 1 0 W-1
row grdRecords 0 0
# A copy under a tag of its own.
input "l-1"
answer OK
click mnuCopyRecord
expect-box "Copy G-1" "Tag Number is on file" OK Stop
input "A tag number that is too long"
answer OK
click mnuCopyRecord
expect-message characters
input " G-9 "
click mnuCopyRecord
expect txtTagNum G-9
key grdRecords Enter
expect txtFluid Mixture
expect txtDestPress(0) 149.9
click mnuProgram
# Several at once.
rows grdRecords 1 2
save-as @two.csv
answer OK
click mnuExportRecords
expect-message 2 records written to
click mnuPrintRecords
expect-form frmPrintControl
click cmdCancelPrint
row grdRecords 1
rows grdRecords 2 3
answer No
key grdRecords Delete
expect-box "Confirm Record Delete" "Delete 2 records:  G-9, L-1\n\nAre you sure?" YesNo None No
row grdRecords 2
answer Yes
key grdRecords Delete
expect-message Delete Tag Number:  G-9
expect grdRecords L-1
open S-1
click mnuProgram

# --- Delete ------------------------------------------------------------------------------------------------------
answer No
click cmdDelete
expect-box "Confirm Record Delete" "Delete Tag Number:  S-1\n\nAre you sure?" YesNo None No
expect lblNumRecords 7
answer Yes
click cmdDelete
expect-message Are you sure?
expect lblNumRecords 6
expect txtTagNum S-2
click cmdLast
answer Yes
click cmdDelete
expect-message Are you sure?
expect txtTagNum S-2

# --- The file ----------------------------------------------------------------------------------------------------
answer No
click mnuCompactDB
expect-box "Compact database" "This procedure will recover the space of deleted\nrecords and re-sort the database\nDo you wish to proceed?" YesNo
answer Yes
answer OK
file OLDTRDB.MDB
click mnuCompactDB
expect-message wish to proceed?
expect-box "Database file" "Must find file named TRDB.MDB" OK
expect-state cmdFirst disabled
answer OK
click mnuCreateDB
expect-box "Database TRDB.MDB" "First, use option 'Browse for DB Path' to determine path" OK
click cmdDBOpen
expect lblNumRecords 5
answer Yes
file @TRData/TRDB.MDB
answer OK
click mnuCompactDB
expect-message wish to proceed?
expect-box "Database TRDB.MDB" "Compacting complete" OK
file @TRData/TRDB.MDB
answer No
click mnuRepairDB
expect-box "Database TRDB.MDB" "Repair the Process Data database?" YesNo None No
file @TRData/TRDB.MDB
answer Yes
answer OK
click mnuRepairDB
expect-message Repair the Process Data database?
expect-box "Database TRDB.MDB" "End of repair procedure!" OK
# A file that is no database is neither compacted nor repaired.
write-file TRDB.MDB "words"
file @TRDB.MDB
answer Yes
answer OK
click mnuCompactDB
expect-message wish to proceed?
expect-message Open failed (Database invalid)
click cmdDBOpen
expect lblNumRecords 5

# --- Save As: another database, which must be there --------------------------------------------------------------
click cmdDisplayCalc
save-as @other.mdb
answer OK
click mnuSaveAs
expect-box "Database file" "Must find file named TRDB.MDB" OK
save-as @TRDB.MDB
answer OK
click mnuSaveAs
expect-message Open failed (Database invalid)
save-as @none/TRDB.MDB
answer No
click mnuSaveAs
expect-message Create it?
click mnuProgram
click optBrouseDB
answer OK
key txtPath \
expect-message Path
key txtPath V
answer Yes
click cmdOK
expect-message Create a new path?
answer Yes
answer OK
click mnuCreateDB
expect-message Will be destroyed
expect-message New database TRDB.MDB created
click cmdDBOpen
click cmdNext
expect txtTagNum L-1
click cmdDisplayCalc
save-as @TRData/V/TRDB.MDB
click mnuSaveAs
expect-no-message
expect-status Saved as L-1
click mnuProgram
open L-1
expect txtFluid Toluene
click mnuProgram
expect lblNumRecords 5
export @TRData @all.csv
# An export does not go over a database.
save-as no-such-folder/trdb.mdb
answer OK
click mnuExport
expect-message A database cannot be written over by an export
click cmdDBClose
expect-state txtTagNum hidden
expect-count grdRecords 1
expect-state txtFilter disabled
# A database that was looked at is not the default when it is closed, neither to save to nor to open.
click optBrouseDB
answer OK
key txtPath \
expect-message Path
key txtPath V
click cmdOK
click cmdDBOpen
expect lblNumRecords 1
# The databases opened last; one that falls on the window opens by the path that it lies on.
click mnuRecentFile(2)
expect lblNumRecords 5
expect-state optDefaultDB checked
click mnuRecentFile(2)
expect lblNumRecords 1
expect-state optBrouseDB checked
answer OK
drop @other.mdb
expect-box "Database file" "Must find file named TRDB.MDB" OK
drop @TRData/TRDB.MDB
expect lblNumRecords 5
expect-state optDefaultDB checked
drop @TRData/V/TRDB.MDB
expect lblNumRecords 1
click cmdDBClose
new 4
type txtTagNum A-1
click mnuSave
click mnuProgram
click cmdDBOpen
expect lblNumRecords 6
click cmdDBClose

# --- Numbers that are nothing and numbers that are zero, in SI units -----------------------------------------------
start
new 1
include good-case.qs
type txtTagNum SI-0
type txtTemp(0) 32
type txtPressure(0) 0
click cmdFormLayout
click optMassSIUnits
answer No
click cmdOKOptions
expect-message Round converted data?
expect txtTemp(0) 0
click mnuSave
click mnuProgram
open SI-0
expect txtTemp(0) 0
expect txtTemp(1) 15.5556
expect txtTemp(2) ""
expect txtPressure(0) 0
expect txtPressure(2) ""
expect cmdUnits(2) degC
expect cmdUnits(3) kPag
click mnuProgram

# --- Two records side by side, the second in the units of the first ------------------------------------------------
input SI-1
click mnuCopyRecord
click cmdDisplayCalc
click cmdFormLayout
click optMassEnglishUnits
click optAbsolutePressure
answer Yes
click cmdOKOptions
expect-message Round converted data?
type txtInletPipeID 6.065
answer No
click cmdCalculate(1)
expect-message Transition
answer Yes
click mnuSave
expect-message Overwrite
click mnuProgram
type txtFilter si-
row grdRecords 1
answer OK
click mnuCompareRecords
expect-message Select two records in the table first
rows grdRecords 1 2
click mnuCompareRecords
expect-form frmCompare
expect lblRecords "SI-0 and SI-1, in the units of SI-0: 7 of 22 rows differ"
expect-status ""
expect-cell grdRows 6 1 Length
expect-cell grdRows 6 0 ""
expect-cell grdRows 6 4 304.8
expect-cell grdRows 9 4 0
click chkOnly
expect-count grdRows 8
expect-cell grdRows 2 0 ≠
expect-cell grdRows 2 3 102.260605
expect-cell grdRows 2 4 154.1
expect-cell grdRows 2 5 mm
expect-cell grdRows 2 6 +51.79
expect-cell grdRows 2 7 +50.6
key grdRows Ctrl+c
expect-status Copied
click cmdExchange
expect lblRecords "SI-1 and SI-0, in the units of SI-1: 7 of 22 rows differ"
expect-cell grdRows 2 4 4.026
close
# Of two kinds: what both have.
type txtFilter ""
rows grdRecords 3 4
click mnuCompareRecords
expect-status Calculations of two kinds: only the rows that both have are compared
expect-count grdRows 13
expect-cell grdRows 1 3 "Liquid properties at pressure and temperature"
click cmdCancel
type txtFilter si-1
row grdRecords 1
answer Yes
key grdRecords Delete
expect-message SI-1

# --- Backups: the first change of a day keeps the database as it was -------------------------------------------------
write-file TRData/TRDB-2026-11-23.BAK "words"
set-date 2026-11-25
new 4
type txtTagNum B-1
click mnuSave
expect-status Saved as B-1
click mnuProgram
click cmdDBOpen
expect lblNumRecords 8
click mnuBackups
expect-count grdBackups 4
expect-cell grdBackups 1 0 2026-11-25
expect-cell grdBackups 1 2 "7 records"
expect-cell grdBackups 2 2 "1 record"
expect-state cmdRestore disabled
row grdBackups 3
answer Yes
answer OK
click cmdRestore
expect-message Put the backup of 2026-11-23 (damaged) in the place of
expect-message This backup is damaged; the database stays as it is
expect lblNumRecords 8
click mnuBackups
row grdBackups 1
answer No
click cmdRestore
expect-message The present database is kept beside it
answer Yes
doubleclick grdBackups
expect-message The present database is kept beside it
expect-status Restored from 2026-11-25; what was there is kept as TRDB-2026-11-25 put aside 1.BAK
expect lblNumRecords 7
click mnuBackups
expect-cell grdBackups 1 1 "a restore"
row grdBackups 1
answer Yes
click cmdRestore
expect-message Continue?
expect lblNumRecords 8
# Also when there is no database any more.
click cmdDBClose
remove-file TRData/TRDB.MDB
click mnuBackups
row grdBackups 3
answer Yes
click cmdRestore
expect-message Continue?
expect-status Restored from 2026-11-25
expect lblNumRecords 7
# How many are kept; those of a restore stay.
click mnuBackups
type txtKept -1
answer OK
click cmdCancel
expect-box "Backups" "Days must be a whole number from 0 to 99; they stay 10" OK Stop
click mnuBackups
type txtKept 1
close
set-date 2026-11-26
answer Yes
click cmdDelete
expect-message Are you sure?
click mnuBackups
expect-count grdBackups 4
expect-cell grdBackups 1 0 2026-11-26
expect-cell grdBackups 2 1 "a restore"
click cmdCancel
quit
