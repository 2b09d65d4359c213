# Tables that are behind those of the suite: what would be added, which rows stand as formerly shipped, and a
# list of which the picked rows are written while the user's own stay.
strict on
start
expect-status ""
write-file TRData/Liquid.txt "Name,\nMine first                     ,1,10,1,500,60,2,200,1,500,200,1,1,0,200,12,100,\nButane, of mine\nPropane                        ,1,44.096,0.5072,206.1,-40,0.192,100,0.0847,616.6,-43.8,0.63,0.7,0,54.6,15,183,\nPropylene                      ,1,42.08,0.5226,195.9,-50,0.172,100,0.0861,660.6,-53.7,0.61,0.67,0,60,15,189,\nWater                          ,3,18.015,1,705.1,60,1.12,200,0.303,3200,212,1,1.03,0,318,5.9,970,"
write-file TRData/MaTLDAT.TXT "Name                           ,Below 340 degF,Above 340 degF,\nMine                           ,6,7,"
write-file TRData/Gas.txt ""
remove-file TRData/W-DUCTM.TXT
write-file TRData/W-MY&OWN.TXT "Nominal Size,Schedule,Inside Diameter,Wall Thickness\n1,A,1.049,0.133,"
click cmdOK
click mnuShippedRows
expect-form frmShippedRows
expect-count lstRows 96
expect lblPicked "96 of 96 picked"
expect-row lstRows 0 "Liquid.txt    new: Acetic Acid 80%"
expect-row lstRows 56 "Liquid.txt    Propane: BulkMod 54.6, now 39.4; Slope 15, now 14"
expect-row lstRows 95 "W-DUCTM.TXT   new table, 23 rows"

# Nothing picked writes nothing; a row alone is written where the shipped table has it.
click cmdNone
expect lstRows "Liquid.txt    new: Acetic Acid 80%"
expect-state cmdOK disabled
pick lstRows 56
pick lstRows "Liquid.txt    new: White Spirit"
pick lstRows "MaTLDAT.TXT   new: ABS 1210"
pick lstRows 95
expect lblPicked "4 of 96 picked"
click cmdOK
expect-form frmObxProg
expect-status "4 rows were written"
click mnuLiquidTable
expect-cell grdTable 1 1 "Mine first                     "
expect-cell grdTable 2 1 ""
expect-cell grdTable 3 15 39.4
expect-cell grdTable 4 15 60
expect-cell grdTable 5 1 "Water                          "
expect-cell grdTable 6 1 "White Spirit                   "
expect-count grdTable 7
click cmdCancelGrid
click mnuMaterialTable
expect-cell grdTable 1 1 "Mine                           "
expect-cell grdTable 2 1 "ABS 1210                       "
click cmdCancelGrid

# What is left is offered again, all of it picked; Cancel leaves it.
click mnuShippedRows
expect lblPicked "92 of 92 picked"
click cmdNone
click cmdAll
click cmdOK
expect-status "92 rows were written"
click mnuShippedRows
expect-status "Your tables hold all that is shipped"
expect-state cmdOK disabled
click cmdCancel

# A file for each family of pipe has its entry in the menu.
click mnuPipeFamily(5)
expect-title "Pipe Size Data File  W-DUCTM.TXT"
expect-cell grdTable 1 1 3.2
click cmdCancelGrid
# So has a file of the user's own, as in the lookup.
click mnuOwnPipe(1)
expect-title "Pipe Size Data File  W-MY&OWN.TXT"
expect-cell grdTable 1 3 1.049
click cmdCancelGrid
quit
