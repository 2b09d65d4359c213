# Included by others: 1000 ft of 4 inch schedule 40 steel pipe, 5,000 lb/h of methane, 60 degF and 100 psig,
# normal case.
type txtInletPipeLen 1000
type txtInletPipeID 4.026
type txtFlow(1) 5000
type txtTemp(1) 60
answer Yes
type txtPressure(1) 100
type txtMW(1) 16.04
expect-box "Pressure Has Changed" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
type txtRatioSH(1) 1.3
type txtCritTemp(1) 343
type txtCritPressure(1) 667
type txtViscosity(1) 0.011
