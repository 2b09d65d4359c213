# What the case in hand comes to in each pipe of a family, and the flow that a line carries between two
# pressures: the dialogs show what the form then shows.
strict on
start
new 1
answer OK
click cmdSizes
expect-box "Data checking" "Flow Temperature must be greater than -459.67" OK Stop
include good-case.qs
answer Yes
click cmdCalculate(1)
show-status
click cmdSizes
expect-form frmSizes
expect-state optCase(1) checked
expect-state optCase(0) disabled
expect lblMet "422 pipes"
show lblMet
pick lstSchedule "40"
pick lstService "Water - general"
show lblMet
show lblSource
dump
