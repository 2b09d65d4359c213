# Records on a server, to be played beside one (tools/on_server.sh): made by the form, saved, walked, compared, exported, copied
# to a file and back; what is of a file alone is refused.
strict on
set-date 2026-11-24
start
click mnuServerDB
expect-form frmServer
expect txtSchema quillmetra
answer OK
click cmdOK
expect-message It names neither a host nor a service
type txtHost localhost
type txtPort 70000
answer OK
click cmdOK
expect-message Its port is no number from 1 to 65535
# A server that is not there, and a name without one.
type txtPort 1
save-as @TRData/TRDB.MDB
answer OK
click cmdOK
expect-message The server cannot be reached
expect-form frmServer
type txtPort ""
save-as @TRData/other.mdb
answer OK
click cmdOK
expect-message Must find file named TRDB.MDB
save-as @TRData/TRDB.MDB
answer OK
answer OK
click cmdOK
expect-message leads to localhost, schema quillmetra
expect-message The database is empty!
expect-form frmTRProg

# --- Saved and walked --------------------------------------------------------------------------------------
new 1
include good-case.qs
type txtTagNum S-101
answer No
click cmdCalculate(1)
expect-message Transition
click mnuSave
expect-status Saved as S-101
type txtTagNum S-102
click mnuSave
expect-status Saved as S-102
answer Yes
click mnuSave
expect-message Tag Number is on file
click mnuProgram
expect-count grdRecords 3
save-as @one.csv
answer OK
click mnuExport
expect-message 2 records written to

# --- What is of a file alone -------------------------------------------------------------------------------
answer Yes
answer OK
file @TRData/TRDB.MDB
click mnuCompactDB
expect-message This procedure will recover
expect-message The records of this database are on a server
answer Yes
answer OK
answer OK
file @TRData/TRDB.MDB
click mnuRepairDB
expect-message Repair the Process Data database?
expect-message The records of this database are on a server
expect-message End of repair procedure!
drop @TRData/TRDB.MDB
expect-count grdRecords 3
click mnuBackups
expect-status "The records of this database are on a server: whoever looks after the server compacts, repairs and backs up"
click cmdCancel
save-as @TRData/TRDB.MDB
answer OK
click mnuExport
expect-message A database cannot be written over by an export

# --- To a file and from there on -----------------------------------------------------------------------------
save-as @TRData/TRDB.MDB
answer OK
click mnuCopyAll
expect-message This is the database that is open
save-as @TRDB.MDB
click mnuCopyAll
expect-form frmCopyAll
click cmdCopy
expect-status All records are copied
click cmdCancel
drop @TRDB.MDB
expect-count grdRecords 3
save-as @two.csv
answer OK
click mnuExport
expect-message 2 records written to
