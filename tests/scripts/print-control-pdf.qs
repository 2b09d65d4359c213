# A PDF that cannot be written ends the run with a word, and the print control works on.
strict on
start
include print-run.qs
click cmdAll
answer OK
save-as no such folder/run.pdf
click cmdPdf
expect-box "Printing Problem" "Path/File access error (Error 75)" OK Stop
expect-state cmdProceed enabled
expect-state barProgress hidden
quit
