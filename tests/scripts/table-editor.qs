# The table editor from the selector's menu: rows recalled, changed, stored, inserted and deleted, with Yes and
# with No, and the file saved, left alone and read again.
strict on
start
click cmdOK
click mnuPipeSizes
expect-form frmTables
expect-title "Pipe Size Data File  W-PIPE.TXT"
expect lblHeading "Pipe Sizes"
expect-focus txtRecall
expect-state txtHole(4) visible
expect-state txtHole(5) hidden
expect-state picValveNotes hidden
expect-cell grdTable 0 1 "Nominal Size"
expect-cell grdTable 3 0 3
expect-cell grdTable 3 1 .125

# A click on a row puts it into the boxes and changes nothing.
row grdTable 3 2
expect txtRecall 3
expect lblRowNum 3
expect-focus txtHole(2)
expect txtHole(2) 80S
expect-state picValveNotes visible
expect lblNote1 "Enter the Pipe Schedule"
# The arrow keys look for a row, Enter takes it.
key grdTable Down
expect lblRowNum 3
key grdTable Enter
expect lblRowNum 4
expect-focus txtHole(2)
key grdTable Up
key grdTable Enter
expect lblRowNum 3
focus txtHole(3)
expect lblNote1 "Enter the Pipe Inside Diameter in inches"
click cmdCancel
expect-state picValveNotes hidden
expect-focus txtRecall
focus txtHole(1)
key txtHole(1) Escape
expect-state picValveNotes hidden
expect-focus txtRecall

expect-tip cmdRecall From the table into the boxes: the row of that number
expect-tip cmdLoadRow From the boxes into the table: over the row of that number
# Recall: the pending row first, then the row of that number.
type txtHole(2) changed
answer No
type txtRecall 2
click cmdRecall
expect-box "Data Changed" "Load Input Data in row  3 OK?" YesNo
expect txtHole(2) 40S
expect-cell grdTable 3 2 80S
type txtHole(2) 41S
answer Yes
answer OK
type txtRecall 999
click cmdRecall
expect-box "Data Changed" "Load Input Data in row  2 OK?" YesNo
expect-box "File Size" "Maximum row number is  422" OK
expect-cell grdTable 2 2 41S
# Text and negative numbers are row 0, a fraction goes to the even neighbour.
type txtRecall abc
click cmdRecall
expect lblRowNum 0
expect txtHole(1) "Nominal Size"
type txtRecall -7
click cmdRecall
expect lblRowNum 0
type txtRecall 2.5
key txtRecall Enter
expect lblRowNum 2
type txtRecall 3.5
click cmdRecall
expect lblRowNum 4

# Load: the boxes go to the row that is typed.
type txtHole(2) 10T
type txtRecall 999
answer OK
click cmdLoadRow
expect-box "File Size" "Maximum row number is  422" OK
type txtRecall 5
answer No
click cmdLoadRow
expect-box "Data Changed" "Load Input Data in row 5 OK?" YesNo
expect lblRowNum 5
expect-cell grdTable 5 2 30
answer Yes
click cmdLoadRow
expect-box "Data Changed" "Load Input Data in row 5 OK?" YesNo
expect-cell grdTable 5 2 10T
click cmdLoadRow
expect-no-message

# Enter writes the one box.
type txtHole(3) 0.5
key txtHole(3) Enter
expect-cell grdTable 5 3 0.5
expect-focus txtHole(3)

# Clear.
answer No
click cmdClear
expect-box "Data Changed" "Load Input Data in row  5 OK?" YesNo
expect txtHole(3) ""
expect lblRowNum ""

# Insert: not before the heading, not beyond the end.
type txtHole(1) .125
type txtHole(2) NEW
type txtRecall 0
answer No
click cmdInsertRow
expect-box "Data Changed" "Load Input Data in row  5. OK?" YesNo
expect-no-message
answer No
answer No
type txtRecall 3
click cmdInsertRow
expect-message "Load Input Data"
expect-box "Insert Row" "Insert a new row 3. OK?" YesNo
expect-cell grdTable 3 2 80S
answer No
answer Yes
click cmdInsertRow
expect-message "Load Input Data"
expect-message "Insert a new row 3. OK?"
expect-count grdTable 424
expect-cell grdTable 3 2 NEW
expect-cell grdTable 4 2 80S
expect-cell grdTable 4 0 4
expect-cell grdTable 423 0 423
expect lblRowNum 3
type txtRecall 4000
answer OK
answer Yes
click cmdInsertRow
expect-box "File Size" "Next row number to add is  424" OK
expect-box "Insert Row" "Insert a new row 424. OK?" YesNo
expect-cell grdTable 424 2 NEW

