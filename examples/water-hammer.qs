# A worked example: a shut-off valve at the end of 2500 ft of 6 inch schedule 40 steel pipe with cooling water at
# 60 degF and 100 psig. How slowly must it close to keep the line below 300 psig?
#
#   quillmetra-script examples/water-hammer.qs
start
new 3
type txtTagNum XV-204
type txtMaxLiqFlow 400000
type txtFlowTemp 60
type txtOperPressure 100
leave

# The liquid with its bulk modulus, the pipe with its wall and its modulus, from their tables.
click mnuPureLiquids
pick lstFluid "Water "
click cmdSelect
click cmdPipeID
expect-form frmPipeSize
type txtNomSize 6
click cmdSearch
pick lstPipeSize "  6,40S"
click cmdOK
click cmdPipeMatl
pick lstModulus "Carbon Steel C<=0.3%"
click cmdSelectModulus
type txtLineLength 2500
type txtMaxAllowPressure 300

# A valve that closes within the critical time brings the full wave; the minimum time keeps it to 300 psig.
click cmdCalculateliq
show txtCriticalTime
show txtPressureWave
show txtSupportForce
show txtCloseTime
expect txtCloseTime 2.986

# An actuator of 4 seconds.
type txtSelectedTime 4
click cmdCalculateliq
show txtSelectedWave
show txtSelectedForce
show pltClosing
show-status

# The figures of the guide.
expect txtBulkModulus 318677
expect txtWaveVelocity 4380
expect txtCriticalTime 1.142
expect txtPressureWave 622.9
expect txtSupportForce 15108
expect txtSelectedWave 249.3
expect txtSelectedForce 4313

# The report, beside where the player was started.
click mnuPrint
click cmdDate
type txtTitle Northfield Terminal
type txtSubTitle Unit 200
type txtProjectNo 4471
type txtProjectName Tank farm revamp
pdf water-hammer.pdf
click cmdOK
quit
