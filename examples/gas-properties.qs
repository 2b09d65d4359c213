# A worked example: the properties of a fuel gas of six components at two states.
#
#   quillmetra-script examples/gas-properties.qs
start
new 5
type txtTagNum FG-2300 fuel gas
type txtBy Process
type txtTemp(0) 80
answer No
type txtPressure(0) 250
type txtTemp(1) 120
type txtPressure(1) 400
click mnuMixtures1
pick lstFluid "Methane "
click cmdSelect
type txtPercent(0) 72.5
pick lstFluid "Ethane "
click cmdSelect
type txtPercent(1) 10.25
pick lstFluid "Propane "
click cmdSelect
type txtPercent(2) 6
pick lstFluid "n-Butane "
click cmdSelect
type txtPercent(3) 3.25
pick lstFluid "Carbon Dioxide "
click cmdSelect
type txtPercent(4) 3
pick lstFluid "Nitrogen "
click cmdSelect
# What the others leave.
key txtPercent(5) R
click cmdCalcPseudo
show txtMW(0)
show txtDensity(0)
show txtCompFactor(0)
# The same mixture at the state of case 2.
click cmdOK(1)
show txtDensity(1)

# The figures of the guide.
expect txtMW(0) 21.97
expect txtCritTemp(0) 397.6
expect txtCritPressure(0) 664.5
expect txtCompFactor(0) 0.946
expect txtDensity(0) 1.061
expect txtDensity(1) 1.567

# The report, beside where the player was started.
click mnuPrint
click cmdDate
type txtTitle Northfield Terminal
type txtSubTitle Unit 200
type txtProjectNo 4471
type txtProjectName Tank farm revamp
pdf gas-properties.pdf
click cmdOK
quit
