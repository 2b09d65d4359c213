# Included by others: 2500 ft of 6 inch schedule 40 steel pipe with 400,000 lb/h of a liquid of gravity 1 and a
# bulk modulus of 319,000 psi, 60 degF and 100 psig, 300 psig allowed. All typed by hand.
type txtMaxLiqFlow 400000
type txtFlowTemp 60
answer Yes
type txtOperPressure 100
type txtSGFlow 1
expect-box "New Calculation" "Enter new Fluid Properties\n\nStop showing this message?" YesNo
type txtBulkModulus 319000
type txtLineLength 2500
type txtPipeID 6.065
type txtPipeWall 0.28
type txtPipeMatl Steel
type txtLineModulus 29500000
type txtMaxAllowPressure 300
