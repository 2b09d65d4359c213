# Tables and steam files that are missing, cut or without sense, under the forms that read them: each is told,
# nothing typed is lost, and the form goes on.
strict on
start

# --- The moduli of the water hammer ----------------------------------------------------------------------------
new 3
type txtFlowTemp 60
remove-file TRData/Modulus.txt
answer OK
click cmdPipeMatl
expect-box "Water Hammer  - Liquid flow" "File Modulus.txt" OK Stop
expect-state cmdSelectModulus disabled
key lstModulus Escape
expect-state cmdCalculateliq enabled
write-file TRData/Modulus.txt ""
answer OK
click cmdPipeMatl
expect-box "Water Hammer  - Liquid flow" "File Modulus.txt" OK Stop
key lstModulus Escape
# Rows that end in the middle, that hold words, and that have a gap below their end: the first empty column
# ends the range.
write-file TRData/Modulus.txt "Material,70,100,200\nShort steel                 ,2.9\nWords                          ,a,b,c,d,e,f,g,h,i,j,k,l,m,,\nWith a gap                     ,2.95,2.934,2.88,,2.77,2.73,2.67,2.55,2.42,2.24,2.04,1.8,0,400,\n"
click cmdPipeMatl
expect-count lstModulus 3
pick lstModulus "Words"
answer OK
click cmdSelectModulus
expect-message Table has data for temperatures 50 to
expect txtLineModulus ""
click cmdPipeMatl
pick lstModulus "With a gap"
click cmdSelectModulus
expect txtLineModulus 29500000
type txtFlowTemp 250
click cmdPipeMatl
pick lstModulus "With a gap"
answer OK
click cmdSelectModulus
expect-message Table has data for temperatures 50 to
expect txtLineModulus ""
answer No
click mnuProgram
expect-message Save changes?

# --- Steam on the gas line form --------------------------------------------------------------------------------
new 2
type txtTemp(0) 400
answer Yes
type txtPressure(0) 100
type txtMW(0) 16.04
expect-message Stop showing this message?
write-file STEAM.txt "100,"
answer OK
click mnuSatSteam1
expect-box "Program default drive and path file" "The steam files cannot be used: Input past end of file" OK Stop
remove-file STEAM.txt
answer OK
click mnuSupersteam1
expect-box "Program default drive and path file" "The steam files cannot be used: File not found" OK Stop
expect txtFluid ""
expect txtMW(0) 16.04
answer No
click mnuProgram
expect-message Save changes?

# --- Steam and fluids on the data forms --------------------------------------------------------------------------
new 5
type txtTemp(0) 400
type txtPressure(0) 100
remove-file Stm07.Dat
answer OK
click mnuSupersteam1
expect-message The steam files cannot be used: File not found
remove-file TRData/Gas.txt
answer OK
click mnuPureGases1
expect-message File Gas.txt
key lstFluid Escape
# A row of nothing but zeros, and one at whose critical point the compressibility does not settle.
write-file TRData/Gas.txt "Name,Tp\nNothing                        ,1,0,0,0,0,0,0,0,0,0,0,0,0,0,\nRestless                       ,2,.05,-200,60,240,60,.01,300,.0074,500,.4,.5,150,.05,\n"
click mnuPureGases1
pick lstFluid "Nothing"
answer OK
click cmdSelect
expect-box "Gas Calculation" "Fluid properties cannot be calculated" OK
expect txtFluid ""
type txtTemp(0) 65.33
type txtPressure(0) 175.3
click mnuPureGases1
pick lstFluid "Restless"
answer OK
click cmdSelect
expect-box "Compressibility Factor Calculation" "Will not converge\nUse data with care" OK Question
expect txtFluid Restless

answer No
click mnuProgram
expect-message Save changes?
new 4
type txtTemp(0) 60
type txtPressure(0) 100
remove-file TRData/Liquid.txt
answer OK
click mnuLiquid1
expect-message File Liquid.txt
key lstFluid Escape
expect-state txtTemp(0) enabled
# Short rows and rows of zeros in a file of another spelling.
write-file TRData/LIQUID.TXT "head\nShort,1,2\nZero,1,0,0,0,0,0,0,0,0,0,\n"
click mnuLiquid1
expect-count lstFluid 2
pick lstFluid "Short"
answer Yes
answer OK
click cmdSelect
expect-message Flow temperature is greater then Critical temperature
expect-box "Liquid Calculation" "Fluid properties cannot be calculated" OK
expect txtSGFTP(0) ""
expect-state txtTemp(0) enabled
click mnuLiquid1
pick lstFluid "Zero"
answer Yes
answer OK
click cmdSelect
expect-message Flow temperature is greater then Critical temperature
expect-message Fluid properties cannot be calculated
expect txtSGFTP(0) ""
expect-state txtTemp(0) enabled
