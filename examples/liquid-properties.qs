# A worked example: the properties of toluene at the pressure of its tank, of a pump's suction and of a heater.
#
#   quillmetra-script examples/liquid-properties.qs
start
new 4
type txtTagNum TK-12 toluene
type txtBy Process
type txtTemp(0) 60
answer No
type txtPressure(0) 10
type txtTemp(1) 80
type txtPressure(1) 50
type txtTemp(2) 180
type txtPressure(2) 120
click mnuLiquid1
pick lstFluid "Toluene "
click cmdSelect
click mnuLiquid2
pick lstFluid "Toluene "
click cmdSelect
click mnuLiquid3
pick lstFluid "Toluene "
click cmdSelect
show txtDensity(0)
show txtDensity(2)
show txtViscosity(2)
show txtVapPressure(2)
expect txtMW(0) 92.14

# The figures of the guide.
expect txtDensity(0) 54.37
expect txtDensity(2) 50.43
expect txtViscosity(2) 0.311
expect txtVapPressure(2) 6.09

# The report, beside where the player was started.
click mnuPrint
click cmdDate
type txtTitle Northfield Terminal
type txtSubTitle Unit 200
type txtProjectNo 4471
type txtProjectName Tank farm revamp
pdf liquid-properties.pdf
click cmdOK
quit
