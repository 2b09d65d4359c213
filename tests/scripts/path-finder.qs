# The path finder from both sides: what it says of a path that is typed, and the folders that it makes on the
# user's word.
start
strict on
click mnuPathUserUnitFile
expect-form WinSeek
expect-title User unit file default path
expect txtSearchSpec TRUNS.TXT
expect-state fraSearch hidden

# --- Keys: letters, digits and blanks pass, the two that build a path are told, others are dropped.
type txtPath ""
answer OK
key txtPath C
key txtPath -
expect-status "The key - is not taken here; a path that has it can be pasted or picked"
key txtPath .
key txtPath :
expect-box "Specify drive to be used" "Use Drive C:" OK None
answer OK
key txtPath \
expect-box "Name next subroutine" "Path C:\\" OK None
expect txtPath C:\
key txtPath Backspace
answer OK
key txtPath /
expect-box "Name next subroutine" "Path C:\\" OK None
expect txtPath C:\
key txtPath a
key txtPath 7
expect txtPath C:\a7
key txtPath Backspace
expect txtPath C:\a

# --- A drive that is not there, no path at all, a path from nowhere.
type txtPath Q:\Data
answer OK
click cmdOK
expect-box "User unit file default path" "Drive does not exist" OK Stop
expect txtPath Q:\Data
expect-focus txtPath
type txtPath ""
click cmdOK
expect-no-message
expect-focus txtPath
expect-status Type a path, or pick one by Browse
type txtPath Data
answer OK
click cmdSave
expect-box "User unit file default path" "Bad file name or number occurred Path Data" OK None
click cmdCancel
expect-form frmTRProg

# --- A folder below the one in hand that is not there yet: No ends, Yes makes it.
click mnuPathUserUnitFile
answer OK
key txtPath \
key txtPath U
expect-message Path
answer No
click cmdOK
expect-message "Path does not exist\nCreate a new path? \n"
expect-form WinSeek
answer Yes
click cmdOK
expect-message TRData\U
expect-form frmTRProg
# It is there now, and stays in hand.
click mnuPathUserUnitFile
click cmdOK
expect-no-message
expect-form frmTRProg

# --- Searching
click mnuPathTables
click cmdBrouse
expect-state fraSearch visible
expect cmdSearch F&ind Liquid.txt
expect-state cmdSelect disabled
click cmdSearch
expect-no-message
expect lblCount 1
expect lblSearch Search Complete
expect cmdSearch &Reset
expect cmdExit Cancel
pick lstFoundFiles 0
expect-state cmdSelect enabled
click cmdSelect
click cmdSearch
expect cmdSearch &Search
expect cmdExit E&xit
expect lblCount 0
expect lblSearch Ready
expect-focus txtSearchSpec
click cmdSearch
type txtSearchSpec *.py
expect cmdSearch F&ind *.py
expect cmdExit E&xit
expect lblSearch Ready
click cmdExit
expect-state fraSearch hidden
click cmdOK
expect-no-message
expect-form frmTRProg

# --- A database elsewhere: cancelled there is none, and the default stays.
click optBrouseDB
expect-title "Data file "
click cmdCancel
expect-state optDefaultDB checked
click optBrouseDB
answer OK
key txtPath \
expect-message Path
key txtPath V
answer Yes
click cmdOK
expect-message Create a new path?
expect-state optBrouseDB checked
answer No
click mnuCreateDB
expect-message "TRData\\V\nWill be destroyed"
# A database that is only looked at is not kept as the default, even when another path is saved meanwhile.
click optBrouseDB
answer OK
key txtPath \
expect-message Path
key txtPath V
click cmdOK
answer Yes
answer OK
click mnuCreateDB
expect-message "TRData\\V\nWill be destroyed"
expect-message New database TRDB.MDB created
click optBrouseDB
answer OK
key txtPath \
expect-message Path
key txtPath V
click cmdOK
answer OK
click cmdDBOpen
expect-message The database is empty!
click mnuPathUserUnitFile
click cmdSave
click cmdOK
click cmdDBClose
answer OK
click cmdDBOpen
expect-message Open failed (Database invalid)
# One that is saved there is.
click optBrouseDB
answer OK
key txtPath \
expect-message Path
key txtPath V
click cmdSave
click cmdOK
click optDefaultDB
answer OK
click cmdDBOpen
expect-message The database is empty!
click cmdDBClose
click mnuPathDataFile
answer OK
key txtPath :
expect-message V:
click cmdCancel

# --- The same finder from a calculation form.
new 1
click mnuPathPrintHdgs
expect-title Printout heading file default path
close
expect-form frmLiqLineLoss
quit
