# Included by others: 1000 ft of 4 inch schedule 40 steel pipe, 100,000 lb/h of a liquid of gravity 1 and 1 cp,
# 60 degF and 100 psig, normal case.
type txtInletPipeLen 1000
type txtInletPipeID 4.026
type txtFlow(1) 100000
type txtTemp(1) 60
answer Yes
type txtPressure(1) 100
type txtSGFlow(1) 1
expect-box "Pressure Has Changed" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
type txtViscosity(1) 1