# Delete.
type txtRecall 425
answer OK
click cmdDeleteRow
expect-box "File Size" "Maximum row number is  424" OK
type txtRecall 0
click cmdDeleteRow
expect-no-message
type txtRecall 424
answer No
click cmdDeleteRow
expect-box "Delete Row" "Delete row 424 OK?" YesNo
expect-count grdTable 425
answer Yes
click cmdDeleteRow
expect-message "Delete row 424 OK?"
expect-count grdTable 424
type txtRecall 3
answer Yes
click cmdDeleteRow
expect-message "Delete row 3 OK?"
expect-cell grdTable 3 2 80S
expect-cell grdTable 3 0 3

# Save: No writes nothing, Yes does.
answer No
click cmdSaveGrid
expect-box "Save a New File" "Save the new file and destroy the old file?" YesNo None No
click cmdReloadGrid
expect-cell grdTable 2 2 40S
expect-cell grdTable 5 2 30
row grdTable 2
type txtHole(2) 42S
answer Yes
answer Yes
click cmdSaveGrid
expect-box "Data Changed" "Load Input Data in row  2 OK?" YesNo
expect-message "Save the new file"
click cmdReloadGrid
expect-cell grdTable 2 2 42S
click cmdCancelGrid
expect-form frmObxProg
expect-no-message

# Leaving asks when something has changed, also when it is in the grid already.
click mnuGasTable
expect-title "Gas Data File  Gas.txt"
expect-state txtHole(15) visible
expect-state txtHole(16) hidden
row grdTable 1 10
expect lblNote1 "For Viscosity U1cp in centipoises"
row grdTable 1
type txtHole(5) 55
answer Yes
type txtRecall 1
click cmdRecall
expect-message "Load Input Data in row  1 OK?"
answer No
click cmdCancelGrid
expect-box "Data Changed" "Save the new file?" YesNo
expect-form frmObxProg
click mnuGasTable
expect-cell grdTable 1 5 54.09
type txtRecall 1
answer Yes
click cmdDeleteRow
expect-message "Delete row 1 OK?"
answer Yes
answer Yes
close
expect-box "Data Changed" "Save the new file?" YesNo
expect-box "Save a New File" "Save the new file and destroy the old file?" YesNo
expect-form frmObxProg
click mnuGasTable
expect-cell grdTable 1 1 "1-Butene                       "
# A row that no calculation can be saved with is told as it is typed, loaded and saved.
row grdTable 1
type txtHole(1) "A gas of no less than 31 letters"
expect-status "The name has more than 30 letters: no calculation with this row can be saved"
answer Yes
click cmdRecall
expect-message "Load Input Data in row  1 OK?"
row grdTable 2
expect-status ""
answer No
click cmdSaveGrid
expect-message "Save the new file"
expect-status "Row 1: The name has more than 30 letters: no calculation with this row can be saved"
click cmdReloadGrid
row grdTable 2
type txtHole(5) abc
expect-status "Molecular weight: abc is read as 0"
click cmdReloadGrid
row grdTable 2
type txtHole(15) "a reference that goes on beyond the end of the line of a record"
expect-status "The row has more than 110 letters: no mixture with this row can be saved"
click cmdReloadGrid
# A box that was changed and recalled over is no change.
row grdTable 1
type txtHole(5) 1
answer No
click cmdRecall
expect-message "Load Input Data in row  1 OK?"
click cmdCancelGrid
expect-form frmObxProg
expect-no-message

# Materials are filed by their row.
click mnuMaterialTable
expect-title "Coefficient of Expansion Data File  MATERIAL.DAT"
expect lblHeading "Coefficient of Expansion Divided by 10^6"
row grdTable 2
expect lblNote2 "CAUTION!! Calculation data are filed under Row Number, Insert and Delete are disallowed"
answer OK
click cmdDeleteRow
expect-box "Data is filed under Row Number" "Rows cannot be deleted" OK
type txtHole(1) Unobtainium
answer No
click cmdInsertRow
expect-box "Data is filed under Row Number" "Rows can only be added at end.  OK?" YesNo
answer Yes
click cmdInsertRow
expect-message "Rows can only be added at end.  OK?"
expect-no-message
expect lblRowNum 44
expect-cell grdTable 44 1 Unobtainium
answer Yes
answer Yes
click cmdCancelGrid
expect-message "Save the new file?"
expect-message "Save the new file and destroy the old file?"

