# What the case in hand comes to in each pipe of a family, and the flow that a line carries between two
# pressures: what is taken from the dialogs is what the form then has.
strict on
start
new 1
answer OK
click cmdSizes
expect-box "Data checking" "Flow Temperature must be greater than -459.67" OK Stop
include good-case.qs
# A line that has no pipe yet is what sizes are for; without a service none is proposed.
type txtInletPipeID ""
click cmdSizes
expect-state cmdOK disabled
click cmdCancel
type txtInletPipeID 4.026
click cmdSizes
expect-form frmSizes
expect-state optCase(1) checked
expect-state optCase(0) disabled
expect lblMet "422 pipes"
expect-cell grdSizes 0 5 "Loss per 100 ft, psi"
pick lstSchedule 7
pick lstService "Water - general"
expect lblSource "velocity up to 10 ft/s (Crane TP-410: 4 to 10 ft/s)"
expect lblMet "16 of 26 pipes meet the criterion"
expect-cell grdSizes 10 3 "zero pressure"
expect-cell grdSizes 11 3 meets
pick lstService "Liquid - loss of a suction"
expect-cell grdSizes 12 3 "loss above 0.44 psi per 100 ft"
click cmdCopy
expect-status "The table is on the clipboard"
click cmdOK
expect-form frmLiqLineLoss
expect txtInletPipeID 5.047
# Its service goes with the pipe, and may be another one.
expect cmdService "Liquid - loss of a suction"
answer Yes
click cmdCalculate(1)
expect-message Transition
expect-status ""
pick cmdService "Liquid - loss by gravity"
expect-status "Loss above 0.2 psi per 100 ft: beyond the criterion of Liquid - loss by gravity (Usual: 0.025 to 0.045 bar per 100 m)."
expect txtVelocity(1) 3.204
click mnuUndo
expect cmdService "Liquid - loss of a suction"
write-file TRData/Criteria.txt "Service,\nWater - own line, Liquid, 3, , , Own,"
pick cmdService (none)
pick cmdService Water
expect-status "Velocity above 3 ft/s: beyond the criterion of Water - own line (Own)."
write-file TRData/Criteria.txt "Service,\nWater - former line, Liquid, 7, , , Own,"
answer Yes
click cmdCalculate(1)
expect-message Transition
expect-status "The table of criteria has no service Water - own line."

# Of two services of one name that of the fluid counts; one without figures proposes no pipe.
write-file TRData/Criteria.txt "Service,\nHeader, Gas, 1, , , Own,\nHeader, Liquid, 9, , , ,\nTo do, Any, soon, , , ,"
click cmdSizes
pick lstService Header
expect lblSource "velocity up to 9 ft/s"
pick lstService "To do"
expect lblSource "This service has no figures"
expect lblMet "422 pipes"
expect-cell grdSizes 1 3 "zero pressure"
pick lstService Header
click cmdOK
answer Yes
click cmdCalculate(1)
expect-message Transition
expect-status ""

# Other families, other units; nothing of a family that is gone.
remove-file TRData/W-COPPER.TXT
click cmdSizes
pick lstFamily "HDPE, metric"
expect-cell grdSizes 1 1 SDR11
click cmdCancel

# The flow for a pressure is taken into its box; a pressure that no flow gives is told.
click cmdFlowFor
expect-form frmLineFlow
expect txtGiven 100
type txtEnd 99
click cmdFind
click cmdOK
expect-form frmLiqLineLoss
answer Yes
click cmdCalculate(1)
expect-box "Flow Status" "Normal flow in is in the Transition Zone  \nUse data with care\n\n\n(Press No to hide the message)" YesNo Question
expect txtDestPress(1) 99
click cmdFlowFor
type txtEnd 101
click cmdFind
expect lblReason "Even without flow the line does not end at that pressure"
expect-state cmdOK disabled
answer OK
type txtEnd -15
click cmdFind
expect-box "Data checking" "Destination pressure must be greater than absolute zero" OK Stop
type txtEnd 100
click cmdFind
expect lblReason "The line has that pressure without any flow"
click cmdCancel

# A case that is refused leaves all of the one before.
type txtFlow(0) 300000
type txtTemp(0) 60
type txtPressure(0) 200
type txtSGFlow(0) 1
answer Yes
click cmdCalculate(1)
expect-message Transition
click cmdSizes
pick lstFamily "Steel, NPS"
answer OK
click optCase(0)
expect-box "Data checking" "Viscosity must be greater than zero" OK Stop
expect-state optCase(1) checked
pick lstSchedule 7
expect-cell grdSizes 15 4 0.3143
click cmdCancel
click cmdFlowFor
answer OK
click optCase(0)
expect-message Viscosity
type txtEnd 90
click cmdFind
expect-focus cmdOK
expect txtFlow 49449
click cmdCancel
click optSource
click cmdFlowFor
type txtEnd 90
click cmdFind
expect lblReason "Even without flow the line does not start at that pressure"
click cmdCancel

# A gas that the line does not pass, though the march gets to its end.
write-file TRData/Criteria.txt "Service,\nErosional, Any, , 40, , Own,"
start
new 2
include good-gas-case.qs
click cmdFlowFor
type txtEnd 10
click cmdFind
expect txtFlow 18664
expect lblReason "The line chokes at 18377 lb/h and cannot pass this flow (adiabatic, not printed), seen here as 0.41 of sonic velocity."
type txtEnd -14
click cmdFind
expect lblReason "The gas becomes as fast as sound first: the line takes at most 18970 lb/h, and ends at -0.6373 psig"
expect-state cmdOK disabled
click cmdCancel
type txtFlow(1) 18664
click cmdSizes
pick lstSchedule 7
pick lstService Erosional
expect-cell grdSizes 12 3 "sonic velocity"
expect-cell grdSizes 13 3 chokes
expect-cell grdSizes 14 3 "velocity above 75.5 ft/s"
click cmdCancel