# What is typed before a row is in hand becomes a row of its own.
click mnuLiquidTable
expect-title "Liquid Data File Liquid.txt"
expect-state txtHole(17) visible
type txtHole(1) "My liquid"
answer Yes
answer No
click cmdSaveGrid
expect-message "Load Input Data in row"
expect-message "Save the new file and destroy the old file?"
expect lblRowNum ""
answer No
click cmdCancelGrid
expect-message "Save the new file?"
expect-form frmObxProg

# --- In the cells ----------------------------------------------------------------------------------------------
click mnuGasTable
expect lblShown "136 rows"
expect-tip txtHole(3) "Critical volume, ft3/lb"
cell grdTable 2 5 57
expect-cell grdTable 2 5 57
expect lblRowNum 2
expect txtHole(5) 57
expect-status ""
cell grdTable 2 1 "A gas, no doubt"
expect-status "Row 2: A comma ends a field: what follows it is the next column when the file is read again"
click mnuUndo
expect-status "Undone: row 2"
key grdTable Ctrl+Z
expect-cell grdTable 2 5 70.133
expect-state mnuUndo disabled
key grdTable Ctrl+Y
expect-cell grdTable 2 5 57
# An edit of the boxes is its own, and goes first.
type txtHole(7) 61
cell grdTable 3 5 58
expect txtHole(7) 61
expect lblRowNum 2
click mnuUndo
expect-status "Undone: what was typed into the boxes"
expect txtHole(7) 60
click mnuUndo
click mnuUndo
# Back at the file, leaving asks nothing.
click cmdCancelGrid
expect-form frmObxProg

# --- Ranges and many rows --------------------------------------------------------------------------------------
click mnuPipeSizes
cells grdTable 2 1 3 2
key grdTable Ctrl+C
cells grdTable 5 1 5 1
key grdTable Ctrl+V
expect-status "2 rows pasted"
expect-cell grdTable 5 2 42S
expect-cell grdTable 6 2 80S
expect-cell grdTable 5 3 0.291
click mnuUndo
expect-cell grdTable 5 2 30
cells grdTable 422 1 422 1
clipboard "7\t40\t7.023\t0.301\n7\t80\t6.625\t0.5\t0\n\"7\"\t\"120\"\n"
click mnuPaste
expect-status "3 rows pasted; what went beyond the last column is left out"
expect-count grdTable 425
expect-cell grdTable 423 3 6.625
expect-cell grdTable 424 2 120
click mnuUndo
key txtHole(1) Ctrl+V
expect-status "3 rows pasted; what went beyond the last column is left out"
click mnuUndo
expect-count grdTable 423
cells grdTable 3 1 5 1
click mnuInsertRows
expect-count grdTable 426
expect-cell grdTable 3 1 ""
expect-cell grdTable 6 2 80S
click mnuPasteRows
expect-count grdTable 429
expect-cell grdTable 3 2 40
# One cell fills a range; a range is emptied.
clipboard STD
cells grdTable 3 2 5 2
key grdTable Ctrl+V
expect-cell grdTable 5 2 STD
key grdTable Delete
expect-cell grdTable 5 2 ""
expect-cell grdTable 5 3 ""
cells grdTable 3 1 8 1
answer No
click mnuDeleteRows
expect-box "Delete Row" "Delete rows 3 to 8 OK?" YesNo
answer Yes
click mnuDeleteRows
expect-message "Delete rows"
expect-count grdTable 423
expect-cell grdTable 3 2 80S
# The filter hides rows, which keep their numbers and are left alone.
type txtFilter "xxs 0.8"
expect lblShown "3 of 422 rows"
key txtFilter Down
expect-focus grdTable
clipboard "1\n2\n3\n4\n5"
click mnuPaste
expect-status "There are more rows to paste than the filter shows: nothing was pasted"
clipboard "x\ny"
click mnuPaste
expect-status "2 rows pasted"
key txtFilter Escape
expect lblShown "422 rows"
click mnuUndo
answer No
click cmdCancelGrid
expect-message "Save the new file?"

# Materials keep their rows here too.
click mnuMaterialTable
cells grdTable 3 1 4 3
answer OK
click mnuDeleteRows
expect-box "Data is filed under Row Number" "Rows cannot be deleted" OK
answer No
click mnuPasteRows
expect-box "Data is filed under Row Number" "Rows can only be added at end.  OK?" YesNo
answer Yes
click mnuInsertRows
expect-message "Rows can only be added at end.  OK?"
expect-count grdTable 47
click mnuUndo
expect-count grdTable 45
click cmdCancelGrid
expect-form frmObxProg
quit
